// SPDX-License-Identifier: MIT
#include "fuzz/Support.h"
#include "fuzz/Targets.h"
#include "platform/ProfileFile.h"
#include "platform/TextFile.h"

#include <QSet>

namespace fuzz {

namespace {

platform::ProfileFile Read(const QString& path)
{
    platform::ProfileFile profile(path);
    profile.Refresh();
    return profile;
}

// What may be the name of a section or of a key: what stands in brackets, and what stands before "=".
void CollectNames(const QStringList& lines, QSet<QString>& sections, QSet<QString>& keys)
{
    constexpr qsizetype most = 32; // each section is asked for each key
    for (const QString& line : lines) {
        if (const qsizetype open = line.indexOf(u'['); open >= 0 && sections.size() < most) {
            sections.insert(line.mid(open + 1, line.indexOf(u']') - open - 1).trimmed());
        }
        if (const qsizetype equals = line.indexOf(u'='); equals > 0 && keys.size() < most) {
            keys.insert(line.left(equals).trimmed());
        }
    }
}

} // namespace

void ReadProfile(QByteArrayView document)
{
    const QString path = WriteFile("exif.ini", document);
    const platform::ProfileFile profile = Read(path);
    const QStringList lines = platform::ReadLines(path).value_or(QStringList());
    QSet<QString> sections, keys;
    CollectNames(lines, sections, keys);
    for (const QString& section : sections) {
        QStringList rewritten{u'[' + section + u']'};
        for (const QString& key : keys) {
            if (const QString value = profile.Value(section, key); !value.isEmpty()) {
                Require(value.size() <= 1'023, "a value is no longer than is given");
                rewritten << key + QStringLiteral(" = \"") + value + u'"';
            }
        }
        Require(platform::WriteDocument(path, rewritten));
        const platform::ProfileFile again = Read(path);
        for (const QString& key : keys) {
            Require(again.Value(section, key) == profile.Value(section, key),
                    "a value that is written in quotes reads the same");
        }
    }
}

} // namespace fuzz

// SPDX-License-Identifier: MIT
#include "platform/ProfileFile.h"

#include "platform/NameBytes.h"
#include "platform/TextFile.h"

#include <sys/stat.h>

namespace platform {

namespace {

constexpr qsizetype LongestValue = 1'023;
constexpr qint64 LargestProfile = 1024 * 1024;

QString WithoutQuotes(const QString& text)
{
    const bool isQuoted =
        text.size() >= 2 && (text.front() == u'"' || text.front() == u'\'') && text.back() == text.front();
    return isQuoted ? text.mid(1, text.size() - 2) : text;
}

// The first units of a text, without a pair that would be cut in half.
QString Shortened(const QString& text)
{
    const bool cutsPair = text.size() > LongestValue && text.at(LongestValue - 1).isHighSurrogate() &&
                          text.at(LongestValue).isLowSurrogate();
    return text.left(cutsPair ? LongestValue - 1 : LongestValue);
}

} // namespace

ProfileFile::ProfileFile(QString path) : path_(std::move(path)), pathBytes_(ToPath(path_)) {}

ProfileFile::Stamp ProfileFile::StampNow() const
{
    struct stat info
    {};
    if (!pathBytes_ || ::stat(pathBytes_->constData(), &info) != 0) {
        return {};
    }
    return {info.st_size, info.st_mtim.tv_sec, info.st_mtim.tv_nsec, info.st_ino};
}

void ProfileFile::Refresh()
{
    const Stamp now = StampNow();
    if (now == stamp_) {
        return;
    }
    stamp_ = now;
    Parse(ReadLines(path_, Fallback::Windows1252, LargestProfile).value_or(QStringList()));
}

void ProfileFile::Parse(const QStringList& lines)
{
    values_.clear();
    QHash<QString, QString>* section = nullptr; // null: in front of all, or in a second one of a name
    for (const QString& each : lines) {
        const QString line = each.trimmed();
        const qsizetype equals = line.indexOf(u'=');
        if (line.startsWith(u'[')) {
            const qsizetype end = line.indexOf(u']');
            const QString name = line.mid(1, end < 0 ? -1 : end - 1).trimmed().toLower();
            section = values_.contains(name) ? nullptr : &values_[name];
        } else if (section && equals > 0 && !line.startsWith(u';')) {
            const QString key = line.left(equals).trimmed().toLower();
            if (!section->contains(key)) {
                section->insert(key, Shortened(WithoutQuotes(line.mid(equals + 1).trimmed())));
            }
        }
    }
}

QString ProfileFile::Value(const QString& section, const QString& key) const
{
    const auto found = values_.constFind(section.toLower());
    return found == values_.cend() ? QString() : found->value(key.trimmed().toLower());
}

} // namespace platform

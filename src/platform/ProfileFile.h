// SPDX-License-Identifier: MIT
//
// ProfileFile: a text file with sections in brackets and "key=value" lines, read as the runtime's private
// profiles are.
//
//     [Flash]
//     1 = "fired"
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

#include <optional>

namespace platform {

class ProfileFile
{
public:
    // Nothing is read yet.
    explicit ProfileFile(QString path);

    // Reads the file if it has changed since the last time. One that isn't there has no sections.
    void Refresh();

    // The value of a key, empty if there is none. Sections and keys are found without regard to case, the
    // first of that name counts. Blanks around a value are taken off, and then one pair of quotes, single or
    // double. At most 1,023 characters are given.
    QString Value(const QString& section, const QString& key) const;

    bool IsEmpty() const { return values_.isEmpty(); }

private:
    // What tells one state of the file from another.
    struct Stamp
    {
        qint64 size = -1;
        qint64 seconds = 0;
        qint64 nanoseconds = 0;
        quint64 inode = 0;
        bool operator==(const Stamp&) const = default;
    };

    Stamp StampNow() const;
    void Parse(const QStringList& lines);

    QString path_;
    std::optional<QByteArray> pathBytes_; // the same, as it is looked for
    Stamp stamp_;
    QHash<QString, QHash<QString, QString>> values_; // by section and key, both in lower case
};

} // namespace platform

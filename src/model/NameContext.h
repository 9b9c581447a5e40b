// SPDX-License-Identifier: MIT
//
// NameContext: what an action handler is given for one row. `name` travels through the actions; all else is
// the row's own data.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace model {

// What an MP3 file tells about itself, by the keys of tokens. An unknown key and what the file doesn't tell
// are empty.
class Mp3Properties
{
public:
    virtual ~Mp3Properties() = default;
    virtual QString Value(const QString& key) const = 0;
};

struct NameContext
{
    QString name;                   // the current name with its extension
    std::optional<qint64> modified; // seconds since the epoch; none is a text that doesn't read as a date
    float size = 0;                 // bytes, in single precision
    QString folder;
    QString type;
    QString exifDate; // the picture's date and time as it stands in the file; empty if no row had one yet
    QStringList exifLines;              // "TagName: value" of the picture, or of the one before it
    const Mp3Properties* mp3 = nullptr; // null unless the file was an MP3 by its name
};

} // namespace model

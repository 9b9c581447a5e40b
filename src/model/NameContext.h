// SPDX-License-Identifier: MIT
//
// NameContext: what an action handler is given for one row. `name` travels through the actions; all else is
// the row's own data.
#pragma once

#include <QString>

#include <optional>

namespace model {

struct NameContext
{
    QString name;                   // the current name with its extension
    std::optional<qint64> modified; // seconds since the epoch; none is a text that doesn't read as a date
    float size = 0;                 // bytes, in single precision
    QString folder;
    QString type;
    QString exifDate; // the picture's date and time as it stands in the file; empty if no row had one yet
};

} // namespace model

// SPDX-License-Identifier: MIT
//
// RenameRow: one row of the rename grid. Its full name on disk is always path & original; no other link leads
// back to the file list or to the disk.
#pragma once

#include <QString>

#include <optional>

namespace model {

// What validation found out about a row's new name; shown as the colour of its Preview cell.
enum class ValidationState { NotValidated, Changed, NotChanged, Duplicate };

struct RenameRow
{
    QString original;               // name with extension, no folder
    QString preview;                // the new name; empty until a preview ran
    QString path;                   // folder with a trailing separator
    qint64 size = 0;                // bytes; 0 for a folder
    std::optional<qint64> modified; // seconds since the epoch; none shows as an empty text
    QString folder;                 // last component of `path`, without separators
    QString type;                   // type text; "File Folder" marks a folder
    QString pictureTakenDate;       // as the picture tells it; empty if unknown
    ValidationState state = ValidationState::NotValidated;
};

} // namespace model

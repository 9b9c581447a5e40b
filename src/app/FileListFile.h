// SPDX-License-Identifier: MIT
//
// File lists: files that record the checked rows of the main list, so that files of many folders can be
// gathered again. There are two forms with the same extension, and each is read by its own reader only:
// the menu's has a first line that names it, and two lines a file; the manager's has one line a file.
#pragma once

#include "fileview/FileList.h"
#include "platform/Result.h"

#include <optional>
#include <vector>

namespace app {

struct ListedFile
{
    QString folder; // with the separator at its end
    QString name;

    bool operator==(const ListedFile&) const = default;
};

// Writes the checked rows, whole or not at all. A file whose full name has a line break can't be told in a
// line: it is left out, and after the rest is written the failure says so.
platform::Status SaveFileList(const QString& path, const fileview::FileList& rows);
platform::Status SaveManagedList(const QString& path, const fileview::FileList& rows);

// Reads a list of the menu's form. Nothing if the file can't be read or its first line isn't exactly that of
// a list. A folder without a name behind it, at the end, is dropped.
std::optional<std::vector<ListedFile>> LoadFileList(const QString& path);

// Reads a list of the manager's form; a line's last separator ends its folder, and empty lines are passed
// over. Nothing if the file can't be read.
std::optional<std::vector<ListedFile>> LoadManagedList(const QString& path);

} // namespace app

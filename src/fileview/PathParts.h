// SPDX-License-Identifier: MIT
//
// The parts of a path as lists of dropped files are taken apart.
#pragma once

#include "platform/FileSystem.h"

#include <QString>

namespace fileview {

enum class PathPart {
    BaseName = 0,         // without folder and extension
    Extension = 1,        // without the dot
    Folder = 2,           // with its trailing separator
    FolderWithoutEnd = 3, // without it
    Name = 4,             // with extension
    FolderAndBaseName = 5,
    NameOfFolder = 6, // the base name of part 3
};

// A part of `path`. `separators` are the characters that part it. The extension is what stands behind the
// last dot, provided that the dot stands behind the last separator; without one the extension is empty.
QString PartOf(const QString& path, PathPart part,
               const QString& separators = QString(platform::PathSeparator));

} // namespace fileview

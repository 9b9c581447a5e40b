// SPDX-License-Identifier: MIT
//
// FileRow: one row of a file list, as the file was found. A plain record; the list that holds it is
// fileview/FileList.h.
#pragma once

#include <QString>

#include <memory>
#include <optional>

namespace model {

// Texts that a person wrote over the size and the date of a row; null where nothing was.
struct WrittenTexts
{
    QString size;
    QString date;
};

struct FileRow
{
    QString Text; // the file name
    // Its folder, with a trailing separator; empty for a bare name. The full name is Path & Text.
    QString Path;
    QString Type;    // the type text; "File Folder" marks a folder; empty if the file wasn't found
    qint64 size = 0; // bytes
    std::optional<qint64> modified;              // seconds since the epoch; none if the file wasn't found
    std::shared_ptr<const WrittenTexts> written; // none for nearly all rows
    bool checked = false;
};

} // namespace model

// SPDX-License-Identifier: MIT
#include "fileview/FileList.h"

#include "model/GetFName.h"

#include <algorithm>

namespace fileview {

void FileList::AddFile(const QString& folder, const QString& name, platform::FileSystem& files)
{
    model::FileRow row;
    row.Text = name;
    // Files come folder by folder: rows of one folder share its text.
    row.Path = !rows_.empty() && rows_.back().Path == folder ? rows_.back().Path : folder;
    if (const auto info = files.GetInfo(folder, name)) {
        row.Type = info->isFolder ? model::FileFolder : types_.OfFile(name);
        row.size = info->size;
        row.modified = info->modified;
    }
    rows_.push_back(std::move(row));
}

void FileList::SetCheckedAll(bool checked)
{
    for (model::FileRow& row : rows_) {
        row.checked = checked;
    }
}

int FileList::CheckedCount() const
{
    return static_cast<int>(
        std::count_if(rows_.begin(), rows_.end(), [](const model::FileRow& row) { return row.checked; }));
}

} // namespace fileview

// SPDX-License-Identifier: MIT
//
// FileList: the main list `lvw2`, the files that a person gathered, each with a check mark. The rename
// workspace takes its rows from the checked ones. Rows count from 1.
#pragma once

#include "model/FileRow.h"
#include "platform/FileSystem.h"
#include "platform/TypeText.h"

#include <QString>

#include <vector>

namespace fileview {

class FileList
{
public:
    int Count() const { return static_cast<int>(rows_.size()); }

    // REQUIRES: 1 <= index <= Count().
    const model::FileRow& Item(int index) const { return rows_[static_cast<std::size_t>(index - 1)]; }

    void Clear() { rows_.clear(); }

    // Makes room for that many rows, before adding many.
    void Reserve(int count) { rows_.reserve(static_cast<std::size_t>(count)); }

    // Adds one row for the file folder & name, unchecked. `folder` ends with a separator or is empty. A file
    // that isn't there gives a row with an empty type.
    void AddFile(const QString& folder, const QString& name, platform::FileSystem& files);

    bool Checked(int index) const { return Item(index).checked; }
    void SetChecked(int index, bool checked) { rows_[static_cast<std::size_t>(index - 1)].checked = checked; }
    void SetCheckedAll(bool checked);

    // Number of checked rows.
    int CheckedCount() const;

private:
    std::vector<model::FileRow> rows_;
    platform::TypeTexts types_;
};

} // namespace fileview

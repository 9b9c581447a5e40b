// SPDX-License-Identifier: MIT
#include "documents/DropRun.h"

#include "model/GetFName.h"

namespace documents {

DropRun::DropRun(const workspace::GridPre& grid) : grid_(grid)
{
    ShowRow(1);
}

DropRun::Step DropRun::Skip()
{
    if (!IsPastLastRow()) {
        ShowRow(currentRow_);
        ++currentRow_;
    }
    return {};
}

DropRun::Step DropRun::Rename()
{
    if (IsPastLastRow()) {
        return {};
    }
    platform::FileSystem files; // for this step alone: between two steps a person takes any time
    ShowRow(currentRow_);
    if (const platform::Status status = RenameShown(files); !status.IsOk()) {
        return {status.Description(), false};
    }
    ++currentRow_;
    return IsPastLastRow() ? Step{QStringLiteral("All Files Renamed"), true} : Step{};
}

DropRun::Step DropRun::RenameAll()
{
    platform::FileSystem files;
    while (!IsPastLastRow()) {
        ShowRow(currentRow_);
        // A row that fails keeps its name, and the others go on.
        static_cast<void>(RenameShown(files));
        ++currentRow_;
    }
    return {QStringLiteral("Files Renamed"), true};
}

DropRun::Step DropRun::SkipAll()
{
    return {{}, true};
}

void DropRun::ShowRow(int row)
{
    if (row <= grid_.RowCount()) {
        const model::RenameRow& shown = grid_.Row(row);
        boxes = {shown.path + shown.original, shown.path + shown.preview, shown.path, shown.preview};
    }
    currentRow_ = row;
}

platform::Status DropRun::RenameShown(platform::FileSystem& files) const
{
    // The file's name in the folder txtModPath: a row's new name never leaves its folder by itself.
    const QString name = boxes.txtOrig.mid(boxes.txtModPath.size());
    return grid_.Row(currentRow_).type == model::FileFolder
               ? files.MoveFolder(boxes.txtModPath, name, boxes.txtModName)
               : files.MoveFile(boxes.txtModPath, name, boxes.txtModName);
}

} // namespace documents

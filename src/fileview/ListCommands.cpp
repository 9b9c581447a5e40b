// SPDX-License-Identifier: MIT
#include "fileview/ListCommands.h"

#include "fileview/FileInfo.h"
#include "model/GetFName.h"
#include "platform/ShellOpen.h"

namespace fileview {

namespace {

constexpr int ComparedDateCharacters = 10;

bool IsRow(const FileList& list, int row)
{
    return row >= 1 && row <= list.Count();
}

platform::Status TransferRow(const model::FileRow& row, const QString& targetFolder, Transfer transfer)
{
    const bool isFolder = row.Type == model::FileFolder;
    const QString from = row.Path + row.Text;
    const QString to = targetFolder + row.Text;
    if (transfer == Transfer::Copy) {
        return isFolder ? platform::CopyFolder(from, to) : platform::CopyFile(from, to);
    }
    platform::FileSystem files; // the two names are complete
    return isFolder ? files.MoveFolder({}, from, to) : files.MoveFile({}, from, to);
}

} // namespace

void OpenRow(const FileList& list, int selectedRow)
{
    if (IsRow(list, selectedRow)) {
        platform::ShellOpen(list.Item(selectedRow).Path + list.Item(selectedRow).Text);
    }
}

void ExploreRow(const FileList& list, int selectedRow)
{
    if (IsRow(list, selectedRow)) {
        platform::ShellOpen(list.Item(selectedRow).Path);
    }
}

void CheckDate(FileList& list, int selectedRow, bool checked)
{
    if (!IsRow(list, selectedRow)) {
        return;
    }
    const QString date = DateTextOf(list.Item(selectedRow)).left(ComparedDateCharacters);
    list.SetCheckedIf(
        [&date](const model::FileRow& row) { return DateTextOf(row).left(ComparedDateCharacters) == date; },
        checked);
}

void CheckDirectory(FileList& list, int selectedRow, bool checked)
{
    if (!IsRow(list, selectedRow)) {
        return;
    }
    const QString folder = list.Item(selectedRow).Path;
    list.SetCheckedIf([&folder](const model::FileRow& row) { return row.Path == folder; }, checked);
}

void mnuCheck_Click(FileList& list, int Index)
{
    if (Index == 2) {
        list.InvertAllChecks();
    } else {
        list.SetCheckedAll(Index == 0);
    }
}

void TransferChecked(const FileList& list, QString targetFolder, Transfer transfer, model::RunHost& host)
{
    if (!targetFolder.endsWith(platform::PathSeparator)) {
        targetFolder += platform::PathSeparator;
    }
    host.SetProgressMaximum(list.CheckedCount());
    host.SetProgressValue(0);
    host.ShowStatus(transfer == Transfer::Copy ? QStringLiteral("Copying Selected Files...")
                                               : QStringLiteral("Moving Selected Files..."));
    for (int row = 1; row <= list.Count(); ++row) {
        if (list.Checked(row)) {
            // A file in use or a full disk leaves this one undone, and the others go on.
            static_cast<void>(TransferRow(list.Item(row), targetFolder, transfer));
        }
        host.SetProgressValue(row); // a value past the maximum isn't taken
        host.Yield();
    }
    host.ShowStatus(QStringLiteral("Ready"));
    host.SetProgressValue(0);
}

} // namespace fileview

// SPDX-License-Identifier: MIT
//
// Execution: the Previews go to the disk, row by row in grid order. No ordering logic, no temporary names:
// what the file system refuses is written to the log, and the run goes on with the next row. Nothing is ever
// overwritten (platform/FileSystem.h).
#include "model/GetFName.h"
#include "platform/Conversions.h"
#include "platform/FileSystem.h"
#include "platform/TextFile.h"
#include "workspace/LogFormat.h"
#include "workspace/MoveRow.h"
#include "workspace/RenameWorkspace.h"

namespace workspace {

namespace {

// A name may hold line breaks; a line of the log can't.
QString InOneLine(QString text)
{
    return text.replace(u'\n', QChar(0x240A)).replace(u'\r', QChar(0x240D));
}

QString LogLine(const model::RenameRow& row, const platform::Status& result)
{
    const QString outcome = result.IsOk() ? RenameSuccessful : result.Description();
    return InOneLine(row.path + LogSeparator + row.original + LogSeparator + row.preview + LogSeparator +
                     outcome);
}

} // namespace

platform::Status MoveRow(const model::RenameRow& row, platform::FileSystem& files)
{
    return row.type == model::FileFolder ? files.MoveFolder(row.path, row.original, row.preview)
                                         : files.MoveFile(row.path, row.original, row.preview);
}

bool RenameWorkspace::cmdExecute_Click()
{
    if (!previewDone_) {
        host_.ShowMessage(QStringLiteral("Please Preview first,then Execute"), QStringLiteral("Renamer"));
        return false;
    }
    if (state_.AutoNormalizeAttributes == 1) {
        NormalizeAttributes();
    }
    const QString savedLogPath = state_.SaveLogFile == 1 ? SavedLogPath() : QString();

    const bool wasStopped = MoveRows();
    grid.PromotePreviews();
    grid.AnnounceChanges();
    if (!wasStopped && state_.ConfirmAfterRename == 1) {
        host_.ShowMessage(QStringLiteral("Files Renamed"), QStringLiteral("Quillmark"));
    }
    host_.ShowStatus(QStringLiteral("Ready"));
    host_.SetProgressValue(0);
    if (!savedLogPath.isEmpty()) {
        // A copy that fails is passed over: the log of the run itself stands.
        static_cast<void>(platform::CopyFile(LogPath(), savedLogPath));
    }
    if (state_.AutoRefreshMainView == 1) {
        RefreshMainView();
    }
    return true;
}

bool RenameWorkspace::MoveRows()
{
    // Without a log the renames run all the same, and its lines are dropped.
    platform::TextWriter log;
    static_cast<void>(programFolder_.Ensure());
    static_cast<void>(log.Create(LogPath()));
    host_.SetProgressMaximum(grid.RowCount());
    host_.SetProgressValue(0);
    platform::FileSystem files;
    bool wasStopped = false;
    for (int row = 1; row <= grid.RowCount() && !wasStopped; ++row) {
        if (state_.StopFlag.IsSet()) {
            state_.StopFlag.Clear();
            wasStopped = true;
        } else {
            log.WriteLine(LogLine(grid.Row(row), MoveRow(grid.Row(row), files)));
            host_.SetProgressValue(row);
        }
    }
    static_cast<void>(log.Close());
    return wasStopped;
}

QString RenameWorkspace::LogPath() const
{
    return programFolder_.PathOf(QStringLiteral("templog.log"));
}

QString RenameWorkspace::SavedLogPath() const
{
    const QDateTime start = clock_.Now();
    return programFolder_.PathOf(
        QStringLiteral("Rename_Log") + platform::FormatMoment(start, QStringLiteral("mm_dd_yyyy")) +
        platform::FormatMoment(start, QStringLiteral("hh_mm_ss_AM/PM")) + QStringLiteral(".txt"));
}

void RenameWorkspace::NormalizeAttributes()
{
    host_.SetProgressMaximum(mainList_.Count());
    host_.SetProgressValue(0);
    host_.ShowStatus(QStringLiteral("Changing Attributes..."));
    platform::FileSystem files;
    // Row and item are matched by position, although the grid holds checked items only and may be sorted.
    for (int row = 1; row <= grid.RowCount(); ++row) {
        if (row <= mainList_.Count() && mainList_.Checked(row)) {
            // A file that refuses is passed over: its rename will tell.
            static_cast<void>(files.SetNormalAttributes(grid.Row(row).path, grid.Row(row).original));
        }
        host_.SetProgressValue(row);
    }
    host_.ShowStatus(QStringLiteral("Ready"));
    host_.SetProgressValue(0);
}

void RenameWorkspace::RefreshMainView()
{
    host_.ShowStatus(QStringLiteral("Refreshing Main File View..."));
    host_.SetProgressMaximum(grid.RowCount());
    host_.SetProgressValue(0);
    mainList_.Clear();
    platform::FileSystem files;
    for (int row = 1; row <= grid.RowCount(); ++row) {
        // Original holds the new name by now; folders and failed renames drop out.
        if (files.FileExists(grid.Row(row).path, grid.Row(row).original)) {
            mainList_.AddFile(grid.Row(row).path, grid.Row(row).original, files);
        }
    }
    host_.SetProgressValue(0);
    host_.ShowStatus(QStringLiteral("Ready"));
    mainList_.SetCheckedAll(true);
    state_.CheckedCount = mainList_.CheckedCount();
}

} // namespace workspace

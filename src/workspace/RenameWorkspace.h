// SPDX-License-Identifier: MIT
//
// RenameWorkspace: the rename workspace without its window. It holds the rows to rename, all options, and the
// commands of the buttons under their names: preview, validate, execute and what stands around them. The road
// of a rename is Refreshrnm (rows from the main list), cmdPreview_Click (new names), cmdValidate_Click
// (colours), cmdExecute_Click (the disk and the log).
//
// What always holds:
//  1. The full name of a row is its Path & Original; nothing else links a row to the disk.
//  2. Loops over rows tell their progress to the RunHost and yield once a row. Execution and what belongs to
//     it (normal attributes, refreshing the main list) yield to nobody.
//  3. One thread. A command started while another one yields runs nested; nothing guards against it.
#pragma once

#include "actions/CounterStates.h"
#include "actions/RenameOptions.h"
#include "fileview/FileList.h"
#include "model/AppState.h"
#include "model/Ports.h"
#include "model/RunHost.h"
#include "platform/ProgramFolder.h"
#include "workspace/GridPre.h"

#include <QString>
#include <QStringList>

namespace workspace {

// What the workspace stands on. All of it outlives the workspace.
struct Surroundings
{
    model::AppState& state;
    fileview::FileList& mainList;
    model::RunHost& host;
    const model::Clock& clock;
    model::RandomSource& random;
    const platform::ProgramFolder& programFolder;
};

class RenameWorkspace
{
public:
    explicit RenameWorkspace(const Surroundings& surroundings);

    // The fourteen entries of the sort combo.
    static const QStringList& SortEntries();

    // Full path of the log of the last run.
    QString LogPath() const;

    // If FileListChanged is set: refills the grid, by RefreshrnmPicTak if the program got a command line and
    // by Refreshrnm otherwise, and clears the flag.
    void RefillIfChanged(bool hasCommandLine);

    // Rebuilds the grid from the checked rows of the main list, looking at each file again: a row whose file
    // has vanished keeps size and date of the file before it, and a folder has size 0 and the date of the
    // file before it. A set StopFlag ends it and is cleared; the rows so far stay.
    void Refreshrnm();

    // The same for a start with a command line: no status, progress or row count. It makes CheckedCount rows
    // at once and fills them in place. Pictures whose type is "JPEG file" leave their date in the row that
    // stands next to be filled, checked or not.
    void RefreshrnmPicTak();

    // Sorts the rows by an entry of SortEntries(), counted from 0. Their order is what counters number. A
    // sort by picture dates reads them first, once until Refreshrnm; a set StopFlag ends that, and stays set.
    void SortBy(int entry);

    // Gives every row its new name, and validates if AutoValidate is set. Without a selected action it only
    // warns, "Please Select Actions". A set StopFlag ends the rows and stays set.
    void cmdPreview_Click();

    // Colours the Preview cells: not changed, changed, duplicate. Blocks nothing and looks at no disk. A set
    // StopFlag ends it, leaving colours, status and progress as they are, and is cleared.
    void cmdValidate_Click();

    // Renames on disk, row by row in grid order, never over an existing file, and writes the log. Then every
    // Preview becomes the row's Original, also where the move failed. A set StopFlag ends the rows and is
    // cleared. False if nothing was done since no preview ran yet ("Please Preview first,then Execute").
    bool cmdExecute_Click();

    // Empties all Previews and asks for a new one before Execute; colours stay.
    void cmdClear_Click();

    void cmdRefresh_Click() { Refreshrnm(); }

    // STOP: sets StopFlag, progress 0, status "Ready".
    void Command13_Click();

    // The window was activated: StopFlag is cleared.
    void Activated() { state_.StopFlag.Clear(); }

    // A preview ran since the last clear; gate of Execute.
    bool PreviewDone() const { return previewDone_; }

    GridPre grid;
    actions::RenameOptions options;

private:
    void RunPreview();
    void FetchPictureDates();
    void NormalizeAttributes();
    bool MoveRows(); // true if StopFlag ended it
    void RefreshMainView();
    QString SavedLogPath() const;

    model::AppState& state_;
    fileview::FileList& mainList_;
    model::RunHost& host_;
    const model::Clock& clock_;
    model::RandomSource& random_;
    const platform::ProgramFolder& programFolder_;
    actions::CounterStates counters_;
    bool previewDone_ = false;
    QStringList lstExif_; // what the picture that was read last tells; kept from run to run
    bool picTakenLoaded_ = false;
};

// The last component of a folder path that ends with `separator`; empty for a root, and for a relative path
// of one component.
QString FolderNameOf(const QString& path, QChar separator = platform::PathSeparator);

} // namespace workspace

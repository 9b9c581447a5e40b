// SPDX-License-Identifier: MIT
//
// AppState: the values that every window reads, owned by main and handed down. Start values are what holds
// until settings are read.
#pragma once

#include <QString>

namespace model {

// Asks a running loop of the rename workspace to stop. A loop tests it at each row; who clears it is told
// at each loop.
class StopFlag
{
public:
    void Set() { set_ = true; }
    void Clear() { set_ = false; }
    bool IsSet() const { return set_; }

private:
    bool set_ = false;
};

struct AppState
{
    int CheckedCount = 0;         // checked rows of the main list
    bool FileListChanged = false; // the main list differs from what the rename grid holds
    bool DropStart = false;       // a rename drop runs; there is no main window
    bool SkipNextFolderEvent = false;
    bool ClosingDown = false;          // the program ends; a late scan shows nothing any more
    bool SortNamesByMagnitude = false; // a2.txt before a10.txt, when a click on a heading sorts names
    bool KeepFileTypes = false;        // the entries of the type filter stay as they are
    int OnTopState = 0;                // the window that stays above others, see windowing/OnTopGroup.h

    // What the main window shows.
    QString LastFolder;           // the folder chosen last
    QString FileTypeFilter;       // a type text, "*.*" or "All Files"
    QString ViewMode;             // "Report", "Icons" or "List"
    int AllSelected = 0;          // 1: all files are checked when a folder is chosen
    int ShowHiddenFolders = 0;    // 1: the tree shows folders whose names begin with a dot
    int DontAskBookmarkNames = 0; // 1: bookmarks are named by number
    bool ClearOnDragDrop = false; // dropped folders take the place of what is listed
    int MetadataChoice = 0;       // entry that the pickers of metadata begin with

    // Preferences, 0 or 1.
    int AutoRefreshRenameView = 0;
    int AutoRefreshMainView = 0;
    int AutoValidate = 0;
    int AutoNormalizeAttributes = 0;
    int ShowRenameLog = 0;
    int SaveLogFile = 0;
    int ShowRenameDrop = 0;
    int ConfirmAfterRename = 0;

    // What the pickers remember: the formats picked last, and the mask used last.
    QString LastDateToken;
    QString LastTimeToken;
    QString LastMask;

    QString LastTargetFolder; // where checked files were copied or moved to

    model::StopFlag StopFlag;
};

} // namespace model

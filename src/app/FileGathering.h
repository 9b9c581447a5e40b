// SPDX-License-Identifier: MIT
//
// FileGathering: how the main window gathers files. A person chooses a folder, or checks several; the main
// list `lvw2` is filled from it and narrowed by type or by name. Two lists that nobody sees help: `LVW` takes
// the scan of one folder where several are gathered, and `lvw3` is a copy of all rows from which the filters
// read. What is to be seen of all that goes to a GatheringView; no window is needed.
#pragma once

#include "fileview/Scanner.h"
#include "model/AppState.h"
#include "model/RunHost.h"
#include "platform/Result.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace app {

class GatheringView
{
public:
    virtual ~GatheringView() = default;

    // Appends a line to the running log.
    virtual void Log(const QString& line) = 0;

    // While a scan runs no other folder can be chosen, and the button that stops it stands out.
    virtual void ScanBegins() = 0;
    virtual void ScanEnds() = 0;

    // The number of files that are gathered, as the counter beside the list tells it.
    virtual void ShowCount(int count) = 0;

    // All rows were checked, and the box that checks all is to say so.
    virtual void ShowAllChecked() = 0;

    // The entries of the type filter; "*.*" is chosen.
    virtual void ShowFileTypes(const QStringList& types) = 0;

    // The rename window is to take the rows anew, if it is open.
    virtual void RefreshRenameView() = 0;

    // A person quit during a scan that has now ended.
    virtual void EndProgram() = 0;
};

// The main list with what scans it.
struct ScannedList
{
    fileview::FileList& rows;
    fileview::ScanSettings& settings;
    fileview::Scanner& scanner;
};

class FileGathering
{
public:
    // Entries of the type filter that stand for more than one type.
    static const QString EveryName; // "*.*"
    static const QString AllFiles;  // "All Files": everything but folders

    // All of it outlives the gathering.
    FileGathering(const ScannedList& mainList, model::AppState& state, model::RunHost& host,
                  GatheringView& view);

    // A folder was chosen, given without or with a separator at its end. Stops a scan that runs. In multiple
    // folder mode it only becomes the last folder.
    void FolderSelected(const QString& folder);

    // In multiple folder mode: a folder was checked, and its files join the list, or unchecked, and they go.
    void FolderChecked(const QString& folder, bool checked);

    // Check1: all rows or none.
    void CheckAll(bool checked);

    // Check2: also the files of all subfolders of the last folder.
    void SearchSubfolders(bool on);

    // Check6: the list empties, and folders are gathered by FolderChecked.
    void SetMultipleFolders(bool on);
    bool IsMultipleFolders() const { return isMultiple_; }

    // Lists the types of the rows for the filter, and copies the rows to `lvw3`. Not while KeepFileTypes is
    // set. A type whose name is a part of what was listed before is left out.
    void RebuildFileTypes();

    // Shows the rows of one type, or of the two entries above. A file that wasn't found passes neither.
    void FilterByType(const QString& type);

    // Shows the rows whose names hold the text, without regard to case; all for an empty one. A type filter
    // is forgotten.
    void FilterByName(const QString& text);

    // Stops a scan; what was found stays.
    void Stop();

    // Counts the checked rows into CheckedCount and marks the list as changed.
    void RefreshCheckedCount();

    // A click into the list: counts, and if the count changed refreshes the rename window where that is
    // wished.
    void ListClicked();

    // Files are dropped on the list: their folders are scanned, which a stop and a quit reach as any scan;
    // the files are in the list; it is sorted, too.
    void DropBegins();
    void FilesDropped();
    void DropEnds();

    // The list start has put its files into the list: shows their number and types.
    void FilesHandedOver();

    // The rows were renamed, and the list holds what is there now.
    void FilesRenamed();

    // Replaces the list by the files of a list of the menu's form, all checked. False if the file is none;
    // the list stays then.
    bool LoadList(const QString& path);

    // Replaces the list by the files of a list of the manager's form, checked if files are so at first.
    // `isMissing` is told of each file that isn't there; it gets a row all the same. Fails if the file can't
    // be read, and during a scan.
    platform::Status LoadManaged(const QString& path,
                                 const std::function<void(const QString& file)>& isMissing);

    const fileview::FileList& Rows() const { return lvw2_; }

    // Number of rows of `LVW`.
    int CountOfLVW() const { return LVW_.Count(); }

    bool IsScanning() const { return scans_ > 0; }

private:
    void ScanBegins();
    void ScanEnds();
    void Scan(fileview::Scanner& scanner);
    void EmptyList();
    void SortByFolder(bool byFolder);
    void ListReplaced();
    void ApplyFolder(const QString& folder, bool adds);
    void CheckAllIfWished();
    void RefreshRenameViewIfWished();
    void ShowFiltered(const std::function<bool(const model::FileRow&)>& isWanted);
    bool EndIfClosing();

    fileview::FileList& lvw2_;
    fileview::ScanSettings& settings_;
    fileview::Scanner& scanner_;
    model::AppState& state_;
    GatheringView& view_;
    fileview::FileList LVW_;
    fileview::ScanSettings settingsOfLVW_;
    fileview::Scanner scannerOfLVW_;
    fileview::FileList lvw3_;
    bool isMultiple_ = false;
    int scans_ = 0; // that run now, one within the other
};

} // namespace app

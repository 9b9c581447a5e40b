// SPDX-License-Identifier: MIT
//
// Scanner: fills a file list from the disk. It walks a folder, depth first where it is recursive, and adds a
// row for each name that matches. It works on the caller's thread and yields at every entry; a stop flag ends
// it at the next one.
//
// The order of rows: all matches below a folder's subfolders come before the folder's own, each folder in the
// order in which the file system keeps it. Links to folders are listed as folders, and not walked into. A
// folder that can't be read is passed over.
#pragma once

#include "fileview/FileList.h"
#include "model/AppState.h"
#include "model/RunHost.h"
#include "platform/Result.h"

#include <QObject>
#include <QString>

namespace fileview {

struct ScanSettings
{
    QString Path = QStringLiteral("C:\\");    // the folder to scan
    QString FileSpec = QStringLiteral("*.*"); // what names must match, see Wildcard.h
    bool Recursive = false;                   // also all subfolders
    bool IncludeFolder = false;               // handed to whoever listens; changes nothing in the scan
    int UpdateFrequency = 100;                // rows between two repaints of the list
};

class Scanner final : public QObject
{
    Q_OBJECT

public:
    // All of it outlives the scanner.
    Scanner(FileList& list, ScanSettings& settings, model::RunHost& host, const model::AppState& state);

    // Clears the list and fills it as the settings say. Does nothing without Path or FileSpec. A folder that
    // doesn't exist leaves the list empty.
    void Scan();

    // One pass over a folder, by the settings as they are now, without clearing the stop flag unless
    // `clearsList` is set: a pass after a stopped scan adds nothing. Returns what matched since the list was
    // last cleared by a pass.
    int ScanPass(const QString& folder, bool clearsList);

    void StopScan() { isStopped_ = true; }
    void ResetStopFlag() { isStopped_ = false; }
    bool Stopped() const { return isStopped_; }

Q_SIGNALS:
    // Before anything is done. A listener may set Cancel, which ends it here, and change the settings.
    void BeforeScanStart(bool& Cancel, QString& Path, QString& FileSpec, bool& Recursive,
                         bool& IncludeFolder);

    // On entering each folder. `Path` is as it was asked for, without a separator put to its end.
    void SearchDirChange(QString& Path);

    // After the scan. `Stopped` is the stop flag itself.
    void ScanFinish(bool& Stopped, QString& Path, QString& FileSpec, bool& Recursive, bool& IncludeFolder);

private:
    struct Listing;
    struct Pass;
    void RunPass(const Pass& pass, QString folder);
    Listing ReadFolder(const QString& folder);
    bool WalkSubfolders(const Pass& pass, const QString& folder, const Listing& listing);
    void AddMatches(const Pass& pass, const QString& folder, const Listing& listing);
    void RowAdded();
    void SetProgress(int value);
    void StepProgress();

    FileList& list_;
    ScanSettings& settings_;
    model::RunHost& host_;
    const model::AppState& state_;
    bool isStopped_ = false;
    int found_ = 0;           // files and folders that matched
    int sinceRepaint_ = 0;    // rows added
    int progressMaximum_ = 0; // of the folder in hand; nested passes leave their own behind
    int progressValue_ = 0;
};

// Number of files directly in a folder. Fails with "Error form Functions.GetFileCount Invalid path  given" if
// there is no such folder, or with the system's text behind the same words.
platform::Status GetFileCount(const QString& Path, int& count);

} // namespace fileview

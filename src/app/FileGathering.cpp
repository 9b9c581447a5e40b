// SPDX-License-Identifier: MIT
#include "app/FileGathering.h"

#include "app/FileListFile.h"
#include "model/GetFName.h"
#include "model/Text.h"

namespace app {

namespace {

constexpr int NameKey = 0; // sort columns, counted from 0
constexpr int PathKey = 1;

QString WithSeparator(const QString& folder)
{
    return folder.endsWith(platform::PathSeparator) ? folder : folder + platform::PathSeparator;
}

QString FoundText(int count)
{
    return QString::number(count) + QStringLiteral(" file(s) found");
}

} // namespace

const QString FileGathering::EveryName = QStringLiteral("*.*");
const QString FileGathering::AllFiles = QStringLiteral("All Files");

FileGathering::FileGathering(const ScannedList& mainList, model::AppState& state, model::RunHost& host,
                             GatheringView& view)
    : lvw2_(mainList.rows),
      settings_(mainList.settings),
      scanner_(mainList.scanner),
      state_(state),
      view_(view),
      scannerOfLVW_(LVW_, settingsOfLVW_, host, state)
{
    LVW_.SetSorted(true); // by name, so that each folder's files join the main list in that order
}

void FileGathering::ScanBegins()
{
    if (++scans_ == 1) {
        view_.ScanBegins();
    }
}

void FileGathering::ScanEnds()
{
    if (--scans_ == 0) {
        view_.ScanEnds();
    }
}

void FileGathering::Scan(fileview::Scanner& scanner)
{
    ScanBegins();
    scanner.Scan();
    ScanEnds();
}

bool FileGathering::EndIfClosing()
{
    if (state_.ClosingDown) {
        view_.EndProgram();
    }
    return state_.ClosingDown;
}

void FileGathering::FolderSelected(const QString& folder)
{
    scanner_.StopScan();
    if (state_.DropStart || std::exchange(state_.SkipNextFolderEvent, false)) {
        return;
    }
    state_.LastFolder = folder;
    if (isMultiple_) {
        return;
    }
    settings_.Path = folder;
    view_.Log(QStringLiteral("Searching ") + folder +
              (settings_.Recursive ? QStringLiteral(" its subdirectories") : QString()));
    view_.Log(QStringLiteral("Press 'Stop Search' anytime to Stop"));
    Scan(scanner_);
    if (EndIfClosing()) {
        return;
    }
    CheckAllIfWished();
    lvw2_.RemoveDuplicates();
    SortByFolder(settings_.Recursive);
    ApplyFolder(folder, true);
    view_.Log(FoundText(lvw2_.Count()));
    RefreshCheckedCount();
    RefreshRenameViewIfWished();
    RebuildFileTypes();
}

void FileGathering::FolderChecked(const QString& folder, bool checked)
{
    scanner_.StopScan();
    state_.LastFolder = folder;
    if (checked) {
        settingsOfLVW_.Path = folder;
        view_.Log(QStringLiteral("Searching ") + folder + QStringLiteral("\\\\ . "));
    }
    Scan(scannerOfLVW_); // an unchecked folder's rows aren't used
    if (EndIfClosing()) {
        return;
    }
    ApplyFolder(folder, checked);
    RefreshCheckedCount();
    if (checked) {
        lvw2_.SetSortKey(PathKey);
        view_.Log(FoundText(LVW_.Count()) + u'.');
    }
    LVW_.RemoveDuplicates();
    RefreshRenameViewIfWished();
    RebuildFileTypes();
}

void FileGathering::ApplyFolder(const QString& folder, bool adds)
{
    if (isMultiple_) {
        const QString path = WithSeparator(folder);
        const auto isOfFolder = [&path](const model::FileRow& row) {
            return row.Path == path;
        };
        if (adds) {
            lvw2_.AddRowsOf(LVW_, [](const model::FileRow&) { return true; });
            lvw2_.AnnounceRows();
            lvw2_.SetCheckedIf(isOfFolder, state_.AllSelected == 1);
        } else {
            lvw2_.RemoveIf(isOfFolder);
        }
    }
    lvw2_.RemoveDuplicates();
    state_.CheckedCount = lvw2_.Count();
    view_.ShowCount(lvw2_.Count());
}

void FileGathering::CheckAllIfWished()
{
    if (state_.AllSelected == 1) {
        lvw2_.SetCheckedAll(true);
        view_.ShowAllChecked();
    }
}

void FileGathering::RefreshRenameViewIfWished()
{
    if (state_.AutoRefreshRenameView == 1) {
        view_.RefreshRenameView();
    }
}

void FileGathering::CheckAll(bool checked)
{
    lvw2_.SetCheckedAll(checked);
    RefreshCheckedCount();
    view_.ShowCount(state_.CheckedCount);
    RefreshRenameViewIfWished();
}

void FileGathering::SearchSubfolders(bool on)
{
    view_.Log(on ? QStringLiteral("Subdirectory Search Activated. ")
                 : QStringLiteral("Subdirectory Search Deactivated. "));
    settings_.Recursive = on;
    view_.Log(on ? QStringLiteral("Searching Subdirectories of  ") + state_.LastFolder +
                       QStringLiteral("... .Press 'Stop Search' to Stop")
                 : QStringLiteral("Searching  ") + state_.LastFolder + QStringLiteral("..."));
    Scan(scanner_);
    if (EndIfClosing()) {
        return;
    }
    if (on) {
        SortByFolder(true);
    }
    ApplyFolder(state_.LastFolder, true);
    CheckAllIfWished();
    view_.Log(FoundText(lvw2_.Count()));
    RefreshCheckedCount();
    RebuildFileTypes();
}

void FileGathering::SetMultipleFolders(bool on)
{
    isMultiple_ = on;
    view_.Log(on ? QStringLiteral("Multiple Folder Select mode Selected")
                 : QStringLiteral("Single Folder Select mode Selected"));
    lvw2_.Clear();
    settings_.Recursive = false;
    ListReplaced();
}

void FileGathering::RebuildFileTypes()
{
    if (state_.KeepFileTypes) {
        return;
    }
    QStringList types{EveryName, AllFiles};
    QString seen;
    QString last;
    for (int row = 1; row <= lvw2_.Count(); ++row) {
        const QString& type = lvw2_.Item(row).Type;
        if (type != last && !type.isEmpty() && !seen.contains(type)) {
            types << type;
            seen += type + u' ';
        }
        last = type;
    }
    settings_.FileSpec = EveryName;
    settingsOfLVW_.FileSpec = EveryName;
    lvw3_.Clear();
    lvw3_.AddRowsOf(lvw2_, [](const model::FileRow&) { return true; });
    view_.ShowFileTypes(types);
}

void FileGathering::ShowFiltered(const std::function<bool(const model::FileRow&)>& isWanted)
{
    lvw2_.Clear();
    lvw2_.AddRowsOf(lvw3_, isWanted);
    lvw2_.AnnounceRows();
}

void FileGathering::FilterByType(const QString& type)
{
    state_.FileTypeFilter = type;
    ShowFiltered([&type](const model::FileRow& row) {
        return !row.Type.isEmpty() &&
               (type == EveryName || row.Type == type || (type == AllFiles && row.Type != model::FileFolder));
    });
    state_.FileListChanged = true;
    CheckAllIfWished();
    lvw2_.RemoveDuplicates();
    RefreshCheckedCount();
    RefreshRenameViewIfWished();
}

void FileGathering::FilterByName(const QString& text)
{
    const QString wanted = model::UpperCase(text);
    ShowFiltered(
        [&wanted](const model::FileRow& row) { return model::UpperCase(row.Text).contains(wanted); });
    lvw2_.SetCheckedAll(state_.AllSelected == 1);
    RefreshCheckedCount();
    view_.ShowCount(state_.CheckedCount);
}

void FileGathering::Stop()
{
    scanner_.StopScan();
    scannerOfLVW_.StopScan();
    if (!isMultiple_) { // a folder among several is applied when its scan has come back
        ApplyFolder(state_.LastFolder, true);
    }
}

void FileGathering::RefreshCheckedCount()
{
    state_.CheckedCount = lvw2_.CheckedCount();
    state_.FileListChanged = true;
}

void FileGathering::ListClicked()
{
    const int before = state_.CheckedCount;
    RefreshCheckedCount();
    if (state_.CheckedCount != before) {
        RefreshRenameViewIfWished();
    }
    RefreshCheckedCount();
    view_.ShowCount(state_.CheckedCount);
}

void FileGathering::DropBegins()
{
    ScanBegins();
}

void FileGathering::DropEnds()
{
    ScanEnds();
    EndIfClosing();
}

void FileGathering::FilesDropped()
{
    lvw2_.RemoveDuplicates(); // before the filters take their copy
    CheckAllIfWished();
    RefreshCheckedCount();
    view_.ShowCount(state_.CheckedCount);
    RebuildFileTypes(); // or the next filter would forget what was dropped
}

void FileGathering::FilesHandedOver()
{
    view_.ShowCount(lvw2_.Count());
    RebuildFileTypes();
}

void FileGathering::FilesRenamed()
{
    state_.CheckedCount = lvw2_.CheckedCount();
    view_.ShowCount(state_.CheckedCount);
    RebuildFileTypes(); // or the next filter would bring the old names back
}

// As the scan of a folder that isn't there does, which stays the list's folder.
void FileGathering::EmptyList()
{
    settings_.Path = QStringLiteral("0");
    Scan(scanner_);
}

void FileGathering::SortByFolder(bool byFolder)
{
    lvw2_.SetSortKey(byFolder ? PathKey : NameKey);
    lvw2_.SetSorted(true);
}

bool FileGathering::LoadList(const QString& path)
{
    const auto files = LoadFileList(path);
    if (!files) {
        return false;
    }
    EmptyList();
    platform::FileSystem system;
    for (const ListedFile& file : *files) {
        lvw2_.AddFile(file.folder, file.name, system);
    }
    lvw2_.SetCheckedAll(true);
    ListReplaced();
    return true;
}

platform::Status FileGathering::LoadManaged(const QString& path,
                                            const std::function<void(const QString& file)>& isMissing)
{
    if (IsScanning()) {
        return platform::Status::Failure(QStringLiteral("Please stop the search first"));
    }
    const auto files = LoadManagedList(path);
    if (!files) {
        return platform::Status::Failure(QStringLiteral("File not found"));
    }
    EmptyList();
    platform::FileSystem system;
    for (const ListedFile& file : *files) {
        if (!system.GetInfo(file.folder, file.name)) {
            isMissing(file.folder + file.name);
        }
        lvw2_.AddFile(file.folder, file.name, system);
    }
    lvw2_.SetCheckedAll(state_.AllSelected == 1);
    SortByFolder(settings_.Recursive);
    ListReplaced();
    return {};
}

void FileGathering::ListReplaced()
{
    lvw2_.AnnounceRows();
    RefreshCheckedCount();
    view_.ShowCount(state_.CheckedCount);
    RebuildFileTypes();
}

} // namespace app

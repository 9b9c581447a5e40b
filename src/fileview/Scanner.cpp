// SPDX-License-Identifier: MIT
#include "fileview/Scanner.h"

#include "fileview/Wildcard.h"
#include "platform/FolderReader.h"

#include <algorithm>
#include <vector>

namespace fileview {

// What one reading of a folder found, in its order.
struct Scanner::Listing
{
    bool isReadable = false;
    std::vector<platform::FolderEntry> entries;

    int FileCount() const
    {
        return static_cast<int>(
            std::count_if(entries.begin(), entries.end(), [](const auto& entry) { return !entry.isFolder; }));
    }
};

Scanner::Scanner(FileList& list, ScanSettings& settings, model::RunHost& host, const model::AppState& state)
    : list_(list), settings_(settings), host_(host), state_(state)
{}

void Scanner::Scan()
{
    if (settings_.Path.isEmpty() || settings_.FileSpec.isEmpty()) {
        return;
    }
    bool isCancelled = false;
    Q_EMIT BeforeScanStart(isCancelled, settings_.Path, settings_.FileSpec, settings_.Recursive,
                           settings_.IncludeFolder);
    if (isCancelled) {
        return;
    }
    list_.Lock();
    ScanPass(settings_.Path, true);
    list_.Unlock();
    Q_EMIT ScanFinish(isStopped_, settings_.Path, settings_.FileSpec, settings_.Recursive,
                      settings_.IncludeFolder);
}

int Scanner::ScanPass(QString folder, bool clearsList)
{
    if (clearsList) {
        found_ = 0;
        sinceRepaint_ = 0;
        list_.Clear();
        isStopped_ = false;
        host_.Yield();
    }
    Q_EMIT SearchDirChange(folder);
    if (!folder.endsWith(platform::PathSeparator)) {
        folder += platform::PathSeparator;
    }
    const Listing listing = ReadFolder(folder);
    if (listing.isReadable) {
        progressMaximum_ = listing.FileCount();
        host_.SetProgressMaximum(progressMaximum_);
    }
    SetProgress(0);
    host_.ShowStatus(QStringLiteral("Loading Files..."));
    if (settings_.Recursive) {
        WalkSubfolders(folder, listing);
        SetProgress(0);
    }
    host_.Yield();
    if (!isStopped_) {
        AddMatches(folder, listing);
    }
    if (!state_.ClosingDown) {
        SetProgress(0);
        host_.ShowStatus(QStringLiteral("Ready"));
    }
    return found_;
}

Scanner::Listing Scanner::ReadFolder(const QString& folder)
{
    constexpr std::size_t entriesBetweenYields = 1'000;
    platform::FolderReader reader(folder);
    Listing listing{reader.IsOpen(), {}};
    for (platform::FolderEntry entry; !isStopped_ && reader.Next(entry);) {
        listing.entries.push_back(std::move(entry));
        if (listing.entries.size() % entriesBetweenYields == 0) {
            host_.Yield();
        }
    }
    return listing;
}

void Scanner::WalkSubfolders(const QString& folder, const Listing& listing)
{
    for (const platform::FolderEntry& entry : listing.entries) {
        host_.Yield();
        if (isStopped_) {
            return;
        }
        if (entry.isFolder && !entry.isLink) {
            ScanPass(folder + entry.name, false);
        }
        StepProgress();
    }
}

void Scanner::AddMatches(const QString& folder, const Listing& listing)
{
    const Wildcard wanted(settings_.FileSpec);
    platform::FileSystem files; // of this folder only: others may move it meanwhile
    for (const platform::FolderEntry& entry : listing.entries) {
        host_.Yield();
        if (isStopped_) {
            return;
        }
        if (wanted.Matches(entry.name)) {
            ++found_;
            list_.AddFile(folder, entry.name, files);
            RowAdded();
            StepProgress();
        }
    }
}

void Scanner::RowAdded()
{
    if (++sinceRepaint_ == settings_.UpdateFrequency) {
        list_.AnnounceRows();
        sinceRepaint_ = 0;
    }
}

void Scanner::SetProgress(int value)
{
    progressValue_ = value;
    host_.SetProgressValue(value);
}

void Scanner::StepProgress()
{
    if (progressMaximum_ > progressValue_) {
        SetProgress(progressValue_ + 1);
    }
}

platform::Status GetFileCount(const QString& Path, int& count)
{
    platform::FolderReader reader(Path);
    if (!reader.IsOpen()) {
        return platform::Status::Failure(
            QStringLiteral("Error form Functions.GetFileCount Invalid path  given"));
    }
    int files = 0;
    for (platform::FolderEntry entry; reader.Next(entry);) {
        files += entry.isFolder ? 0 : 1;
    }
    count = files;
    return {};
}

} // namespace fileview

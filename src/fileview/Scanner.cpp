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

// What a pass and all that it goes into work by, whatever becomes of the settings meanwhile.
struct Scanner::Pass
{
    Wildcard wanted;
    bool isRecursive = false;
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

int Scanner::ScanPass(const QString& folder, bool clearsList)
{
    const Pass pass{Wildcard(settings_.FileSpec), settings_.Recursive};
    if (clearsList) {
        found_ = 0;
        sinceRepaint_ = 0;
        list_.Clear();
        isStopped_ = false;
        host_.Yield();
    }
    RunPass(pass, folder);
    return found_;
}

void Scanner::RunPass(const Pass& pass, QString folder)
{
    Q_EMIT SearchDirChange(folder);
    if (!folder.endsWith(platform::PathSeparator)) {
        folder += platform::PathSeparator;
    }
    Listing listing = ReadFolder(folder);
    if (listing.isReadable) {
        progressMaximum_ = listing.FileCount();
        host_.SetProgressMaximum(progressMaximum_);
    }
    SetProgress(0);
    host_.ShowStatus(QStringLiteral("Loading Files..."));
    if (pass.isRecursive) {
        const bool hasWalked = WalkSubfolders(pass, folder, listing);
        SetProgress(0);
        if (hasWalked && !isStopped_) {
            listing = ReadFolder(folder); // which may have taken long
        }
    }
    host_.Yield();
    if (!isStopped_) {
        AddMatches(pass, folder, listing);
    }
    if (!state_.ClosingDown) {
        SetProgress(0);
        host_.ShowStatus(QStringLiteral("Ready"));
    }
}

Scanner::Listing Scanner::ReadFolder(const QString& folder)
{
    constexpr std::size_t entriesBetweenYields = 1'000;
    platform::FolderReader reader(folder);
    Listing listing{reader.ReadStatus().IsOk(), {}};
    for (platform::FolderEntry entry; reader.Next(entry);) {
        listing.entries.push_back(std::move(entry));
        if (listing.entries.size() % entriesBetweenYields == 0) {
            host_.Yield();
        }
    }
    return listing;
}

// False if there was none to walk into.
bool Scanner::WalkSubfolders(const Pass& pass, const QString& folder, const Listing& listing)
{
    bool hasWalked = false;
    for (const platform::FolderEntry& entry : listing.entries) {
        host_.Yield();
        if (isStopped_) {
            break;
        }
        if (entry.isFolder && !entry.isLink) {
            RunPass(pass, folder + entry.name);
            hasWalked = true;
        }
        StepProgress();
    }
    return hasWalked;
}

void Scanner::AddMatches(const Pass& pass, const QString& folder, const Listing& listing)
{
    platform::FileSystem files; // of this folder only: others may move it meanwhile
    for (const platform::FolderEntry& entry : listing.entries) {
        host_.Yield();
        if (isStopped_) {
            return;
        }
        if (pass.wanted.Matches(entry.name)) {
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
    if (const platform::Status opened = reader.ReadStatus(); !opened.IsOk()) {
        const auto info = platform::FileSystem().GetInfo(Path, {});
        return platform::Status::Failure(
            QStringLiteral("Error form Functions.GetFileCount ") +
            (info && info->isFolder ? opened.Description() : QStringLiteral("Invalid path  given")));
    }
    int files = 0;
    for (platform::FolderEntry entry; reader.Next(entry);) {
        files += entry.isFolder ? 0 : 1;
    }
    count = files;
    return {};
}

} // namespace fileview

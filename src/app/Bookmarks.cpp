// SPDX-License-Identifier: MIT
#include "app/Bookmarks.h"

#include "platform/TextFile.h"

#include <algorithm>

namespace app {

namespace {

QString PathOfBookmarks(const platform::ProgramFolder& programFolder)
{
    return programFolder.PathOf(QStringLiteral("bookmarks.bks"));
}

} // namespace

QString Bookmarks::NextName() const
{
    return QStringLiteral("Bookmark ") + QString::number(entries_.size());
}

bool Bookmarks::Add(const QString& name, const QString& folder)
{
    const bool isThere = std::any_of(entries_.begin(), entries_.end(),
                                     [&](const Bookmark& entry) { return entry.folder == folder; });
    if (!isThere) {
        entries_.push_back({name, folder});
    }
    return !isThere;
}

void Bookmarks::RemoveAt(int position)
{
    if (position >= 0 && position < static_cast<int>(entries_.size())) {
        entries_.erase(entries_.begin() + position);
    }
}

void Bookmarks::Load(const platform::ProgramFolder& programFolder)
{
    const auto lines = platform::ReadLines(PathOfBookmarks(programFolder)).value_or(QStringList());
    entries_.clear();
    for (qsizetype at = 0; at < lines.size(); at += 2) {
        if (const QString folder = lines.value(at + 1); !folder.isEmpty()) {
            entries_.push_back({lines.at(at), folder});
        }
    }
}

platform::Status Bookmarks::Save(const platform::ProgramFolder& programFolder) const
{
    QStringList lines;
    for (const Bookmark& entry : entries_) {
        if (!entry.name.contains(u'\n') && !entry.folder.contains(u'\n')) {
            lines << entry.name << entry.folder;
        }
    }
    const platform::Status status = programFolder.Ensure();
    return status.IsOk() ? platform::WriteDocument(PathOfBookmarks(programFolder), lines) : status;
}

} // namespace app

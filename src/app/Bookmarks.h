// SPDX-License-Identifier: MIT
//
// Bookmarks: named folders, kept in the file bookmarks.bks of the program's folder: two lines a bookmark, its
// name and its folder.
#pragma once

#include "platform/ProgramFolder.h"
#include "platform/Result.h"

#include <QString>

#include <vector>

namespace app {

struct Bookmark
{
    QString name;
    QString folder;

    bool operator==(const Bookmark&) const = default;
};

class Bookmarks
{
public:
    // Positions count from 0.
    const std::vector<Bookmark>& Entries() const { return entries_; }

    // "Bookmark " and the number of bookmarks: the first is "Bookmark 0". After a removal a name may repeat.
    QString NextName() const;

    // Adds a bookmark at the end. False if its folder has one already, whatever the name; nothing is added.
    bool Add(const QString& name, const QString& folder);

    // A position that isn't there is passed over.
    void RemoveAt(int position);
    void Clear() { entries_.clear(); }

    // Reads the file in the place of what is there; bookmarks without a folder are left out. A missing file
    // gives none.
    void Load(const platform::ProgramFolder& programFolder);

    // Writes the file, whole or not at all, and makes the program's folder if it is missing. A bookmark with
    // a line break in it can't be told in lines and is left out.
    platform::Status Save(const platform::ProgramFolder& programFolder) const;

private:
    std::vector<Bookmark> entries_;
};

} // namespace app

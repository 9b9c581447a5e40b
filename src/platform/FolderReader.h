// SPDX-License-Identifier: MIT
//
// FolderReader: reads the names in a folder one after the other, in the order in which the file system keeps
// them, each with what it is. Nothing is looked up for a name beyond what the folder itself tells, but where
// that isn't enough.
#pragma once

#include "platform/Result.h"

#include <QString>

#include <dirent.h>
#include <memory>

namespace platform {

struct FolderEntry
{
    QString name; // without the folder; never "." or ".."
    // What a link points at counts for `isFolder`, a dangling link as a file; `isLink` tells the two apart.
    bool isFolder = false;
    bool isLink = false;
};

class FolderReader
{
public:
    // `folder` with or without a separator at its end. A folder that isn't there or refuses to be read gives
    // no entries.
    explicit FolderReader(const QString& folder);

    // Whether the folder could be opened and read so far, and if not, why.
    const Status& ReadStatus() const { return status_; }

    // Gives the next entry; false after the last one. A read that fails ends the folder.
    bool Next(FolderEntry& entry);

private:
    struct Closer
    {
        void operator()(DIR* folder) const { ::closedir(folder); }
    };
    std::unique_ptr<DIR, Closer> folder_;
    Status status_;
};

} // namespace platform

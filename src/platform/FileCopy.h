// SPDX-License-Identifier: MIT
//
// Temporary files beside their target, the step under every write that must be whole or not at all. For use
// within this room.
#pragma once

#include "platform/Descriptor.h"
#include "platform/Result.h"

#include <QByteArray>

#include <sys/types.h>

namespace platform {

// A new hidden file in the folder of a target, removed again at the end unless it was put in the target's
// place.
class TemporaryFile
{
public:
    explicit TemporaryFile(const QByteArray& target) : target_(target) {}
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    // Makes the file, open for writing. REQUIRES: not called before.
    Status Create(mode_t mode);
    const Descriptor& File() const { return file_; }

    // Syncs and closes the file and puts it in the target's place, over a file or a link that is there (a
    // folder, pipe or device refuses) or, if not allowed to replace, failing with "File already exists".
    enum class Existing { Replace, Refuse };
    Status MoveIntoPlace(Existing existing);

private:
    QByteArray target_;
    QByteArray path_; // empty: nothing to remove
    Descriptor file_;
};

// Writes the names in a path's folder to the disk, as far as its file system does that.
void SyncFolderOf(const QByteArray& path);

// Renames within a file system in one atomic step that refuses an existing target; where the file system
// lacks that step, by a second link and unlinking the first name, for anything but a folder. Where the
// target is the source itself in another case, by way of a temporary name. 0, or an errno value: EXDEV for
// another file system, EOPNOTSUPP where no safe way exists.
int RenameWithoutReplacing(int fromFolder, const char* from, int toFolder, const char* to, bool isFolder);

// Makes the symbolic link `to` with the text of the link `from`, in the place of a file or a link that is
// there or, if not allowed to replace, failing with "File already exists".
Status CopyLink(const QByteArray& from, const QByteArray& to, TemporaryFile::Existing existing);

// Moves a file to another file system: copies it with its times, mode and extended attributes to a temporary
// file beside the target, syncs, puts it in place without replacing, then removes the source. A failure
// leaves the source whole and no target. Symbolic links are made anew; special files are refused.
Status MoveAcrossDevices(const QByteArray& from, const QByteArray& to);

} // namespace platform

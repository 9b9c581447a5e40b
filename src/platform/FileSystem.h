// SPDX-License-Identifier: MIT
//
// FileSystem: the file operations of a run. Names are given as a folder and a name in it, since a run asks
// for many files of one folder: the last folder stays opened and everything goes through its descriptor,
// which is much cheaper than whole paths. Make one for a run and drop it at the end, so that a folder moved
// by others between two runs is looked up anew.
//
// What always holds:
//  1. No operation here overwrites an existing file, folder or link. A dangling link is an
//     existing target too.
//  2. A link is moved itself, never what it points at.
//  3. Wildcard characters are plain characters.
//  4. After a failure the source stands where it stood, whole.
//
// `folder` ends with the path separator, or is empty for the current directory. The full name is always
// folder & name; a name that holds a separator itself is passed on as such a full name. Texts are converted
// as NameBytes.h tells.
#pragma once

#include "platform/Result.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace platform {

// The system's separator of path components.
inline constexpr QChar PathSeparator = u'/';

// What one look at a file yields.
struct FileInfo
{
    bool isFolder = false; // a link counts as what it points at; a dangling link as a file
    qint64 size = 0;       // bytes
    qint64 modified = 0;   // seconds since 1970-01-01T00:00:00Z, as the file system holds it
};

class FileSystem
{
public:
    FileSystem() = default;
    ~FileSystem();
    FileSystem(const FileSystem&) = delete;
    FileSystem& operator=(const FileSystem&) = delete;

    // Looks at folder & name. Empty when there is nothing of that name or it can't be reached.
    std::optional<FileInfo> GetInfo(const QString& folder, const QString& name);

    // True for a file or a link that is no folder; false for folders and for what isn't there.
    bool FileExists(const QString& folder, const QString& name);

    // Renames folder & name to folder & newName in one atomic step that refuses an existing target. Fails
    // with "File already exists", "File not found", "Path not found", "Permission denied", "Disk full", else
    // with the system's own text. An empty newName names the folder itself and so fails as an existing
    // target; an empty name is a missing source. Where newName leads to another file system, the file is
    // copied to a temporary name beside the target, synced, renamed there without replacing, and only then is
    // the source removed; half a failure leaves the source whole and no target. Where the file system takes
    // "a.JPG" and "a.jpg" for one name, a change of case goes by way of a temporary name.
    // What kind of entry the name is isn't looked up: a row's type decides which of the two is called.
    Status MoveFile(const QString& folder, const QString& name, const QString& newName);

    // The same for a folder with all that is in it; a missing source is "Path not found". It refuses to move
    // to another file system, and on a file system that can't refuse an existing target atomically.
    Status MoveFolder(const QString& folder, const QString& name, const QString& newName);

    // Makes a file writable for its owner and takes the hidden, system and archive marks off; at a link, of
    // what it points at. Fails with the descriptions above.
    Status SetNormalAttributes(const QString& folder, const QString& name);

private:
    enum class EntryKind { File, Folder };

    // The descriptor to pass to the *at calls for `folder`: opened on first use, kept until another folder is
    // asked for. AT_FDCWD for the empty folder; -1 (errno set) if it can't be opened.
    int DescriptorOf(const QString& folder);

    void CloseFolder();

    Status Move(const QString& folder, const QString& name, const QString& newName, EntryKind kind);

    QString openFolder_;
    int openDescriptor_ = -1;
};

// Copies the file `from` to `to`, replacing a file or a link that is there; the copy is written whole or not
// at all and takes permissions, times and extended attributes over. A file onto itself fails with "File
// already exists". Paths are complete.
Status CopyFile(const QString& from, const QString& to);

// Copies the folder `from` with all that is in it to `to`; links in it are made anew. A folder that isn't
// there yet comes into being whole or not at all. In one that is there files are replaced, one after the
// other, up to the first that fails. A folder can't be copied onto itself or into itself ("Path not found").
Status CopyFolder(const QString& from, const QString& to);

// Makes the folder `path` and every missing one above it. Success if it is there already; "File already
// exists" if something else is.
Status CreateFolder(const QString& path);

// From now on a write beyond the size that the user's files may have fails like one on a full disk; without
// this it ends the process. For the whole process, at its start.
void LetOversizedWritesFail();

} // namespace platform

// SPDX-License-Identifier: MIT
#include "platform/FileSystem.h"

#include "platform/Attributes.h"
#include "platform/FileCopy.h"
#include "platform/NameBytes.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace platform {

namespace {

// Where a name lives, in the form that the *at calls take.
struct Place
{
    int folder = AT_FDCWD;
    QByteArray name;
};

// A name that can be looked up in its folder. One that leads elsewhere, or an empty one, is taken as a full
// name.
bool IsPlain(const QString& name)
{
    return !name.isEmpty() && !name.contains(PathSeparator);
}

bool Exists(const Place& place)
{
    struct stat info
    {};
    return ::fstatat(place.folder, place.name.constData(), &info, AT_SYMLINK_NOFOLLOW) == 0;
}

// The failure of a source that isn't there.
Status Missing(const Place& from, bool isFolder)
{
    return isFolder ? FailureOf(ENOENT) : FailureAt(from.name, ENOENT);
}

// The text for an errno value of a failed move.
Status FailureOfMove(int error, const Place& from, bool isFolder)
{
    switch (error) {
    case ENOENT:
        return Exists(from) ? FailureOf(error) : Missing(from, isFolder);
    case EXDEV:
        if (!Exists(from)) {
            return Missing(from, isFolder);
        }
        return Status::Failure(QStringLiteral("This folder can't be moved there"));
    case EOPNOTSUPP:
        return Status::Failure(
            QStringLiteral("This file system can't rename without the risk of overwriting"));
    default:
        return FailureOf(error);
    }
}

} // namespace

FileSystem::~FileSystem()
{
    CloseFolder();
}

void FileSystem::CloseFolder()
{
    if (openDescriptor_ >= 0) {
        ::close(std::exchange(openDescriptor_, -1));
    }
}

int FileSystem::DescriptorOf(const QString& folder)
{
    if (openDescriptor_ >= 0 && folder == openFolder_) {
        return openDescriptor_;
    }
    CloseFolder();
    if (folder.isEmpty()) {
        return AT_FDCWD;
    }
    const auto path = ToPath(folder);
    if (!path) {
        errno = ENOENT;
        return -1;
    }
    openDescriptor_ = ::open(path->constData(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    openFolder_ = folder;
    return openDescriptor_;
}

std::optional<FileInfo> FileSystem::GetInfo(const QString& folder, const QString& name)
{
    const bool isPlain = IsPlain(name);
    const auto bytes = ToPath(isPlain ? name : folder + name);
    const int descriptor = isPlain ? DescriptorOf(folder) : AT_FDCWD;
    struct stat info
    {};
    if (!bytes || descriptor == -1 ||
        (::fstatat(descriptor, bytes->constData(), &info, 0) != 0 &&
         ::fstatat(descriptor, bytes->constData(), &info, AT_SYMLINK_NOFOLLOW) != 0)) {
        return std::nullopt;
    }
    return FileInfo{S_ISDIR(info.st_mode), info.st_size, info.st_mtim.tv_sec};
}

bool FileSystem::FileExists(const QString& folder, const QString& name)
{
    const auto info = GetInfo(folder, name);
    return info && !info->isFolder;
}

Status FileSystem::MoveFile(const QString& folder, const QString& name, const QString& newName)
{
    return Move(folder, name, newName, EntryKind::File);
}

Status FileSystem::MoveFolder(const QString& folder, const QString& name, const QString& newName)
{
    return Move(folder, name, newName, EntryKind::Folder);
}

Status FileSystem::Move(const QString& folder, const QString& name, const QString& newName, EntryKind kind)
{
    const bool isFolder = kind == EntryKind::Folder;
    const bool arePlain = IsPlain(name) && IsPlain(newName);
    const auto from = ToPath(arePlain ? name : folder + name);
    const auto to = ToPath(arePlain ? newName : folder + newName);
    if (!from || name.isEmpty()) {
        return Missing({}, isFolder); // an empty name would be the folder itself
    }
    if (!to) {
        return FailureOf(EINVAL);
    }
    const int folderDescriptor = DescriptorOf(folder);
    if (folderDescriptor == -1) {
        return FailureOf(errno);
    }
    const int descriptor = arePlain ? folderDescriptor : AT_FDCWD;
    if (newName.isEmpty()) {
        // The target is the folder itself, which is there.
        const Place source{AT_FDCWD, *from};
        return Exists(source) ? FailureOf(EEXIST) : Missing(source, isFolder);
    }
    const int error =
        RenameWithoutReplacing(descriptor, from->constData(), descriptor, to->constData(), isFolder);
    if (error == 0) {
        if (!arePlain) {
            CloseFolder(); // what moved may have been a folder above it
        }
        return {};
    }
    const Place place{descriptor, *from};
    if (error == EXDEV && !isFolder && Exists(place)) {
        return MoveAcrossDevices(ToBytes(folder + name), ToBytes(folder + newName));
    }
    return FailureOfMove(error, place, isFolder);
}

Status FileSystem::SetNormalAttributes(const QString& folder, const QString& name)
{
    return SetAttr(folder + name, 0);
}

Status CreateFolder(const QString& path)
{
    const auto bytes = ToPath(path);
    if (!bytes) {
        return FailureOf(EINVAL);
    }
    for (qsizetype end = bytes->indexOf('/', 1); end >= 0; end = bytes->indexOf('/', end + 1)) {
        if (::mkdir(bytes->left(end).constData(), 0777) != 0 && errno != EEXIST) {
            return FailureOf(errno);
        }
    }
    if (!bytes->endsWith('/') && ::mkdir(bytes->constData(), 0777) != 0 && errno != EEXIST) {
        return FailureOf(errno);
    }
    struct stat info
    {};
    if (::stat(bytes->constData(), &info) != 0 && errno != ENOTDIR) {
        return FailureOf(errno);
    }
    return S_ISDIR(info.st_mode) ? Status() : FailureOf(EEXIST);
}

void LetOversizedWritesFail()
{
    std::signal(SIGXFSZ, SIG_IGN);
}

} // namespace platform

// SPDX-License-Identifier: MIT
#include "platform/FileSystem.h"

#include "platform/FileCopy.h"
#include "platform/NameBytes.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace platform {

namespace {

// Where a name lives, in the form that the *at calls take.
struct Place
{
    int folder = AT_FDCWD;
    QByteArray name;
};

// The bytes of `text`; not a name at all if it holds a NUL, at which the system would cut it.
std::optional<QByteArray> NameOf(const QString& text)
{
    QByteArray bytes = ToBytes(text);
    return bytes.contains('\0') ? std::nullopt : std::optional(std::move(bytes));
}

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

Status NotFound(bool isFolder)
{
    return Status::Failure(isFolder ? QStringLiteral("Path not found") : QStringLiteral("File not found"));
}

// The text for an errno value of a failed move.
Status FailureOfMove(int error, const Place& from, bool isFolder)
{
    switch (error) {
    case ENOENT:
        return Exists(from) ? FailureOf(error) : NotFound(isFolder);
    case EXDEV:
        return Status::Failure(QStringLiteral("A folder can't be moved to another disk"));
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
    if (openDescriptor_ >= 0) {
        ::close(openDescriptor_);
    }
}

int FileSystem::DescriptorOf(const QString& folder)
{
    if (folder.isEmpty()) {
        return AT_FDCWD;
    }
    if (openDescriptor_ >= 0 && folder == openFolder_) {
        return openDescriptor_;
    }
    if (openDescriptor_ >= 0) {
        ::close(openDescriptor_);
        openDescriptor_ = -1;
    }
    const auto path = NameOf(folder);
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
    const auto bytes = NameOf(isPlain ? name : folder + name);
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
    const auto from = NameOf(arePlain ? name : folder + name);
    const auto to = NameOf(arePlain ? newName : folder + newName);
    if (!from) {
        return NotFound(isFolder);
    }
    if (!to) {
        return FailureOf(EINVAL);
    }
    const int descriptor = arePlain ? DescriptorOf(folder) : AT_FDCWD;
    if (descriptor == -1) {
        return FailureOf(errno);
    }
    if (newName.isEmpty()) {
        // The target is the folder itself, which is there.
        return Exists({AT_FDCWD, *from}) ? FailureOf(EEXIST) : NotFound(isFolder);
    }
    const int error =
        RenameWithoutReplacing(descriptor, from->constData(), descriptor, to->constData(), isFolder);
    if (error == 0) {
        return {};
    }
    if (error == EXDEV && !isFolder) {
        return MoveAcrossDevices(ToBytes(folder + name), ToBytes(folder + newName));
    }
    return FailureOfMove(error, {descriptor, *from}, isFolder);
}

Status FileSystem::SetNormalAttributes(const QString& folder, const QString& name)
{
    const auto path = NameOf(folder + name);
    struct stat info
    {};
    if (!path || ::stat(path->constData(), &info) != 0) {
        return NotFound(false);
    }
    if ((info.st_mode & S_IWUSR) == 0 && ::chmod(path->constData(), (info.st_mode & 07777) | S_IWUSR) != 0) {
        return FailureOf(errno);
    }
    if (::removexattr(path->constData(), "user.DOSATTRIB") != 0 && errno != ENODATA && errno != EOPNOTSUPP) {
        return FailureOf(errno);
    }
    return {};
}

Status CreateFolder(const QString& path)
{
    const auto bytes = NameOf(path);
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
    return {};
}

} // namespace platform

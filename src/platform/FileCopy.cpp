// SPDX-License-Identifier: MIT
#include "platform/FileCopy.h"

#include "platform/FileSystem.h"
#include "platform/NameBytes.h"

#include <QList>
#include <QString>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace platform {

namespace {

bool CopyContent(const Descriptor& from, const Descriptor& to)
{
    std::array<char, 256 * 1024> block;
    for (;;) {
        const ssize_t count = ::read(from.Number(), block.data(), block.size());
        if (count == 0) {
            return true;
        }
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0 || !WriteAll(to, {block.data(), count})) {
            return false;
        }
    }
}

// Carries extended attributes over as far as the target takes them.
void CopyAttributes(const Descriptor& from, const Descriptor& to)
{
    const ssize_t size = ::flistxattr(from.Number(), nullptr, 0);
    if (size <= 0) {
        return;
    }
    QByteArray names(size, '\0');
    const ssize_t listed = ::flistxattr(from.Number(), names.data(), static_cast<std::size_t>(names.size()));
    const QByteArray valid = names.left(std::max<ssize_t>(0, listed));
    for (const QByteArray& name : valid.split('\0')) {
        QByteArray value(64 * 1024, '\0'); // the system's limit
        const ssize_t length = name.isEmpty() ? -1
                                              : ::fgetxattr(from.Number(), name.constData(), value.data(),
                                                            static_cast<std::size_t>(value.size()));
        if (length >= 0) {
            ::fsetxattr(to.Number(), name.constData(), value.constData(), static_cast<std::size_t>(length),
                        0);
        }
    }
}

// Opens a file to be copied and looks at it. Refuses folders and special files, without waiting for a pipe.
Status OpenSource(const QByteArray& path, int flags, Descriptor& source, struct stat& info)
{
    source = Descriptor(::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | flags));
    if (!source.IsOpen() || ::fstat(source.Number(), &info) != 0) {
        return FailureOf(errno);
    }
    return S_ISREG(info.st_mode) ? Status() : FailureOf(S_ISDIR(info.st_mode) ? EISDIR : EINVAL);
}

// Copies an opened file to `to`, whole or not at all, with extended attributes, times and mode. The owner is
// taken over where `keepsOwner` is set and the system allows it.
Status CopyWhole(const Descriptor& source, const struct stat& info, const QByteArray& to, bool keepsOwner,
                 TemporaryFile::Existing existing)
{
    TemporaryFile copy(to);
    if (Status made = copy.Create(S_IRUSR | S_IWUSR); !made.IsOk()) {
        return made;
    }
    if (!CopyContent(source, copy.File())) {
        return FailureOf(errno);
    }
    // Another owner can't be kept by everyone, and without it a file mustn't run as its owner. What follows
    // comes after it since changing the owner drops parts of it.
    const bool isOwnerKept = keepsOwner && ::fchown(copy.File().Number(), info.st_uid, info.st_gid) == 0;
    CopyAttributes(source, copy.File());
    const mode_t mode = info.st_mode & (isOwnerKept ? 07777 : 01777);
    const std::array<timespec, 2> times{info.st_atim, info.st_mtim};
    if (::fchmod(copy.File().Number(), mode) != 0 || ::futimens(copy.File().Number(), times.data()) != 0) {
        return FailureOf(errno);
    }
    return copy.MoveIntoPlace(existing);
}

Status CopyAcross(const QByteArray& from, const QByteArray& to)
{
    Descriptor source;
    struct stat info
    {};
    Status opened = OpenSource(from, O_NOFOLLOW, source, info);
    return opened.IsOk() ? CopyWhole(source, info, to, true, TemporaryFile::Existing::Refuse) : opened;
}

// The folder part of a path, with its separator; empty for the current directory.
QByteArray FolderOf(const QByteArray& path)
{
    return path.left(path.lastIndexOf('/') + 1);
}

// True if both names are the same file because the file system regards no case. A file with several links is
// taken for two.
bool IsSameInOtherCase(int fromFolder, const char* from, int toFolder, const char* to)
{
    struct stat source
    {};
    struct stat target
    {};
    return std::strcmp(from, to) != 0 && FromBytes(from).compare(FromBytes(to), Qt::CaseInsensitive) == 0 &&
           ::fstatat(fromFolder, from, &source, AT_SYMLINK_NOFOLLOW) == 0 &&
           ::fstatat(toFolder, to, &target, AT_SYMLINK_NOFOLLOW) == 0 && source.st_dev == target.st_dev &&
           source.st_ino == target.st_ino && (S_ISDIR(source.st_mode) || source.st_nlink == 1);
}

// Changes the case of a name in two steps, neither of which overwrites. A failure leaves the old name.
int RenameCase(int fromFolder, const char* from, int toFolder, const char* to, bool isFolder)
{
    const QByteArray between = FolderOf(to) + ".quillmark-" + QByteArray::number(::getpid()) + "-case.tmp";
    int error = RenameWithoutReplacing(fromFolder, from, toFolder, between.constData(), isFolder);
    if (error == 0) {
        error = RenameWithoutReplacing(toFolder, between.constData(), toFolder, to, isFolder);
        if (error != 0) {
            RenameWithoutReplacing(toFolder, between.constData(), fromFolder, from, isFolder);
        }
    }
    return error;
}

// The way out for file systems that know no renaming without replacing.
int LinkAndUnlink(int fromFolder, const char* from, int toFolder, const char* to)
{
    if (::linkat(fromFolder, from, toFolder, to, 0) != 0) {
        return errno == EPERM || errno == ENOSYS ? EOPNOTSUPP : errno;
    }
    if (::unlinkat(fromFolder, from, 0) != 0) {
        const int unlinkError = errno;
        ::unlinkat(toFolder, to, 0);
        return unlinkError;
    }
    return 0;
}

} // namespace

TemporaryFile::~TemporaryFile()
{
    if (!path_.isEmpty()) {
        ::unlink(path_.constData());
    }
}

Status TemporaryFile::Create(mode_t mode)
{
    const QByteArray folder = FolderOf(target_);
    for (int attempt = 0; attempt < 1000; ++attempt) {
        const QByteArray path = folder + ".quillmark-" + QByteArray::number(::getpid()) + '-' +
                                QByteArray::number(attempt) + ".tmp";
        file_ = Descriptor(::open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
        if (file_.IsOpen()) {
            path_ = path;
            return {};
        }
        if (errno != EEXIST) {
            break;
        }
    }
    return FailureOf(errno);
}

Status TemporaryFile::MoveIntoPlace(Existing existing)
{
    if (::fsync(file_.Number()) != 0 || !file_.Close()) {
        return FailureOf(errno);
    }
    int error = 0;
    struct stat present
    {};
    if (existing == Existing::Refuse) {
        error = RenameWithoutReplacing(AT_FDCWD, path_.constData(), AT_FDCWD, target_.constData(), false);
    } else if (::lstat(target_.constData(), &present) == 0 && !S_ISREG(present.st_mode) &&
               !S_ISLNK(present.st_mode)) {
        error = S_ISDIR(present.st_mode) ? EISDIR : EACCES;
    } else if (::rename(path_.constData(), target_.constData()) != 0) {
        error = errno;
    }
    if (error != 0) {
        return FailureOf(error);
    }
    path_.clear();
    return {};
}

void SyncFolderOf(const QByteArray& path)
{
    const QByteArray folder = FolderOf(path) + '.';
    const Descriptor opened(::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened.IsOpen()) {
        ::fsync(opened.Number());
    }
}

int RenameWithoutReplacing(int fromFolder, const char* from, int toFolder, const char* to, bool isFolder)
{
    if (::renameat2(fromFolder, from, toFolder, to, RENAME_NOREPLACE) == 0) {
        return 0;
    }
    const int error = errno;
    if (error == EEXIST && IsSameInOtherCase(fromFolder, from, toFolder, to)) {
        return RenameCase(fromFolder, from, toFolder, to, isFolder);
    }
    const bool lacksTheStep = error == EINVAL || error == ENOSYS || error == EOPNOTSUPP;
    if (!lacksTheStep) {
        return error;
    }
    // A folder can't be moved into itself on any file system.
    if (error == EINVAL && QByteArrayView(to).startsWith(QByteArray(from) + '/')) {
        return error;
    }
    return isFolder ? EOPNOTSUPP : LinkAndUnlink(fromFolder, from, toFolder, to);
}

Status CopyLink(const QByteArray& from, const QByteArray& to, TemporaryFile::Existing existing)
{
    std::array<char, PATH_MAX> pointsAt{};
    if (::readlink(from.constData(), pointsAt.data(), pointsAt.size() - 1) < 0) {
        return FailureOf(errno);
    }
    if (::symlink(pointsAt.data(), to.constData()) == 0) {
        return {};
    }
    if (errno != EEXIST || existing == TemporaryFile::Existing::Refuse) {
        return FailureOf(errno);
    }
    const QByteArray made = FolderOf(to) + ".quillmark-" + QByteArray::number(::getpid()) + "-link.tmp";
    if (::symlink(pointsAt.data(), made.constData()) != 0) {
        return FailureOf(errno);
    }
    if (::rename(made.constData(), to.constData()) != 0) {
        const int error = errno;
        ::unlink(made.constData());
        return FailureOf(error);
    }
    return {};
}

Status MoveAcrossDevices(const QByteArray& from, const QByteArray& to)
{
    struct stat info
    {};
    if (::lstat(from.constData(), &info) != 0) {
        return FailureOf(errno);
    }
    if (!S_ISREG(info.st_mode) && !S_ISLNK(info.st_mode)) {
        return Status::Failure(QStringLiteral("Only files can be moved to another disk"));
    }
    struct stat present
    {};
    if (::lstat(to.constData(), &present) == 0) {
        return FailureOf(EEXIST); // told before a long copy
    }
    if (Status moved = S_ISLNK(info.st_mode) ? CopyLink(from, to, TemporaryFile::Existing::Refuse)
                                             : CopyAcross(from, to);
        !moved.IsOk()) {
        return moved;
    }
    SyncFolderOf(to);
    if (::unlink(from.constData()) != 0) {
        const int error = errno;
        ::unlink(to.constData());
        return FailureOf(error);
    }
    return {};
}

Status CopyFile(const QString& from, const QString& to)
{
    const auto fromPath = ToPath(from);
    const auto toPath = ToPath(to);
    if (!fromPath || !toPath) {
        return FailureOf(EINVAL);
    }
    Descriptor source;
    struct stat info
    {};
    if (Status opened = OpenSource(*fromPath, 0, source, info); !opened.IsOk()) {
        return opened;
    }
    struct stat present
    {};
    if (::stat(toPath->constData(), &present) == 0 && present.st_dev == info.st_dev &&
        present.st_ino == info.st_ino) {
        return FailureOf(EEXIST); // the file itself, perhaps through a link
    }
    return CopyWhole(source, info, *toPath, false, TemporaryFile::Existing::Replace);
}

} // namespace platform

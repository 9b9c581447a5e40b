// SPDX-License-Identifier: MIT
#include "platform/FileCopy.h"

#include "platform/FileSystem.h"
#include "platform/NameBytes.h"

#include <QList>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
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

Status CopyAcross(const QByteArray& from, const QByteArray& to, const struct stat& info)
{
    const Descriptor source(::open(from.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    if (!source.IsOpen()) {
        return FailureOf(errno);
    }
    TemporaryFile copy(to);
    if (Status made = copy.Create(S_IRUSR | S_IWUSR); !made.IsOk()) {
        return made;
    }
    if (!CopyContent(source, copy.File())) {
        return FailureOf(errno);
    }
    CopyAttributes(source, copy.File());
    // Another owner can't be kept by everyone; the mode comes after it since changing the owner drops parts
    // of it.
    static_cast<void>(::fchown(copy.File().Number(), info.st_uid, info.st_gid) == 0);
    const std::array<timespec, 2> times{info.st_atim, info.st_mtim};
    const bool isComplete = ::fchmod(copy.File().Number(), info.st_mode & 07777) == 0 &&
                            ::futimens(copy.File().Number(), times.data()) == 0 &&
                            ::fsync(copy.File().Number()) == 0;
    return isComplete ? copy.MoveIntoPlace(TemporaryFile::Existing::Refuse) : FailureOf(errno);
}

Status LinkAcross(const QByteArray& from, const QByteArray& to)
{
    std::array<char, PATH_MAX> pointsAt{};
    if (::readlink(from.constData(), pointsAt.data(), pointsAt.size() - 1) < 0 ||
        ::symlink(pointsAt.data(), to.constData()) != 0) {
        return FailureOf(errno);
    }
    return {};
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
    const QByteArray folder = target_.left(target_.lastIndexOf('/') + 1);
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
    if (!file_.Close()) {
        return FailureOf(errno);
    }
    int error = 0;
    if (existing == Existing::Refuse) {
        error = RenameWithoutReplacing(AT_FDCWD, path_.constData(), AT_FDCWD, target_.constData(), false);
    } else if (::rename(path_.constData(), target_.constData()) != 0) {
        error = errno;
    }
    if (error != 0) {
        return FailureOf(error);
    }
    path_.clear();
    return {};
}

int RenameWithoutReplacing(int fromFolder, const char* from, int toFolder, const char* to, bool isFolder)
{
    if (::renameat2(fromFolder, from, toFolder, to, RENAME_NOREPLACE) == 0) {
        return 0;
    }
    const int error = errno;
    const bool lacksTheStep = error == EINVAL || error == ENOSYS || error == EOPNOTSUPP;
    if (!lacksTheStep) {
        return error;
    }
    if (isFolder) {
        return error == EINVAL ? error : EOPNOTSUPP;
    }
    if (::linkat(fromFolder, from, toFolder, to, 0) != 0) {
        return errno == EPERM ? EOPNOTSUPP : errno;
    }
    if (::unlinkat(fromFolder, from, 0) != 0) {
        const int unlinkError = errno;
        ::unlinkat(toFolder, to, 0);
        return unlinkError;
    }
    return 0;
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
    if (Status moved = S_ISLNK(info.st_mode) ? LinkAcross(from, to) : CopyAcross(from, to, info);
        !moved.IsOk()) {
        return moved;
    }
    if (::unlink(from.constData()) != 0) {
        const int error = errno;
        ::unlink(to.constData());
        return FailureOf(error);
    }
    return {};
}

Status CopyFile(const QString& from, const QString& to)
{
    const Descriptor source(::open(ToBytes(from).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!source.IsOpen()) {
        return FailureOf(errno);
    }
    TemporaryFile copy(ToBytes(to));
    if (Status made = copy.Create(0666); !made.IsOk()) {
        return made;
    }
    return CopyContent(source, copy.File()) ? copy.MoveIntoPlace(TemporaryFile::Existing::Replace)
                                            : FailureOf(errno);
}

} // namespace platform

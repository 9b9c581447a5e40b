// SPDX-License-Identifier: MIT
#include "platform/Descriptor.h"

#include <cerrno>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace platform {

bool Descriptor::Close()
{
    const int number = std::exchange(number_, -1);
    return number < 0 || ::close(number) == 0;
}

bool WriteAll(const Descriptor& to, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t written = ::write(to.Number(), bytes.data(), static_cast<std::size_t>(bytes.size()));
        if (written < 0 && errno != EINTR) {
            return false;
        }
        if (written == 0) {
            errno = EIO; // or this would never end
            return false;
        }
        bytes = bytes.sliced(written < 0 ? 0 : written);
    }
    return true;
}

Status FailureOf(int error)
{
    switch (error) {
    case EEXIST:
    case ENOTEMPTY:
        return Status::Failure(QStringLiteral("File already exists"));
    case ENOENT:
    case ENOTDIR:
        return Status::Failure(QStringLiteral("Path not found"));
    case EACCES:
    case EPERM:
    case EROFS:
        return Status::Failure(QStringLiteral("Permission denied"));
    case ENOSPC:
    case EDQUOT:
        return Status::Failure(QStringLiteral("Disk full"));
    default:
        return Status::Failure(QString::fromStdString(std::generic_category().message(error)));
    }
}

Status FailureAt(const QByteArray& path, int error)
{
    const QByteArray folder = path.left(path.lastIndexOf('/') + 1);
    struct stat info
    {};
    const bool isFolderThere = folder.isEmpty() || ::stat(folder.constData(), &info) == 0;
    return error == ENOENT && isFolderThere ? Status::Failure(QStringLiteral("File not found"))
                                            : FailureOf(error);
}

} // namespace platform

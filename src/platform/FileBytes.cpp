// SPDX-License-Identifier: MIT
#include "platform/FileBytes.h"

#include "platform/NameBytes.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

std::optional<FileBytes> FileBytes::Open(const QString& path)
{
    const auto bytes = ToPath(path);
    Descriptor file(bytes ? ::open(bytes->constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK) : -1);
    struct stat info
    {};
    if (!file.IsOpen() || ::fstat(file.Number(), &info) != 0 || !S_ISREG(info.st_mode)) {
        return std::nullopt;
    }
    return FileBytes(std::move(file), info.st_size, {info.st_atim, info.st_mtim});
}

QByteArray FileBytes::Read(qint64 offset, qint64 count) const
{
    const qint64 wanted = std::min(count, size_ - offset);
    if (offset < 0 || wanted <= 0) {
        return {};
    }
    QByteArray content(wanted, Qt::Uninitialized);
    qint64 filled = 0;
    while (filled < wanted) {
        const ssize_t read = ::pread(file_.Number(), content.data() + filled,
                                     static_cast<std::size_t>(wanted - filled), offset + filled);
        if (read == 0 || (read < 0 && errno != EINTR)) {
            break; // it has become shorter, or the disk fails
        }
        filled += std::max<ssize_t>(0, read);
    }
    content.truncate(filled);
    return content;
}

QByteArray ReadHead(const QString& path, qint64 count)
{
    const auto file = FileBytes::Open(path);
    return file ? file->Read(0, count) : QByteArray();
}

} // namespace platform

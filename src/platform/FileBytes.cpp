// SPDX-License-Identifier: MIT
#include "platform/FileBytes.h"

#include "platform/NameBytes.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

namespace {

// Fills `content` from an offset on. Gives how many bytes there were.
std::size_t ReadAt(const Descriptor& file, qint64 offset, std::span<char> content)
{
    std::size_t filled = 0;
    while (filled < content.size()) {
        const ssize_t read = ::pread(file.Number(), content.data() + filled, content.size() - filled,
                                     offset + static_cast<qint64>(filled));
        if (read == 0 || (read < 0 && errno != EINTR)) {
            break; // the file ends, or the disk fails
        }
        filled += static_cast<std::size_t>(std::max<ssize_t>(0, read));
    }
    return filled;
}

} // namespace

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
    content.truncate(static_cast<qsizetype>(
        ReadAt(file_, offset, {content.data(), static_cast<std::size_t>(content.size())})));
    hasFailed_ = hasFailed_ || content.size() < wanted;
    return content;
}

// Without asking what kind of file it is: a pipe or a terminal can't be read at an offset, and nothing
// blocks.
// It isn't asked what kind of file this is: a pipe or a terminal can't be read at an offset, and nothing
// blocks.
std::size_t ReadHead(const QString& path, std::span<char> head)
{
    const auto bytes = ToPath(path);
    const Descriptor file(bytes ? ::open(bytes->constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK) : -1);
    return file.IsOpen() ? ReadAt(file, 0, head) : 0;
}

} // namespace platform

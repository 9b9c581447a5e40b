// SPDX-License-Identifier: MIT
//
// Bytes of a file, read by native calls. Paths are complete and converted as NameBytes.h tells. Only plain
// files are opened: a pipe or a device would block or never end.
#pragma once

#include "platform/Descriptor.h"

#include <QByteArray>
#include <QString>

#include <ctime>
#include <optional>
#include <span>

namespace platform {

// Reads the first bytes of a file, as many as there is room for; it is opened once. Gives how many there
// were: 0 if it can't be read.
std::size_t ReadHead(const QString& path, std::span<char> head);

// When a file was used and changed last.
struct FileTimes
{
    timespec accessed{};
    timespec changed{};
};

// A file that is open for reading at any place.
class FileBytes
{
public:
    // Nothing if there is no plain file, or it can't be opened.
    static std::optional<FileBytes> Open(const QString& path);

    // Number of bytes when it was opened.
    qint64 Size() const { return size_; }

    // As they were when it was opened; reading may change the first.
    const FileTimes& Times() const { return times_; }

    // Whether a read has given less than there was when the file was opened: the disk fails, or the file has
    // become shorter.
    bool HasFailed() const { return hasFailed_; }

    // `count` bytes from `offset`, counted from 0, on; fewer where the file ends, and none if it can't be
    // read.
    QByteArray Read(qint64 offset, qint64 count) const;

private:
    FileBytes(Descriptor file, qint64 size, const FileTimes& times)
        : file_(std::move(file)), size_(size), times_(times)
    {}

    Descriptor file_;
    qint64 size_ = 0;
    FileTimes times_;
    mutable bool hasFailed_ = false;
};

} // namespace platform

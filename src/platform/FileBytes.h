// SPDX-License-Identifier: MIT
//
// Bytes of a file, read by native calls. Paths are complete and converted as NameBytes.h tells. Only plain
// files are opened: a pipe or a device would block or never end.
#pragma once

#include "platform/Descriptor.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace platform {

// The first `count` bytes of a file, or all if it has fewer; it is opened once. Empty if it can't be read.
QByteArray ReadHead(const QString& path, qint64 count);

// A file that is open for reading at any place.
class FileBytes
{
public:
    // Nothing if there is no plain file, or it can't be opened.
    static std::optional<FileBytes> Open(const QString& path);

    // Number of bytes when it was opened.
    qint64 Size() const { return size_; }

    // `count` bytes from `offset`, counted from 0, on; fewer where the file ends, and none if it can't be
    // read.
    QByteArray Read(qint64 offset, qint64 count) const;

private:
    FileBytes(Descriptor file, qint64 size) : file_(std::move(file)), size_(size) {}

    Descriptor file_;
    qint64 size_ = 0;
};

} // namespace platform

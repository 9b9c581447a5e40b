// SPDX-License-Identifier: MIT
#include "platform/ProgramFile.h"

#include "platform/Descriptor.h"
#include "platform/NameBytes.h"

#include <QByteArray>

#include <fcntl.h>
#include <unistd.h>

namespace platform {

namespace {

// `size` bytes at `offset`; fewer at the file's end.
QByteArray BytesAt(const Descriptor& file, off_t offset, qsizetype size)
{
    QByteArray bytes(size, '\0');
    const ssize_t count = ::pread(file.Number(), bytes.data(), static_cast<std::size_t>(size), offset);
    return bytes.left(count < 0 ? 0 : count);
}

// A little-endian number of `size` bytes; 0 where the bytes end before it.
quint32 NumberAt(const QByteArray& bytes, qsizetype offset, int size)
{
    quint32 number = 0;
    for (qsizetype at = offset + size - 1; at >= offset; --at) {
        number = number << 8U | (at < bytes.size() ? static_cast<quint8>(bytes.at(at)) : 0U);
    }
    return number;
}

} // namespace

int WindowsVersionOf(const QString& path)
{
    const auto bytes = ToPath(path);
    const Descriptor file(bytes ? ::open(bytes->constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK) : -1);
    constexpr qsizetype dosHeaderSize = 64;
    const QByteArray dosHeader = BytesAt(file, 0, dosHeaderSize);
    if (!dosHeader.startsWith("MZ") || dosHeader.size() < dosHeaderSize) {
        return 0;
    }
    const QByteArray header = BytesAt(file, static_cast<off_t>(NumberAt(dosHeader, 60, 4)), 128);
    quint32 version = 0;
    if (header.startsWith(QByteArray("PE\0\0", 4))) {
        // The subsystem's version, at 48 in the optional header behind signature (4) and file header (20).
        version = NumberAt(header, 72, 2) << 8U | (NumberAt(header, 74, 2) & 0xFFU);
    } else if (header.startsWith("NE")) {
        version = NumberAt(header, 62, 2);
    }
    return static_cast<int>(version & 0xFFFFU);
}

} // namespace platform

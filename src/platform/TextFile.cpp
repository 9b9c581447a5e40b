// SPDX-License-Identifier: MIT
#include "platform/TextFile.h"

#include "platform/FileCopy.h"
#include "platform/NameBytes.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

namespace {

constexpr int BufferSize = 64 * 1024;

const QByteArray LineEnd = QByteArrayLiteral("\r\n");
constexpr QByteArrayView ByteOrderMark = "\xEF\xBB\xBF";

// Content of a plain file of at most `maximumSize` bytes; empty optional for anything else. Never blocks on a
// pipe or device.
std::optional<QByteArray> ReadAll(const QString& path, qint64 maximumSize)
{
    const auto bytes = ToPath(path);
    const Descriptor file(bytes ? ::open(bytes->constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK) : -1);
    struct stat info
    {};
    if (!file.IsOpen() || ::fstat(file.Number(), &info) != 0 || !S_ISREG(info.st_mode) ||
        info.st_size > maximumSize) {
        return std::nullopt;
    }
    QByteArray content;
    std::array<char, BufferSize> block;
    for (;;) {
        const ssize_t count = ::read(file.Number(), block.data(), block.size());
        if (count == 0) {
            return content;
        }
        if (count < 0 && errno != EINTR) {
            return std::nullopt;
        }
        content.append(block.data(), std::max<ssize_t>(0, count));
        if (content.size() > maximumSize) {
            return std::nullopt;
        }
    }
}

QString Decode(const QByteArray& bytes, Fallback fallback)
{
    QString text = FromBytes(bytes);
    // Lone escapes are all that FromBytes makes of bytes that are no valid UTF-8; any such byte tells the
    // encoding.
    const bool isUtf8 = text.isValidUtf16();
    return isUtf8 || fallback == Fallback::NameBytes ? text : FromWindows1252(bytes);
}

// The file that a link at `path` leads to; `path` itself if there is nothing or no link.
QByteArray ResolveLink(const QByteArray& path)
{
    const std::unique_ptr<char, decltype(&std::free)> resolved(::realpath(path.constData(), nullptr),
                                                               &std::free);
    return resolved ? QByteArray(resolved.get()) : path;
}

// The characters of 0x80 to 0x9F in Windows-1252; the five that are undefined keep their value.
constexpr char16_t UpperControls[32] = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                        0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                        0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                        0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::optional<char> ByteInWindows1252(QChar unit)
{
    if (unit.unicode() < 0x80 || (unit.unicode() >= 0xA0 && unit.unicode() <= 0xFF)) {
        return static_cast<char>(unit.unicode());
    }
    const auto* const upper = std::find(std::begin(UpperControls), std::end(UpperControls), unit.unicode());
    return upper != std::end(UpperControls)
               ? std::optional(static_cast<char>(0x80 + (upper - std::begin(UpperControls))))
               : std::nullopt;
}

} // namespace

QString FromWindows1252(QByteArrayView bytes)
{
    QString text = QString::fromLatin1(bytes);
    for (QChar& unit : text) {
        if (unit.unicode() >= 0x80 && unit.unicode() <= 0x9F) {
            unit = UpperControls[unit.unicode() - 0x80];
        }
    }
    return text;
}

std::optional<QByteArray> ToWindows1252(const QString& text)
{
    QByteArray bytes;
    bytes.reserve(text.size());
    for (const QChar unit : text) {
        const auto byte = ByteInWindows1252(unit);
        if (!byte) {
            return std::nullopt;
        }
        bytes += *byte;
    }
    return bytes;
}

QByteArray ToWindows1252OrMark(const QString& text)
{
    QByteArray bytes;
    QChar before;
    for (const QChar unit : text) {
        if (!before.isHighSurrogate() || !unit.isLowSurrogate()) { // but for the second half of a character
            bytes += ByteInWindows1252(unit).value_or('?');
        }
        before = unit;
    }
    return bytes;
}

std::optional<QStringList> ReadLines(const QString& path, Fallback fallback, qint64 maximumSize)
{
    auto bytes = ReadAll(path, maximumSize);
    if (!bytes) {
        return std::nullopt;
    }
    if (bytes->startsWith(ByteOrderMark)) {
        bytes->remove(0, 3);
        fallback = Fallback::NameBytes; // the mark says that it is UTF-8
    }
    if (bytes->isEmpty()) {
        return QStringList();
    }
    QStringList lines = Decode(*bytes, fallback).split(u'\n');
    if (lines.last().isEmpty()) {
        lines.removeLast();
    }
    for (QString& line : lines) {
        if (line.endsWith(u'\r')) {
            line.chop(1);
        }
    }
    return lines;
}

Status WriteDocument(const QString& path, const QStringList& lines)
{
    const auto bytes = ToPath(path);
    if (!bytes) {
        return FailureOf(EINVAL);
    }
    const QByteArray target = ResolveLink(*bytes);
    struct stat existing
    {};
    const bool exists = ::stat(target.constData(), &existing) == 0;
    if (exists && ::faccessat(AT_FDCWD, target.constData(), W_OK, AT_EACCESS) != 0) {
        return FailureOf(errno); // a file that is marked read-only is not to be replaced
    }
    QByteArray content;
    bool isValid = true;
    for (const QString& line : lines) {
        content += ToBytes(line) + LineEnd;
        isValid = isValid && line.isValidUtf16();
    }
    // Or the bytes of a name would be taken for an older encoding, and a text's own mark for the file's.
    if (!isValid || content.startsWith(ByteOrderMark)) {
        content.prepend(ByteOrderMark);
    }
    TemporaryFile file(target);
    if (Status made = file.Create(0666); !made.IsOk()) {
        return made;
    }
    if ((exists && ::fchmod(file.File().Number(), existing.st_mode & 07777) != 0) ||
        !WriteAll(file.File(), content)) {
        return FailureOf(errno);
    }
    return file.MoveIntoPlace(TemporaryFile::Existing::Replace);
}

TextWriter::~TextWriter()
{
    static_cast<void>(Close());
}

Status TextWriter::Create(const QString& path)
{
    static_cast<void>(Close());
    const auto bytes = ToPath(path);
    // Without waiting for a reader of a pipe.
    const int flags = O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NONBLOCK;
    errno = EINVAL;
    file_ = Descriptor(bytes ? ::open(bytes->constData(), flags, 0666) : -1);
    firstFailure_ = file_.IsOpen() ? Status() : FailureOf(errno);
    return firstFailure_;
}

void TextWriter::WriteLine(const QString& line)
{
    if (!file_.IsOpen() || !firstFailure_.IsOk()) {
        return;
    }
    buffer_ += ToBytes(line) + LineEnd;
    if (buffer_.size() >= BufferSize) {
        Flush();
    }
}

void TextWriter::Flush()
{
    if (!WriteAll(file_, buffer_) && firstFailure_.IsOk()) {
        firstFailure_ = FailureOf(errno);
    }
    buffer_.clear();
}

Status TextWriter::Close()
{
    if (file_.IsOpen()) {
        Flush();
        if (!file_.Close() && firstFailure_.IsOk()) {
            firstFailure_ = FailureOf(errno);
        }
    }
    return firstFailure_;
}

} // namespace platform

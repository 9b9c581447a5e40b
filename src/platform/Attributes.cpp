// SPDX-License-Identifier: MIT
#include "platform/Attributes.h"

#include "platform/Descriptor.h"
#include "platform/NameBytes.h"

#include <array>
#include <cerrno>
#include <sys/stat.h>
#include <sys/xattr.h>

namespace platform {

namespace {

constexpr char MarksName[] = "user.DOSATTRIB";
constexpr uint AllMarks = attribute::Hidden | attribute::System | attribute::Archive;
constexpr mode_t AllWrite = S_IWUSR | S_IWGRP | S_IWOTH;

struct Marks
{
    bool areThere = false; // in whatever form
    int value = 0;
};

// A text ends at a NUL, if there is one; forms that aren't texts have it in front.
int ValueOf(QByteArray text)
{
    text.truncate(qstrnlen(text.constData(), static_cast<size_t>(text.size())));
    const uint value = text.startsWith("0x") ? text.mid(2).toUInt(nullptr, 16) : 0; // 0 if it is no number
    return static_cast<int>(value & AllMarks);
}

Marks ReadMarks(const QByteArray& path)
{
    std::array<char, 256> text{};
    const ssize_t size = ::getxattr(path.constData(), MarksName, text.data(), text.size());
    if (size < 0) {
        return {errno == ERANGE, 0}; // longer than any text
    }
    return {true, ValueOf(QByteArray(text.data(), size))};
}

// False with errno set.
bool WriteMarks(const QByteArray& path, int value)
{
    if (value == 0) {
        return ::removexattr(path.constData(), MarksName) == 0;
    }
    const QByteArray text = "0x" + QByteArray::number(value, 16);
    return ::setxattr(path.constData(), MarksName, text.constData(), static_cast<size_t>(text.size()), 0) ==
           0;
}

} // namespace

std::optional<int> GetAttr(const QString& path)
{
    const auto bytes = ToPath(path);
    struct stat info
    {};
    if (!bytes || ::stat(bytes->constData(), &info) != 0) {
        return std::nullopt;
    }
    const int directory = S_ISDIR(info.st_mode) ? attribute::Directory : 0;
    const int readOnly = (info.st_mode & S_IWUSR) == 0 ? attribute::ReadOnly : 0;
    return directory | readOnly | ReadMarks(*bytes).value;
}

Status SetAttr(const QString& path, int value)
{
    const auto bytes = ToPath(path);
    struct stat info
    {};
    if (!bytes) {
        return FailureAt({}, ENOENT);
    }
    if (::stat(bytes->constData(), &info) != 0) {
        return FailureAt(*bytes, errno);
    }
    if ((value & attribute::Directory) != 0 && !S_ISDIR(info.st_mode)) {
        return Status::Failure(QStringLiteral("Invalid procedure call or argument"));
    }
    // Looked up first, since a file of somebody else refuses a removal even where there is nothing to remove.
    const Marks marks = ReadMarks(*bytes);
    const int newMarks = value & static_cast<int>(AllMarks);
    const bool marksChange = newMarks == 0 ? marks.areThere : newMarks != marks.value;
    const mode_t mode = info.st_mode & 07777U;
    const mode_t writable = mode | S_IWUSR;
    const mode_t newMode = (value & attribute::ReadOnly) != 0 ? mode & ~AllWrite : writable;
    // Marks can be written only while the file can. It also shows, before anything has changed, whether the
    // mode may be set at all.
    const bool unlocks = mode != newMode || (marksChange && mode != writable);
    if (unlocks && ::chmod(bytes->constData(), writable) != 0) {
        return FailureOf(errno);
    }
    if (marksChange && !WriteMarks(*bytes, newMarks)) {
        const Status failure = FailureOf(errno);
        if (unlocks) {
            static_cast<void>(::chmod(bytes->constData(), mode)); // it was allowed a moment ago
        }
        return failure;
    }
    return unlocks && ::chmod(bytes->constData(), newMode) != 0 ? FailureOf(errno) : Status();
}

} // namespace platform

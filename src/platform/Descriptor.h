// SPDX-License-Identifier: MIT
//
// Descriptor: an open file descriptor that closes itself. And the words in which a failed system call is
// told. For use within this room.
#pragma once

#include "platform/Result.h"

#include <QByteArray>
#include <QByteArrayView>

#include <utility>

namespace platform {

class Descriptor
{
public:
    Descriptor() = default;
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(number_, other.number_);
        return *this;
    }
    ~Descriptor() { static_cast<void>(Close()); }

    bool IsOpen() const { return number_ >= 0; }
    int Number() const { return number_; }

    // False, with errno set, if the system reports a failed write only now.
    [[nodiscard]] bool Close();

private:
    int number_ = -1;
};

// Writes all of `bytes`, however many calls it takes. False with errno set.
[[nodiscard]] bool WriteAll(const Descriptor& to, QByteArrayView bytes);

// The failure for an errno value: the classic descriptions ("File already exists", "Permission denied", "Disk
// full", "Path not found"), else the system's own text. ENOENT and ENOTDIR are "Path not found" here.
Status FailureOf(int error);

// The same, but a file that is missing in a folder that is there is "File not found".
Status FailureAt(const QByteArray& path, int error);

} // namespace platform

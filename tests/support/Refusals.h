// SPDX-License-Identifier: MIT
//
// A system that refuses, for the time that a value of these types lives: a disk without room, and a user
// without rights. Keep that time short, since everything the test writes is refused too.
#pragma once

#include <QtGlobal>

#include <csignal>
#include <cstdio>
#include <sys/resource.h>
#include <unistd.h>

namespace testing_support {

// Every file fails to grow beyond `bytes`, as on a disk that fills up.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, signalBefore_);
    }
    Q_DISABLE_COPY_MOVE(FullDisk)

private:
    rlimit before_{};
    void (*signalBefore_)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

// Permissions count, also where the tests run as root, whom none would stop.
class OrdinaryUser
{
public:
    OrdinaryUser() { Become(65534); }
    ~OrdinaryUser() { Become(before_); }
    Q_DISABLE_COPY_MOVE(OrdinaryUser)

private:
    void Become(uid_t user) const
    {
        if (before_ == 0 && ::seteuid(user) != 0) {
            std::perror("seteuid");
        }
    }

    uid_t before_ = ::geteuid();
};

} // namespace testing_support

// SPDX-License-Identifier: MIT
//
// Program: the built executable as a shell starts it, in a place where it can touch nothing of the person who
// runs the tests: no display, and a home of its own.
#pragma once

#include "support/TempFolder.h"

#include <QByteArray>
#include <QStringList>

namespace e2e {

class Program
{
public:
    struct Ended
    {
        int exitStatus; // as a shell tells it: 128 and the signal's number if a signal ended it
        QByteArray output;

        bool operator==(const Ended&) const = default;
    };

    // Runs the program to its end in the current folder `folder`. Throws std::system_error if it can't be
    // started.
    Ended Run(const QString& folder, const QStringList& arguments) const;

    // What the runs left in the user's home: settings, logs, anything. Names directly in it.
    QStringList LeftBehind() const;

private:
    testing_support::TempFolder home_;
};

} // namespace e2e

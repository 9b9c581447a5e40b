// SPDX-License-Identifier: MIT
//
// Program: the built executable as a shell starts it, in a place where it can touch nothing of the person who
// runs the tests: no display, and a home of its own.
#pragma once

#include "support/TempFolder.h"

namespace e2e {

class Program
{
public:
    // Runs the program to its end in the current folder `folder`. Gives back its exit status as a shell tells
    // it (128 and the signal's number if a signal ended it), a blank and its output.
    QByteArray Run(const QString& folder, const QStringList& arguments) const;

    // What the runs left in the user's home: settings, logs, anything. Names directly in it.
    QStringList LeftBehind() const { return home_.Names(); }

private:
    testing_support::TempFolder home_, output_;
};

} // namespace e2e

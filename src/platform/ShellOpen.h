// SPDX-License-Identifier: MIT
//
// Opens files and folders with the programs that the desktop has for them.
#pragma once

#include <QString>

namespace platform {

// Opens a file or a folder, given by its complete path, as a double click in a file manager would. Doesn't
// wait for the program. False if there is no desktop that could; what the program makes of the file isn't
// known here.
bool ShellOpen(const QString& path);

} // namespace platform

// SPDX-License-Identifier: MIT
//
// What the header of a DOS or Windows program tells about it. Source: the Portable Executable format, "PE
// Header" and "Optional Header Windows-Specific Fields", and the New Executable header before it.
#pragma once

#include <QString>

namespace platform {

// The Windows version that a program asks for, 256 times its major part plus its minor part, such as 0x030A;
// 0 for a DOS program, for a file that is no program, and for one that can't be read.
int WindowsVersionOf(const QString& path);

} // namespace platform

// SPDX-License-Identifier: MIT
//
// The settings file Quillmark.ini in the program's folder. Despite its extension it has no sections and no
// keys: a line's number is its meaning.
#pragma once

#include "platform/ProgramFolder.h"

namespace app {

// Line 23, whether a rename drop asks before it renames: 0 or 1. 0 if the file or the line is missing, or the
// line is no number.
int ReadShowRenameDrop(const platform::ProgramFolder& programFolder);

} // namespace app

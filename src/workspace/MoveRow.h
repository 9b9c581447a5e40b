// SPDX-License-Identifier: MIT
//
// The one step of an execution.
#pragma once

#include "model/RenameRow.h"
#include "platform/FileSystem.h"

namespace workspace {

// Renames Path & Original to Path & Preview on disk, as a folder if the row's type says so. Never over an
// existing target; the result tells why it failed. The row itself stays as it is.
platform::Status MoveRow(const model::RenameRow& row, platform::FileSystem& files);

} // namespace workspace

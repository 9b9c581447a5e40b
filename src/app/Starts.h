// SPDX-License-Identifier: MIT
//
// The steps of the two starts with a command line that need no window. main chooses the start
// (workspace/CommandLine.h) and calls these.
#pragma once

#include "workspace/RenameWorkspace.h"

#include <QStringList>

namespace app {

// Makes `items`, full names of files, the main list's rows, all checked, whether they exist or not. Sets
// CheckedCount and FileListChanged.
void HandOverFiles(const QStringList& items, fileview::FileList& mainList, model::AppState& state);

// Checks all rows of the main list. Sets CheckedCount and FileListChanged.
void CheckAllFiles(fileview::FileList& mainList, model::AppState& state);

// A drop start up to its preview: item 0 is the rename drop file, whatever its extension, the others are the
// files. Fills the workspace, loads the recipe and runs the preview.
void PrepareDrop(const QStringList& items, workspace::RenameWorkspace& workspace,
                 fileview::FileList& mainList, model::AppState& state);

// Renames every row of the workspace without asking. Failed rows are passed over; no log is written.
void RenameWithoutAsking(const workspace::RenameWorkspace& workspace);

} // namespace app

// SPDX-License-Identifier: MIT
//
// The settings file Quillmark.ini in the program's folder. Despite its extension it has no sections and no
// keys: it has 24 lines, and a line's number is its meaning. The first four lines belong to controls of the
// preferences window and are read into state and controls apart; "blank" stands there for off.
#pragma once

#include "actions/RenameOptions.h"
#include "model/AppState.h"
#include "platform/ProgramFolder.h"
#include "platform/Result.h"

namespace app {

// The controls of the preferences window that are a store of their own.
struct PreferenceControls
{
    bool Check1 = false;   // the last folder is saved
    bool Check10 = false;  // all files are checked at first
    bool OptSort1 = false; // names are sorted by magnitude
    bool Check19 = false;  // the type filter is saved
};

// Reads the file into state and options. Without a file all of it stays as it is; a missing line is an empty
// text, and what is no number leaves its number as it is.
void ReadSettings(const platform::ProgramFolder& programFolder, model::AppState& state,
                  actions::RenameOptions& options);

// Reads the first four lines into the controls; all of them are off without a file.
PreferenceControls ReadPreferenceControls(const platform::ProgramFolder& programFolder);

// Writes the file, whole or not at all, and makes the program's folder if it is missing. `selectedFolder` and
// `fileType` are what the main window shows in its tree and its type filter. A text with a line break, as the
// name of a folder may have, isn't kept.
platform::Status WriteSettings(const platform::ProgramFolder& programFolder, const model::AppState& state,
                               const actions::RenameOptions& options, const PreferenceControls& preferences,
                               const QString& selectedFolder, const QString& fileType);

} // namespace app

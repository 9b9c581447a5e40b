// SPDX-License-Identifier: MIT
//
// The settings file Quillmark.ini in the program's folder. Despite its extension it has no sections and no
// keys: a line's number is its meaning.
#pragma once

#include "actions/RenameOptions.h"
#include "model/AppState.h"
#include "platform/ProgramFolder.h"

namespace app {

// What is read of the file, with what holds where the file, a line or its number is missing.
struct Settings
{
    bool ReplaceAllExtensions = false; // line 10: on for a number above 0
    QString ExtensionAllValue;         // line 11
    QString LastTimeToken;             // line 12
    QString LastDateToken;             // line 13
    int ShowRenameDrop = 0;            // line 23: whether a rename drop asks before it renames, 0 or 1
};

Settings ReadSettings(const platform::ProgramFolder& programFolder);

// Puts them where the program looks for them.
void ApplySettings(const Settings& settings, model::AppState& state, actions::RenameOptions& options);

} // namespace app

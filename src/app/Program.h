// SPDX-License-Identifier: MIT
//
// Program: what every start of the program stands on, made in this order.
#pragma once

#include "app/Settings.h"
#include "workspace/RenameWorkspace.h"

namespace app {

struct Program
{
    // With the settings of that folder. `host` outlives it.
    Program(platform::ProgramFolder folder, model::RunHost& host)
        : programFolder(std::move(folder)), workspace({state, mainList, host, clock, random, programFolder})
    {
        ReadSettings(programFolder, state, workspace.options);
    }

    const platform::ProgramFolder programFolder;
    model::AppState state;
    model::Clock clock;
    model::RandomSource random;
    fileview::FileList mainList;
    workspace::RenameWorkspace workspace;
};

} // namespace app

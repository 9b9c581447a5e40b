// SPDX-License-Identifier: MIT
//
// Windows: the main window and the rename window, wired to one program. The normal start and the list start
// are one of these.
#pragma once

#include "app/Program.h"
#include "app/ui/frmMain.h"
#include "documents/ui/frmRenListMan.h"
#include "workspace/ui/frmRenamer.h"

#include <memory>

namespace app {

class Windows
{
public:
    // Loads the main window, behind a splash where that takes its time, and shows it. The files of a list
    // start, separated by "|" in `commandLine`, then take the place of the first scan's, and the rename
    // window shows, too. `ended` is called when a person has quit and everything is saved; the loop of
    // events, or whatever loop runs, is to end then.
    Windows(const platform::ProgramFolder& programFolder, const QString& commandLine,
            std::function<void()> ended);

    frmMain& Main() { return main_; }
    workspace::frmRenamer& Renamer(); // made on first use

private:
    void LoadBehindSplash();
    void ShowMain();
    void HandOverFiles();
    void ShowRenamer();
    void RefreshRenamer();
    void ShowMainCentred();
    void ManageRecipes();

    const QString commandLine_;
    workspace::WindowHost host_; // of the rename window
    workspace::WindowHost mainHost_;
    Program program_;
    windowing::OnTopGroup onTop_{program_.state};
    frmMain main_;
    std::unique_ptr<workspace::frmRenamer> renamer_;
    documents::frmRenListMan* recipes_ = nullptr; // made on first use; the rename window owns it
};

} // namespace app

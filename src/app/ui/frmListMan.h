// SPDX-License-Identifier: MIT
//
// frmListMan: the manager of file lists. It saves the checked files of the main list under a name, and
// gathers them again.
#pragma once

#include "app/FileGathering.h"
#include "documents/ui/ManagerWindow.h"

namespace app {

class frmListMan final : public documents::ManagerWindow
{
    Q_OBJECT

public:
    // A window of its own, hidden. `fileType` tells the type filter's entry. All of it outlives the window.
    frmListMan(FileGathering& gathering, const platform::ProgramFolder& programFolder,
               const std::function<QString()>& fileType, QWidget* parent = nullptr);
};

} // namespace app

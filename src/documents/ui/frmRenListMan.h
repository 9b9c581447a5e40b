// SPDX-License-Identifier: MIT
//
// frmRenListMan: the manager of rename configurations. It saves the options of the rename workspace under a
// name, and loads them from there.
#pragma once

#include "actions/RenameOptions.h"
#include "documents/ui/ManagerWindow.h"

namespace documents {

class frmRenListMan final : public ManagerWindow
{
    Q_OBJECT

public:
    // A window of its own, hidden. `options` outlives it. `optionsChanged` is called after each load, also of
    // a file that is no configuration: such a load empties the action list.
    frmRenListMan(actions::RenameOptions& options, const platform::ProgramFolder& programFolder,
                  const std::function<void()>& optionsChanged, QWidget* parent = nullptr);
};

} // namespace documents

// SPDX-License-Identifier: MIT
#include "documents/ui/frmRenListMan.h"

#include "documents/RenameDocument.h"

namespace documents {
namespace {

ManagerKind RenameConfigurations()
{
    return {
        .objectName = QStringLiteral("frmRenListMan"),
        .caption = frmRenListMan::tr("Rename Configurations Manager"),
        .folder = QStringLiteral("RenConfigs/"),
        .extension = QStringLiteral(".rfg"),
        .saveCaption = frmRenListMan::tr("Save Rename Config"),
        .loadCaption = frmRenListMan::tr("Load Selected Rename Config"),
        .messageTitle = frmRenListMan::tr("Renamer"),
        .noName = frmRenListMan::tr("Please give a rename config name"),
        .nothingSelected = frmRenListMan::tr("Please select the rename config to load"),
        .nameIsTaken = frmRenListMan::tr("Config Name already exists. Do You wish to Overwrite?"),
        .asksToOverwrite = true,
        .loadsByMouse = true,
    };
}

} // namespace

frmRenListMan::frmRenListMan(actions::RenameOptions& options, const platform::ProgramFolder& programFolder,
                             const std::function<void()>& optionsChanged, QWidget* parent)
    : ManagerWindow(RenameConfigurations(), programFolder,
                    {
                        .save = [&options](const QString& path) { return SaveRenameConfig(options, path); },
                        .load =
                            [&options, optionsChanged](const QString& path) {
                                const platform::Status status = LoadRenameConfig(options, path);
                                optionsChanged();
                                return status;
                            },
                    },
                    parent)
{}

} // namespace documents

// SPDX-License-Identifier: MIT
#include "app/Starts.h"

#include "documents/RenameDocument.h"
#include "platform/FileSystem.h"
#include "workspace/CommandLine.h"
#include "workspace/MoveRow.h"

namespace app {

void HandOverFiles(const QStringList& items, fileview::FileList& mainList, model::AppState& state)
{
    platform::FileSystem files;
    mainList.Clear();
    mainList.Reserve(static_cast<int>(items.size()));
    for (const QString& item : items) {
        mainList.AddFile(workspace::SplitPathPart(item, true), workspace::SplitPathPart(item, false), files);
    }
    CheckAllFiles(mainList, state);
}

void CheckAllFiles(fileview::FileList& mainList, model::AppState& state)
{
    mainList.SetCheckedAll(true);
    state.CheckedCount = mainList.CheckedCount();
    state.FileListChanged = true;
}

void PrepareDrop(const QStringList& items, workspace::RenameWorkspace& workspace,
                 fileview::FileList& mainList, model::AppState& state)
{
    state.DropStart = true;
    HandOverFiles(items.mid(1), mainList, state);
    workspace.RefillIfChanged(true);
    documents::LoadRnp(workspace.options, items.value(0));
    workspace.cmdPreview_Click();
}

void RenameWithoutAsking(const workspace::RenameWorkspace& workspace)
{
    platform::FileSystem files;
    for (int row = 1; row <= workspace.grid.RowCount(); ++row) {
        // Nobody watches this start: a row that fails keeps its name, and the others go on.
        static_cast<void>(workspace::MoveRow(workspace.grid.Row(row), files));
    }
}

} // namespace app

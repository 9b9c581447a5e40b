// SPDX-License-Identifier: MIT
//
// WorkspaceFixture: a rename workspace over real files. A test gives it files, selects actions, sets their
// options, and reads names back from the grid or the disk.
#pragma once

#include "actions/ActionHandler.h"
#include "support/FixedPorts.h"
#include "support/Recorder.h"
#include "support/TempFolder.h"
#include "workspace/RenameWorkspace.h"
#include "workspace/RunLog.h"

#include <initializer_list>

namespace testing_support {

class WorkspaceFixture : public testing::Test
{
protected:
    // Makes files that hold their own names, and folders for names that end with "/"; lists them all,
    // checked.
    void Files(const QStringList& names)
    {
        for (const QString& name : names) {
            if (name.endsWith(u'/')) {
                folder.MakeFolder(name.chopped(1));
            } else {
                folder.Write(name, name.toUtf8());
            }
        }
        List(names);
        workspace.Refreshrnm();
        host.TakeEvents();
    }

    // Only lists them, as files of a subfolder such as "b/".
    void List(const QStringList& names, const QString& subfolder = {})
    {
        platform::FileSystem files;
        for (const QString& name : names) {
            mainList.AddFile(folder.Path() + subfolder, name.endsWith(u'/') ? name.chopped(1) : name, files);
        }
        mainList.SetCheckedAll(true);
        state.CheckedCount = mainList.CheckedCount();
    }

    // These actions run, in this order.
    void Select(const QStringList& names)
    {
        options.List3 = {};
        for (const QString& name : names) {
            options.List3.entries.push_back({name, true});
        }
        options.List3.entries.push_back({u"Replace First"_qs, false});
    }

    // Runs a preview and gives back the Preview column.
    QStringList Preview()
    {
        workspace.cmdPreview_Click();
        return Column(workspace::GridPre::Preview);
    }

    // Runs a preview, then types new names over it.
    void Propose(const QStringList& names)
    {
        Select({u"Replace All"_qs});
        Preview();
        for (int row = 1; row <= names.size(); ++row) {
            workspace.grid.SetPreview(row, names.at(row - 1));
        }
        host.TakeEvents();
    }

    QStringList Column(workspace::GridPre::Column column) const
    {
        QStringList texts;
        for (int row = 1; row <= workspace.grid.RowCount(); ++row) {
            texts.append(workspace.grid.Cell(row, column));
        }
        return texts;
    }

    // The last run's log as its window shows it: the results.
    QStringList Results() const
    {
        workspace::RunLog log;
        log.Load(workspace.LogPath());
        QStringList results;
        for (int row = 0; row < log.rowCount(); ++row) {
            results.append(log.data(log.index(row, workspace::RunLog::Result)).toString());
        }
        return results;
    }

    QStringList MainListNames() const
    {
        QStringList names;
        for (int index = 1; index <= mainList.Count(); ++index) {
            names.append(mainList.Item(index).Text + (mainList.Checked(index) ? u" checked"_qs : u""_qs));
        }
        return names;
    }

    TempFolder folder;
    TempFolder program;
    model::AppState state;
    fileview::FileList mainList;
    Recorder host{state.StopFlag};
    FixedClock clock;
    FixedRandom random;
    platform::ProgramFolder programFolder{program.Path()};
    workspace::RenameWorkspace workspace{{state, mainList, host, clock, random, programFolder}};
    actions::RenameOptions& options = workspace.options;
};

} // namespace testing_support

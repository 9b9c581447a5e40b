// SPDX-License-Identifier: MIT
//
// WorkspaceFixture: a rename workspace over real files. A test gives it files, selects actions, sets their
// options, and reads names back from the grid or the disk.
#pragma once

#include "support/FixedPorts.h"
#include "support/Recorder.h"
#include "support/TempFolder.h"
#include "workspace/RenameWorkspace.h"
#include "workspace/RunLog.h"

#include <algorithm>

namespace testing_support {

class WorkspaceFixture : public testing::Test
{
protected:
    // Makes files that hold their own names, and folders for names that end with "/"; lists them checked.
    void Files(const QStringList& names)
    {
        for (const QString& name : names) {
            name.endsWith(u'/') ? folder.MakeFolder(name) : folder.Write(name, name.toUtf8());
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
            mainList.AddFile(folder.Path() + subfolder, name.chopped(name.endsWith(u'/')), files);
        }
        mainList.SetCheckedAll(true);
        state.CheckedCount = mainList.CheckedCount();
    }

    void Remove(const QString& name) { fs::remove((folder.Path() + name).toStdString()); }

    // These actions run, in this order.
    void Select(const QStringList& names)
    {
        options.List3.entries = {{u"Replace First"_qs, false}};
        for (const QString& name : names) {
            options.List3.entries.push_back({name, true});
        }
    }

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
        return Texts(workspace.grid.RowCount(), [&](int i) { return workspace.grid.Cell(i + 1, column); });
    }

    // The last run's log as its window shows it: the results.
    QStringList Results() const
    {
        workspace::RunLog log;
        log.Load(workspace.LogPath());
        return Texts(log.rowCount(), [&](int i) { return log.index(i, log.Result).data().toString(); });
    }

    QStringList MainListNames() const
    {
        return Texts(mainList.Count(), [&](int i) {
            return mainList.Item(i + 1).Text + (mainList.Checked(i + 1) ? u" checked"_qs : u""_qs);
        });
    }

    TempFolder folder, program;
    model::AppState state;
    fileview::FileList mainList;
    Recorder host{state.StopFlag};
    FixedClock clock;
    FixedRandom random;
    platform::ProgramFolder programFolder{program.Path()};
    workspace::RenameWorkspace workspace{{state, mainList, host, clock, random, programFolder}};
    actions::RenameOptions& options = workspace.options;

private:
    template<typename TextOf>
    static QStringList Texts(int count, TextOf textOf)
    {
        QStringList texts;
        std::generate_n(std::back_inserter(texts), count, [&] { return textOf(int(texts.size())); });
        return texts;
    }
};

} // namespace testing_support

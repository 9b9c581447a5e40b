// SPDX-License-Identifier: MIT
//
// The roof: chooses one of the three starts by the command line and wires the rooms together.
#include "app/Settings.h"
#include "app/Starts.h"
#include "documents/RenameDocument.h"
#include "platform/CommandTail.h"
#include "workspace/CommandLine.h"
#include "workspace/ui/WindowHost.h"
#include "workspace/ui/frmRenamer.h"

#include <QApplication>
#include <QFileDialog>

namespace {

// What every start stands on, in the order in which it is made.
struct Program
{
    explicit Program(model::RunHost& host) : workspace({state, mainList, host, clock, random, programFolder})
    {}

    platform::ProgramFolder programFolder = platform::ProgramFolder::OfThisProcess();
    model::AppState state;
    model::Clock clock;
    model::RandomSource random;
    fileview::FileList mainList;
    workspace::RenameWorkspace workspace;
};

// Needs no display: no window object is made.
int RunSilentDrop(int argc, char** argv, const QStringList& items)
{
    const QCoreApplication application(argc, argv);
    model::SilentHost host;
    Program program(host);
    app::PrepareDrop(items, program.workspace, program.mainList, program.state);
    app::RenameWithoutAsking(program.workspace);
    return 0;
}

// Lets a person choose the files to rename, and hands them over to the workspace.
void ChooseFiles(QWidget& window, Program& program)
{
    const QStringList chosen =
        QFileDialog::getOpenFileNames(&window, QFileDialog::tr("Select Files to Rename"));
    if (!chosen.isEmpty()) {
        app::HandOverFiles(chosen, program.mainList, program.state);
        program.workspace.RefillIfChanged(false);
    }
}

// Shows the rename workspace: empty, with the files of a list start, or with a rename drop that is to be
// confirmed.
int RunWorkspace(int argc, char** argv, workspace::Start start, const QString& commandLine)
{
    QApplication application(argc, argv);
    workspace::WindowHost host;
    Program program(host);
    workspace::frmRenamer* shown = nullptr;
    workspace::frmRenamer window(program.workspace, program.state, program.random,
                                 {
                                     .createDrop =
                                         [&program](const QString& path) {
                                             return documents::SaveRenameDrop(program.workspace.options,
                                                                              path);
                                         },
                                     .manage = {},
                                     .fileSelection = [&shown, &program] { ChooseFiles(*shown, program); },
                                     .closed = &QApplication::quit,
                                 });
    shown = &window;
    host.Attach(window.HostControls());
    window.show();
    if (start == workspace::Start::List) {
        program.state.SkipNextFolderEvent = true;
        app::HandOverFiles(workspace::ParseListCommandLine(commandLine), program.mainList, program.state);
        program.workspace.RefillIfChanged(true);
    } else if (start == workspace::Start::Drop) {
        app::PrepareDrop(workspace::ParseDropCommandLine(commandLine), program.workspace, program.mainList,
                         program.state);
        window.ShowOptions();
    }
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setApplicationName(QStringLiteral("Quillmark"));
    const QString commandLine = platform::BuildCommandTail(platform::ArgumentsOf(argc, argv));
    const workspace::Start start = workspace::ChooseStart(commandLine);
    const bool asks = app::ReadShowRenameDrop(platform::ProgramFolder::OfThisProcess()) == 1;
    if (start == workspace::Start::Drop && !asks) {
        return RunSilentDrop(argc, argv, workspace::ParseDropCommandLine(commandLine));
    }
    return RunWorkspace(argc, argv, start, commandLine);
}

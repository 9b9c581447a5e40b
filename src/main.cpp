// SPDX-License-Identifier: MIT
//
// The roof: chooses one of the three starts by the command line and wires the rooms together.
#include "app/Settings.h"
#include "app/Starts.h"
#include "documents/RenameDocument.h"
#include "platform/CommandTail.h"
#include "workspace/CommandLine.h"
#include "workspace/ui/ReadableStyle.h"
#include "workspace/ui/WindowHost.h"
#include "workspace/ui/frmRenamer.h"

#include <QApplication>
#include <QFileDialog>
#include <QScreen>
#include <QStyle>

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
int RunSilentDrop(char* programName, const QStringList& items)
{
    int argc = 1;
    const QCoreApplication application(argc, &programName);
    model::SilentHost host;
    Program program(host);
    app::PrepareDrop(items, program.workspace, program.mainList, program.state);
    app::RenameWithoutAsking(program.workspace);
    return 0;
}

// Lets a person choose the files to rename, and hands them over to the workspace.
void ChooseFiles(QWidget& window, Program& program, bool hasCommandLine)
{
    const QStringList chosen =
        QFileDialog::getOpenFileNames(&window, QFileDialog::tr("Select Files to Rename"));
    if (!chosen.isEmpty()) {
        platform::FileSystem files;
        program.mainList.Clear();
        for (const QString& path : chosen) {
            const qsizetype nameAt = path.lastIndexOf(platform::PathSeparator) + 1;
            program.mainList.AddFile(path.left(nameAt), path.mid(nameAt), files);
        }
        app::CheckAllFiles(program.mainList, program.state);
        program.workspace.RefillIfChanged(hasCommandLine);
    }
}

// Shows the rename workspace: empty, with the files of a list start, or with a rename drop that is to be
// confirmed.
int RunWorkspace(char* programName, workspace::Start start, const QString& commandLine)
{
    int argc = 1; // the arguments are files and recipes; none of them is for the toolkit
    QApplication application(argc, &programName);
    QApplication::setStyle(new workspace::ReadableStyle(QApplication::style()->name()));
    workspace::WindowHost host;
    Program program(host);
    workspace::frmRenamer* shown = nullptr;
    workspace::frmRenamer window(
        program.workspace, program.state, program.random,
        {
            .createDrop =
                [&program](const QString& path) {
                    return documents::SaveRenameDrop(program.workspace.options, path);
                },
            .manage = {},
            .fileSelection = [&] { ChooseFiles(*shown, program, !commandLine.isEmpty()); },
            .closed = &QApplication::quit,
        });
    shown = &window;
    host.Attach(window.HostControls());
    const QRect screen = window.screen()->availableGeometry();
    window.move(screen.center() - window.rect().center());
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
        return RunSilentDrop(argv[0], workspace::ParseDropCommandLine(commandLine));
    }
    return RunWorkspace(argv[0], start, commandLine);
}

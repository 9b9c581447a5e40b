// SPDX-License-Identifier: MIT
//
// The roof: chooses one of the three starts by the command line and wires the rooms together.
#include "app/Settings.h"
#include "app/Starts.h"
#include "documents/RenameDocument.h"
#include "documents/ui/frmRenDrop.h"
#include "documents/ui/frmRenListMan.h"
#include "platform/CommandTail.h"
#include "workspace/CommandLine.h"
#include "workspace/ui/ReadableStyle.h"
#include "workspace/ui/WindowHost.h"
#include "workspace/ui/frmRenamer.h"

#include <QApplication>
#include <QFileDialog>
#include <QScreen>
#include <QStyle>
#include <QTimer>

namespace {

// What every start stands on, in the order in which it is made.
struct Program
{
    explicit Program(model::RunHost& host) : workspace({state, mainList, host, clock, random, programFolder})
    {
        app::ApplySettings(app::ReadSettings(programFolder), state, workspace.options);
    }

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

void ShowCentred(QWidget& window)
{
    const QRect screen = window.screen()->availableGeometry();
    const QPoint centred = screen.center() - window.rect().center();
    window.move(qMax(screen.left(), centred.x()), qMax(screen.top(), centred.y()));
    window.show();
}

// Shows the window in which a person confirms each file of a rename drop. The process ends with it.
int RunDropWindow(char* programName, const QStringList& items)
{
    int argc = 1;
    QApplication application(argc, &programName);
    QApplication::setStyle(new workspace::ReadableStyle(QApplication::style()->name()));
    QApplication::setQuitOnLastWindowClosed(false); // a message about the recipe comes before the window
    workspace::WindowHost host;
    Program program(host);
    app::PrepareDrop(items, program.workspace, program.mainList, program.state);
    documents::frmRenDrop window(program.workspace.grid, &QApplication::quit);
    window.adjustSize();
    ShowCentred(window);
    return QApplication::exec();
}

// Shows the rename workspace: empty, or with the files of a list start.
int RunWorkspace(char* programName, workspace::Start start, const QString& commandLine)
{
    int argc = 1; // the arguments are files and recipes; none of them is for the toolkit
    QApplication application(argc, &programName);
    QApplication::setStyle(new workspace::ReadableStyle(QApplication::style()->name()));
    workspace::WindowHost host;
    Program program(host);
    workspace::frmRenamer* shown = nullptr;
    documents::frmRenListMan* manager = nullptr; // made on first use; the window owns it
    workspace::frmRenamer window(
        program.workspace, program.state, program.random,
        {
            .createDrop =
                [&program](const QString& path) {
                    return documents::SaveRenameDrop(program.workspace.options, path);
                },
            .manage =
                [&] {
                    if (!manager) {
                        manager = new documents::frmRenListMan(
                            program.workspace.options, program.programFolder,
                            [shown] { shown->ShowOptions(); }, shown);
                    }
                    manager->Open();
                },
            .fileSelection = [&] { ChooseFiles(*shown, program, !commandLine.isEmpty()); },
            .closed = &QApplication::quit,
        });
    shown = &window;
    host.Attach(window.HostControls());
    ShowCentred(window);
    if (start == workspace::Start::List) {
        // Once events are handled, so that Exit ends the program while the files are loaded, too.
        QTimer::singleShot(0, &window, [&program, &commandLine] {
            program.state.SkipNextFolderEvent = true;
            app::HandOverFiles(workspace::ParseListCommandLine(commandLine), program.mainList, program.state);
            program.workspace.RefillIfChanged(true);
        });
    }
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setApplicationName(QStringLiteral("Quillmark"));
    const QString commandLine = platform::BuildCommandTail(platform::ArgumentsOf(argc, argv));
    const workspace::Start start = workspace::ChooseStart(commandLine);
    if (start == workspace::Start::Drop) {
        const bool asks = app::ReadSettings(platform::ProgramFolder::OfThisProcess()).ShowRenameDrop == 1;
        return (asks ? RunDropWindow : RunSilentDrop)(argv[0], workspace::ParseDropCommandLine(commandLine));
    }
    return RunWorkspace(argv[0], start, commandLine);
}

// SPDX-License-Identifier: MIT
//
// The roof: chooses one of the three starts by the command line.
#include "app/Starts.h"
#include "app/ui/Windows.h"
#include "documents/ui/frmRenDrop.h"
#include "platform/CommandTail.h"
#include "platform/FileSystem.h"
#include "workspace/CommandLine.h"
#include "workspace/ui/ReadableStyle.h"
#include "workspace/ui/WindowPlace.h"

#include <QApplication>
#include <QStyle>

namespace {

// A start with windows. The process doesn't end with its last window: a message may come before the first
// one, and the main window ends it only when all is saved.
struct Application
{
    explicit Application(char* programName) : application(argc, &programName)
    {
        QApplication::setStyle(new workspace::ReadableStyle(QApplication::style()->name()));
        QApplication::setQuitOnLastWindowClosed(false);
    }

    int argc = 1; // the arguments are files and recipes; none of them is for the toolkit
    QApplication application;
};

// Whether a rename drop asks before it renames.
bool DropAsks()
{
    model::AppState state;
    actions::RenameOptions options;
    app::ReadSettings(platform::ProgramFolder::OfThisProcess(), state, options);
    return state.ShowRenameDrop == 1;
}

// Needs no display: no window object is made.
int RunSilentDrop(char* programName, const QStringList& items)
{
    int argc = 1;
    const QCoreApplication application(argc, &programName);
    model::SilentHost host;
    app::Program program(platform::ProgramFolder::OfThisProcess(), host);
    app::PrepareDrop(items, program.workspace, program.mainList, program.state);
    app::RenameWithoutAsking(program.workspace);
    return 0;
}

// Shows the window in which a person confirms each file of a rename drop. The process ends with it.
int RunDropWindow(char* programName, const QStringList& items)
{
    const Application application(programName);
    workspace::WindowHost host;
    app::Program program(platform::ProgramFolder::OfThisProcess(), host);
    app::PrepareDrop(items, program.workspace, program.mainList, program.state);
    documents::frmRenDrop window(program.workspace.grid, &QApplication::quit);
    window.adjustSize();
    workspace::CentreOnScreen(window);
    window.show();
    return QApplication::exec();
}

// Shows the main window, and with the files of a list start the rename window as well.
int RunWindows(char* programName, const QString& commandLine)
{
    const Application application(programName);
    bool hasEnded = false; // perhaps while the first folder was still being read
    const app::Windows windows(platform::ProgramFolder::OfThisProcess(), commandLine, [&hasEnded] {
        hasEnded = true;
        QApplication::exit();
    });
    return hasEnded ? 0 : QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    platform::LetOversizedWritesFail();
    QCoreApplication::setApplicationName(QStringLiteral("Quillmark"));
    const QString commandLine = platform::BuildCommandTail(platform::ArgumentsOf(argc, argv));
    if (workspace::ChooseStart(commandLine) != workspace::Start::Drop) {
        return RunWindows(argv[0], commandLine);
    }
    return (DropAsks() ? RunDropWindow : RunSilentDrop)(argv[0],
                                                        workspace::ParseDropCommandLine(commandLine));
}

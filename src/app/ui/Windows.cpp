// SPDX-License-Identifier: MIT
#include "app/ui/Windows.h"

#include "app/Starts.h"
#include "app/ui/frmSplash.h"
#include "documents/RenameDocument.h"
#include "workspace/CommandLine.h"
#include "workspace/ui/WindowPlace.h"

#include <QTimer>

#include <chrono>

namespace app {

Windows::Windows(const platform::ProgramFolder& programFolder, const QString& commandLine,
                 std::function<void()> ended)
    : commandLine_(commandLine),
      program_(programFolder, host_),
      main_({program_.state, program_.mainList, mainHost_, program_.workspace.options, program_.programFolder,
             onTop_},
            {
                .showRename = [this] { ShowRenamer(); },
                .refreshRename = [this] { RefreshRenamer(); },
                .ended = std::move(ended),
            })
{
    program_.state.SkipNextFolderEvent = !commandLine_.isEmpty();
    LoadBehindSplash();
    program_.state.SkipNextFolderEvent = false; // also where there was no folder to select
    if (!commandLine_.isEmpty() && !program_.state.ClosingDown) {
        // Once events are handled, so that Quit ends the program while the files are loaded, too.
        auto* const timer = new QTimer(&main_);
        timer->setSingleShot(true);
        QObject::connect(timer, &QTimer::timeout, &main_, [this] { HandOverFiles(); });
        timer->start();
    }
}

workspace::frmRenamer& Windows::Renamer()
{
    if (!renamer_) {
        renamer_ = std::make_unique<workspace::frmRenamer>(
            program_.workspace, program_.state, program_.random,
            workspace::frmRenamer::Collaborators{
                .createDrop =
                    [this](const QString& path) {
                        return documents::SaveRenameDrop(program_.workspace.options, path);
                    },
                .manage = [this] { ManageRecipes(); },
                .fileSelection = [this] { ShowMainCentred(); },
                .renamed = [this] { main_.Gathering().FilesRenamed(); },
                .onTop = &onTop_,
            });
        host_.Attach(renamer_->HostControls());
    }
    return *renamer_;
}

// The splash shows only where a folder takes its time.
void Windows::LoadBehindSplash()
{
    constexpr std::chrono::milliseconds patience{400};
    std::unique_ptr<frmSplash> splash;
    QTimer timer;
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, &main_, [this, &splash] {
        splash = std::make_unique<frmSplash>();
        QObject::connect(splash.get(), &frmSplash::Skipped, &main_, [this] { ShowMain(); });
        splash->adjustSize();
        workspace::CentreOnScreen(*splash);
        splash->show();
    });
    timer.start(patience);
    main_.Load();
    ShowMain();
}

void Windows::ShowMain()
{
    if (!main_.isVisible() && !program_.state.ClosingDown) {
        if (!main_.IsWhereItStoodLast()) {
            workspace::CentreOnScreen(main_);
        }
        main_.show();
    }
}

void Windows::HandOverFiles()
{
    app::HandOverFiles(workspace::ParseListCommandLine(commandLine_), program_.mainList, program_.state);
    main_.Gathering().FilesHandedOver();
    ShowRenamer();
}

void Windows::ShowRenamer()
{
    workspace::frmRenamer& renamer = Renamer();
    renamer.setWindowState(Qt::WindowNoState); // before it is centred, which needs its normal size
    workspace::CentreOnScreen(renamer);
    workspace::BringUp(renamer);
    program_.workspace.RefillIfChanged(!commandLine_.isEmpty());
}

void Windows::ShowMainCentred()
{
    workspace::CentreOnScreen(main_);
    workspace::BringUp(main_);
}

void Windows::RefreshRenamer()
{
    if (renamer_ && renamer_->isVisible()) {
        program_.workspace.cmdRefresh_Click();
    }
}

void Windows::ManageRecipes()
{
    if (!recipes_) {
        recipes_ = new documents::frmRenListMan(
            program_.workspace.options, program_.programFolder, [this] { Renamer().ShowOptions(); },
            &Renamer());
    }
    recipes_->Open();
}

} // namespace app

// SPDX-License-Identifier: MIT
//
// frmMain: the window in which a person gathers files. On the left a tree of folders, on the right the file
// list with check marks, below it the commands, a running log and the progress. What it does with files is
// FileGathering's; the window binds it to controls, and opens the other windows.
#pragma once

#include "app/FileGathering.h"
#include "app/Settings.h"
#include "app/ui/FolderTree.h"
#include "fileview/ui/ListViewEditable.h"
#include "platform/ProgramFolder.h"
#include "windowing/Anchor.h"
#include "windowing/OnTopGroup.h"
#include "workspace/ui/WindowHost.h"

#include <QPointer>
#include <QWidget>

#include <functional>
#include <map>
#include <vector>

class QAction;
class QBoxLayout;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QMenuBar;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QTimer;

namespace attributes {
class frmAttr;
}

namespace app {

class frmBookmarks;
class frmHelp;
class frmListMan;
class frmPref;

class frmMain final : public QWidget, private GatheringView
{
    Q_OBJECT

public:
    // What the window stands on. All of it outlives the window.
    struct Surroundings
    {
        model::AppState& state;
        fileview::FileList& rows; // the main list
        workspace::WindowHost& host;
        actions::RenameOptions& options;
        const platform::ProgramFolder& programFolder;
        windowing::OnTopGroup& onTop;
    };

    // What it asks of the rename window.
    struct Collaborators
    {
        std::function<void()> showRename;    // puts the rename window on show and refills it if needed
        std::function<void()> refreshRename; // takes the rows anew, if the rename window is open
        std::function<void()> ended;         // the window is closed and all is saved
    };

    frmMain(const Surroundings& surroundings, Collaborators collaborators);
    ~frmMain() override;

    // Loads what the settings say: view, folder with its first scan, filters, position. Call it once, before
    // the window is shown.
    void Load();

    FileGathering& Gathering() { return gathering_; }

    // Whether the window stands where it stood when the program ended last.
    bool IsWhereItStoodLast() const { return anchor_ && anchor_->IsRestored(); }

    // Saves the settings and ends the program; during a scan as soon as that has stopped.
    void cmdQuit_Click();

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    // What is disabled while a scan runs, with what had the focus in its window.
    struct Paused
    {
        QPointer<QWidget> widget;
        QPointer<QWidget> focus;
    };

    // GatheringView.
    void Log(const QString& line) override;
    void ScanBegins() override;
    void ScanEnds() override;
    void ShowCount(int count) override;
    void ShowAllChecked() override;
    void ShowFileTypes(const QStringList& types) override;
    void RefreshRenameView() override;
    void EndProgram() override;

    QWidget* NewFolderPane();
    QWidget* NewListPane();
    QWidget* NewBottomPane();
    QPushButton* AddButton(QBoxLayout& row, const char* name, const QString& caption, const QString& tooltip,
                           void (frmMain::*command)());
    QCheckBox* AddBox(QBoxLayout& row, const char* name, const QString& caption, const QString& tooltip);
    void ConnectList();
    void ApplySkin();
    void FitColumns();
    void TellTime();

    void RunCommand(int id);
    void SetViewMode(int id);
    void ChooseType(const QString& type);
    void SetStopStandsOut(bool standsOut);
    void Pause(QWidget& widget);
    void ApplyPreferences();
    void SaveSettingsFile();
    frmBookmarks& Bookmarks();
    void GoToFolder(const QString& folder);

    // The commands of the buttons, by their names.
    void cmdRename_Click();
    void cmdStopSrch_Click();
    void cmdPref_Click();
    void cmdBookmarks_Click();
    void Command1_Click(); // attributes
    void Command2_Click(); // refresh folders
    void Command5_Click(); // add a bookmark
    void Command8_Click(); // manage file lists
    void mnuFLoad_Click();
    void mnuFSave_Click();
    void ShowAbout();
    void ShowHelp();

    model::AppState& state_;
    fileview::FileList& rows_;
    workspace::WindowHost& host_;
    actions::RenameOptions& options_;
    const platform::ProgramFolder& programFolder_;
    windowing::OnTopGroup& onTop_;
    Collaborators collaborators_;
    PreferenceControls preferences_;

    fileview::ListViewEditable* lvw2_ = nullptr;
    FileGathering gathering_;
    std::map<int, QAction*> commands_; // by number
    QMenuBar* menus_ = nullptr;
    FolderTree* ftv_ = nullptr;
    QComboBox* cmbFileType_ = nullptr;
    QLineEdit* txtFilter_ = nullptr;
    QLineEdit* txtPlot_ = nullptr;
    QPlainTextEdit* Text2_ = nullptr;
    QCheckBox* Check1_ = nullptr;
    QCheckBox* Check2_ = nullptr;
    QCheckBox* Check6_ = nullptr;
    QCheckBox* chkOnTop_ = nullptr;
    QPushButton* cmdStopSrch_ = nullptr;
    QPushButton* Command5_ = nullptr;
    QLabel* Label1_ = nullptr;
    QLabel* Label10_ = nullptr;
    QProgressBar* ProgBarM_ = nullptr;
    std::vector<QWidget*> notWhileScanning_;
    std::vector<Paused> paused_; // by the scan that runs
    windowing::Anchor* anchor_ = nullptr;
    frmPref* pref_ = nullptr; // made on first use
    frmBookmarks* bookmarks_ = nullptr;
    frmListMan* lists_ = nullptr;
    attributes::frmAttr* attributes_ = nullptr;
    frmHelp* help_ = nullptr;
    bool isLoaded_ = false;
    bool hasEnded_ = false;
};

} // namespace app

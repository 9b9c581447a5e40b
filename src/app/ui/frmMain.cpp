// SPDX-License-Identifier: MIT
#include "app/ui/frmMain.h"

#include "app/FileListFile.h"
#include "app/ui/MainMenu.h"
#include "app/ui/frmBookmarks.h"
#include "app/ui/frmHelp.h"
#include "app/ui/frmListMan.h"
#include "app/ui/frmPref.h"
#include "attributes/ui/frmAttr.h"
#include "platform/Conversions.h"
#include "platform/TextFile.h"
#include "windowing/AutoSizeCombo.h"
#include "workspace/ui/Fields.h"
#include "workspace/ui/FileDialogs.h"
#include "workspace/ui/Mnemonics.h"
#include "workspace/ui/WindowPlace.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QSplitter>
#include <QTableView>

namespace app {

namespace {

constexpr int TwipsPerPixel = 15;
constexpr int LeastWidth = 10'500; // twips
constexpr int LeastHeight = 9'900;

// Shares of the list's width in percent, by column.
constexpr std::array ColumnShares{25, 25, 10, 20, 20};

workspace::DocumentKind FileListKind()
{
    return {frmMain::tr("List (*.lst)"), QStringLiteral("lst")};
}

} // namespace

frmMain::frmMain(const Surroundings& surroundings, Collaborators collaborators)
    : state_(surroundings.state),
      rows_(surroundings.rows),
      host_(surroundings.host),
      options_(surroundings.options),
      programFolder_(surroundings.programFolder),
      onTop_(surroundings.onTop),
      collaborators_(std::move(collaborators)),
      lvw2_(new fileview::ListViewEditable(rows_, host_, state_, this)),
      gathering_({rows_, lvw2_->Scanned(), lvw2_->FileScanner()}, state_, host_, *this)
{
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(tr("Quillmark"));
    setMinimumSize(LeastWidth / TwipsPerPixel, LeastHeight / TwipsPerPixel);
    resize(960, 720);
    ApplySkin();
    menus_ = new QMenuBar(this);
    menus_->setNativeMenuBar(false);
    commands_ = FillMenus(*menus_, [this](int command) { RunCommand(command); });
    auto* panes = new QSplitter(this);
    panes->setObjectName(QStringLiteral("panes"));
    panes->addWidget(NewFolderPane());
    panes->addWidget(NewListPane());
    panes->setStretchFactor(1, 1);
    panes->setChildrenCollapsible(false);
    panes->setSizes({260, 700});
    QWidget* const bottom = NewBottomPane();
    notWhileScanning_.push_back(panes);
    ConnectList();

    // The panes hang on the window's edges.
    const int menuHeight = menus_->sizeHint().height();
    const int bottomHeight = bottom->sizeHint().height();
    menus_->setGeometry(0, 0, width(), menuHeight);
    panes->setGeometry(0, menuHeight, width(), height() - menuHeight - bottomHeight);
    bottom->setGeometry(0, height() - bottomHeight, width(), bottomHeight);
    menus_->setProperty("Tag", QStringLiteral("TTTF*/"));
    panes->setProperty("Tag", QStringLiteral("TTTT*/"));
    bottom->setProperty("Tag", QStringLiteral("TFTT*/"));

    onTop_.Join(windowing::MainOnTop, *this, *chkOnTop_);
    workspace::AssignMnemonics(*this);
    ftv_->setFocus();
    host_.Attach({this, Label10_, ProgBarM_, nullptr, nullptr});
}

frmMain::~frmMain() = default;

// A style sheet beside the program takes the place of a skin.
void frmMain::ApplySkin()
{
    const auto lines = platform::ReadLines(programFolder_.PathOf(QStringLiteral("Quillmark.qss")));
    if (lines) {
        qApp->setStyleSheet(lines->join(u'\n'));
    }
}

void frmMain::RunCommand(int id)
{
    switch (id) {
    case Quit:
        cmdQuit_Click();
        break;
    case RefreshFolders:
        Command2_Click();
        break;
    case ViewReport:
    case ViewIcons:
    case ViewList:
        SetViewMode(id);
        break;
    case OpenPreferences:
        cmdPref_Click();
        break;
    case OpenReadme:
        ShowHelp();
        break;
    case About:
        ShowAbout();
        break;
    case Rename:
        cmdRename_Click();
        break;
    case SaveSettings:
        SaveSettingsFile();
        Log(QStringLiteral("Settings Saved."));
        break;
    case Attributes:
        Command1_Click();
        break;
    case LoadList:
        mnuFLoad_Click();
        break;
    case SaveList:
        mnuFSave_Click();
        break;
    default:
        break;
    }
}

void frmMain::TellTime()
{
    const QDateTime now = QDateTime::currentDateTime();
    Label1_->setText(QLocale::system().toString(now.date(), QStringLiteral("MMM dd, yyyy")) +
                     QStringLiteral("  ") + platform::DefaultTimeText(now));
}

void frmMain::FitColumns()
{
    // Room for the scroll bar is kept free, or columns of the full width would have one for sideways, too.
    const int width = lvw2_->width() - 2 * lvw2_->ListView().frameWidth() -
                      lvw2_->ListView().verticalScrollBar()->sizeHint().width();
    for (std::size_t column = 0; column < ColumnShares.size(); ++column) {
        lvw2_->SetColumnWidth(static_cast<int>(column), width * ColumnShares.at(column) / 100);
    }
}

void frmMain::Load()
{
    // Before the first scan, during which a person may already get to see the window.
    anchor_ = new windowing::Anchor(*this, QStringLiteral("AnchorCtrl,Positions,frmMain,1110|540"));
    anchor_->DoInit(LeastHeight, LeastWidth);
    const auto* mode = std::find_if(ViewModes.begin(), ViewModes.end(),
                                    [this](const ViewMode& each) { return state_.ViewMode == each.name; });
    SetViewMode(mode == ViewModes.end() ? static_cast<int>(ViewReport) : mode->command);
    chkOnTop_->setChecked(state_.OnTopState == windowing::MainOnTop);
    ftv_->SetShowsHidden(state_.ShowHiddenFolders == 1);
    preferences_ = ReadPreferenceControls(programFolder_);
    state_.SortNamesByMagnitude = preferences_.OptSort1;
    const QString filter = std::exchange(state_.FileTypeFilter, FileGathering::EveryName);
    ftv_->SetSelectedFolder(state_.LastFolder);
    if (ftv_->SelectedFolder().isEmpty()) {
        ftv_->SetSelectedFolder(QDir::homePath());
    }
    if (hasEnded_) {
        return; // a person quit meanwhile
    }
    lvw2_->Set(&fileview::ListProperties::ClearOnDragDrop, state_.ClearOnDragDrop);
    if (state_.AllSelected == 1) {
        rows_.SetCheckedAll(true);
        ShowAllChecked();
    }
    state_.CheckedCount = rows_.Count();
    gathering_.RebuildFileTypes();
    ChooseType(filter);
    isLoaded_ = true;
}

// The type that was stored; every name where there is no such type now.
void frmMain::ChooseType(const QString& type)
{
    const int entry = std::max(0, cmbFileType_->findText(type));
    cmbFileType_->setCurrentIndex(entry);
    if (entry > 0) {
        gathering_.FilterByType(type);
    }
}

void frmMain::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (anchor_) {
        anchor_->DoResize();
    }
}

void frmMain::closeEvent(QCloseEvent* event)
{
    event->setAccepted(hasEnded_);
    if (!hasEnded_) {
        cmdQuit_Click();
    }
}

void frmMain::cmdQuit_Click()
{
    state_.ClosingDown = true;
    state_.StopFlag.Set(); // a preview that runs in the rename window stops, too
    if (gathering_.IsScanning()) {
        gathering_.Stop(); // and EndProgram follows when the scan has come back
        hide();
    } else {
        EndProgram();
    }
}

void frmMain::EndProgram()
{
    if (std::exchange(hasEnded_, true)) {
        return;
    }
    state_.ClosingDown = true;
    state_.KeepFileTypes = true;
    pref_ ? pref_->SaveSettings() : SaveSettingsFile();
    if (bookmarks_) {
        bookmarks_->Save();
    }
    delete std::exchange(anchor_, nullptr); // which keeps the window's position
    collaborators_.ended();
}

void frmMain::ApplyPreferences()
{
    lvw2_->Set(&fileview::ListProperties::ClearOnDragDrop, state_.ClearOnDragDrop);
    ftv_->SetShowsHidden(state_.ShowHiddenFolders == 1);
}

void frmMain::SaveSettingsFile()
{
    // A folder that can't be written to keeps nothing, silently.
    static_cast<void>(WriteSettings(programFolder_, state_, options_, preferences_, ftv_->SelectedFolder(),
                                    cmbFileType_->currentText()));
}

void frmMain::Log(const QString& line)
{
    Text2_->appendPlainText(line);
    Text2_->moveCursor(QTextCursor::End);
}

// During a scan a person can stop it and quit, and nothing else, in no window.
void frmMain::ScanBegins()
{
    SetStopStandsOut(true);
    for (QWidget* widget : notWhileScanning_) {
        Pause(*widget);
    }
    for (QWidget* window : QApplication::topLevelWidgets()) {
        const bool isWindow = window->windowType() == Qt::Window || window->windowType() == Qt::Dialog;
        if (window != this && isWindow && window->isVisible()) {
            Pause(*window);
        }
    }
    for (const auto& [id, command] : commands_) {
        command->setEnabled(id == Quit);
    }
}

void frmMain::Pause(QWidget& widget)
{
    if (widget.isEnabled()) {
        paused_.push_back({&widget, widget.window()->focusWidget()});
        widget.setEnabled(false);
    }
}

void frmMain::ScanEnds()
{
    for (const auto& [id, command] : commands_) {
        command->setEnabled(true);
    }
    const auto paused = std::exchange(paused_, {});
    for (const Paused& each : paused) {
        if (each.widget) {
            each.widget->setEnabled(true);
        }
    }
    SetStopStandsOut(false);
    for (const Paused& each : paused) {
        if (each.focus && each.focus->window()->focusWidget() != each.focus) {
            each.focus->setFocus();
        }
    }
}

void frmMain::SetStopStandsOut(bool standsOut)
{
    QFont font = cmdStopSrch_->font();
    font.setBold(standsOut);
    cmdStopSrch_->setFont(font);
}

void frmMain::ShowCount(int count)
{
    txtPlot_->setText(QString::number(count));
}

void frmMain::ShowAllChecked()
{
    const QSignalBlocker blocker(Check1_);
    Check1_->setChecked(true);
    Check1_->setText(tr("Un&check All"));
}

void frmMain::ShowFileTypes(const QStringList& types)
{
    cmbFileType_->clear();
    cmbFileType_->addItems(types);
    cmbFileType_->setCurrentIndex(0);
    windowing::AutoSizeCombo(*cmbFileType_);
    const QSignalBlocker blocker(txtFilter_); // the rows are all there again
    txtFilter_->clear();
}

void frmMain::RefreshRenameView()
{
    if (isLoaded_) {
        collaborators_.refreshRename();
    }
}

void frmMain::SetViewMode(int id)
{
    for (const ViewMode& mode : ViewModes) {
        commands_[mode.command]->setChecked(mode.command == id);
        if (mode.command == id) {
            lvw2_->Set(&fileview::ListProperties::View, mode.view);
            state_.ViewMode = mode.name;
        }
    }
}

void frmMain::cmdRename_Click()
{
    collaborators_.showRename();
}

void frmMain::cmdStopSrch_Click()
{
    gathering_.Stop();
}

void frmMain::cmdPref_Click()
{
    if (!pref_) {
        pref_ = new frmPref(state_, preferences_, programFolder_,
                            {
                                .apply = [this] { ApplyPreferences(); },
                                .write = [this] { SaveSettingsFile(); },
                            },
                            this);
    }
    pref_->Open();
}

frmBookmarks& frmMain::Bookmarks()
{
    if (!bookmarks_) {
        bookmarks_ = new frmBookmarks(
            state_, programFolder_, [this](const QString& folder) { GoToFolder(folder); }, onTop_, this);
        connect(bookmarks_, &frmBookmarks::AskingChanged, this, [this](bool asks) {
            if (pref_) {
                pref_->ShowAsksForNames(asks);
            }
        });
    }
    return *bookmarks_;
}

// During a scan no other folder can be chosen, nor by a bookmark.
void frmMain::GoToFolder(const QString& folder)
{
    if (!gathering_.IsScanning()) {
        ftv_->SetSelectedFolder(folder);
    }
}

void frmMain::cmdBookmarks_Click()
{
    workspace::BringUp(Bookmarks());
}

void frmMain::Command5_Click()
{
    if (ftv_->SelectedFolder().isEmpty()) {
        return;
    }
    Bookmarks().Add(ftv_->SelectedFolder(), *Command5_);
}

void frmMain::Command1_Click()
{
    if (!attributes_) {
        attributes_ = new attributes::frmAttr(
            rows_, [this] { return gathering_.CountOfLVW(); }, host_, this);
    }
    attributes_->Open();
}

void frmMain::Command2_Click()
{
    ftv_->RefreshFolders();
}

void frmMain::Command8_Click()
{
    if (!lists_) {
        lists_ = new frmListMan(
            gathering_, programFolder_, [this] { return cmbFileType_->currentText(); }, this);
    }
    lists_->Open();
}

void frmMain::mnuFSave_Click()
{
    const auto path = workspace::AskWhereToSave(*this, tr("Save File List"), FileListKind());
    if (!path) {
        return;
    }
    gathering_.RefreshCheckedCount();
    if (const auto status = SaveFileList(*path, rows_); !status.IsOk()) {
        host_.ShowError(status.Description());
    }
}

void frmMain::mnuFLoad_Click()
{
    const auto path = workspace::AskWhatToLoad(*this, tr("Load File List"), FileListKind());
    if (path && !gathering_.LoadList(*path)) {
        QMessageBox::information(this, tr("Tarnwick"), tr("Invalid File"));
    }
}

void frmMain::ShowHelp()
{
    if (!help_) {
        help_ = new frmHelp(this);
    }
    workspace::BringUp(*help_);
}

void frmMain::ShowAbout()
{
    QMessageBox::about(this, tr("About Quillmark"),
                       tr("<h3>Quillmark</h3><p>For Files and Folders</p><p>Version 1.1.0</p>"));
}

} // namespace app

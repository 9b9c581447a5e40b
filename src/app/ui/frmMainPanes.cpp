// SPDX-License-Identifier: MIT
//
// The panes of the main window: folders, list, and the bottom with commands, log and progress; and what the
// list is bound to.
#include "app/ui/frmMain.h"
#include "workspace/ui/Fields.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

#include <chrono>

namespace app {

QPushButton* frmMain::AddButton(QBoxLayout& row, const char* name, const QString& caption,
                                const QString& tooltip, void (frmMain::*command)())
{
    auto* button = new QPushButton(caption, this);
    button->setObjectName(QLatin1String(name));
    button->setToolTip(tooltip);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, command);
    row.addWidget(button);
    return button;
}

QCheckBox* frmMain::AddBox(QBoxLayout& row, const char* name, const QString& caption, const QString& tooltip)
{
    auto* box = new QCheckBox(caption, this);
    box->setObjectName(QLatin1String(name));
    box->setToolTip(tooltip);
    row.addWidget(box);
    return box;
}

QWidget* frmMain::NewFolderPane()
{
    auto* pane = new QWidget(this);
    auto* column = new QVBoxLayout(pane);
    column->setContentsMargins(9, 6, 3, 3);
    ftv_ = new FolderTree(pane);
    ftv_->setObjectName(QStringLiteral("ftv"));
    ftv_->setAccessibleName(tr("Folders"));
    ftv_->setToolTip(tr("Select drawing folder(s)"));
    connect(ftv_, &FolderTree::FolderSelected, this,
            [this](const QString& folder) { gathering_.FolderSelected(folder); });
    connect(ftv_, &FolderTree::FolderChecked, this,
            [this](const QString& folder, bool checked) { gathering_.FolderChecked(folder, checked); });
    column->addWidget(ftv_, 1);
    Check2_ = AddBox(*column, "Check2", tr("&Search Subfolders"), {});
    Check6_ = AddBox(*column, "Check6", tr("Multiple Folder Select Mode"), {});
    auto* row = new QHBoxLayout;
    AddButton(*row, "Command2", tr("Re&fresh Folders"),
              tr("Click to Refresh folder view in case of addition/deletion of folder(s)."),
              &frmMain::Command2_Click);
    AddButton(*row, "cmdBookmarks", tr("BookMarks"), tr("Manage/Load Your Bookmarks"),
              &frmMain::cmdBookmarks_Click);
    Command5_ = AddButton(*row, "Command5", QStringLiteral("+"), tr("Add Selected Folder to BookMarks"),
                          &frmMain::Command5_Click);
    Command5_->setAccessibleName(Command5_->toolTip());
    column->addLayout(row);
    connect(Check2_, &QCheckBox::toggled, this, [this](bool on) {
        const QCursor pointer = cursor();
        setCursor(Qt::WaitCursor);
        gathering_.SearchSubfolders(on);
        setCursor(pointer);
    });
    connect(Check6_, &QCheckBox::toggled, this, [this](bool on) {
        {
            // Subfolders aren't searched after either switch, and the box says so.
            const QSignalBlocker blocker(Check2_);
            Check2_->setChecked(false);
        }
        Check2_->setEnabled(!on);
        ftv_->SetCheckBoxes(on);
        gathering_.SetMultipleFolders(on);
    });
    return pane;
}

QWidget* frmMain::NewListPane()
{
    auto* pane = new QWidget(this);
    auto* column = new QVBoxLayout(pane);
    column->setContentsMargins(3, 6, 9, 3);
    auto* filters = new QHBoxLayout;
    QGroupBox* types = workspace::NewFrame(QLatin1String("FrameType"), tr("File Type"));
    cmbFileType_ = new QComboBox(types);
    cmbFileType_->setObjectName(QStringLiteral("cmbFileType"));
    cmbFileType_->setAccessibleName(tr("File Type"));
    cmbFileType_->setMinimumContentsLength(18);
    workspace::PassWheelWithoutFocus(*cmbFileType_);
    workspace::ColumnOf(*types).addWidget(cmbFileType_);
    filters->addWidget(types);
    QGroupBox* names = workspace::NewFrame(QLatin1String("FrameFilter"), tr("Filter Filenames"));
    txtFilter_ = workspace::NewBox(QStringLiteral("txtFilter"), 0, tr("Filter Filenames"));
    txtFilter_->setToolTip(tr("Filter select files"));
    workspace::ColumnOf(*names).addWidget(txtFilter_);
    filters->addWidget(names, 1);
    column->addLayout(filters);

    lvw2_->setParent(pane);
    lvw2_->setObjectName(QStringLiteral("lvw2"));
    lvw2_->ListView().setToolTip(tr("File view window with drag-drop. Right click for options."));
    lvw2_->SetEmptyText(tr("No files here"));
    column->addWidget(lvw2_, 1);

    auto* counts = new QHBoxLayout;
    Check1_ = AddBox(*counts, "Check1", tr("&Check All"), tr("Check all files in File view"));
    counts->addSpacing(12);
    auto* hint = workspace::NewHint(tr("Right Click fileview for options"));
    hint->setObjectName(QStringLiteral("Label2"));
    hint->setWordWrap(false);
    counts->addWidget(hint);
    counts->addStretch(1);
    txtPlot_ = workspace::NewBox(QStringLiteral("txtPlot"), 7, tr("Number of files"));
    txtPlot_->setReadOnly(true);
    txtPlot_->setAlignment(Qt::AlignRight);
    counts->addWidget(txtPlot_);
    auto* items = new QLabel(tr("items"), pane);
    items->setObjectName(QStringLiteral("Label4"));
    counts->addWidget(items);
    column->addLayout(counts);
    return pane;
}

QWidget* frmMain::NewBottomPane()
{
    auto* pane = new QWidget(this);
    pane->setObjectName(QStringLiteral("bottom"));
    auto* column = new QVBoxLayout(pane);
    column->setContentsMargins(9, 3, 9, 6);
    auto* buttons = new QHBoxLayout;
    notWhileScanning_ = {
        AddButton(*buttons, "cmdRename", tr("&Rename"), tr("Click to bring up the Renamer Window"),
                  &frmMain::cmdRename_Click),
        AddButton(*buttons, "Command1", tr("&Attributes"), tr("Click to Change Attributes."),
                  &frmMain::Command1_Click),
        AddButton(*buttons, "Command8", tr("Filelists"), tr("Manage/Load Your File Lists"),
                  &frmMain::Command8_Click),
        AddButton(*buttons, "cmdPref", tr("Preferences"), tr("Set the Options"), &frmMain::cmdPref_Click),
    };
    cmdStopSrch_ = AddButton(*buttons, "cmdStopSrch", tr("S&top Search"),
                             tr("Click to Stop Searching the Subfolders."), &frmMain::cmdStopSrch_Click);
    buttons->addStretch(1);
    chkOnTop_ = AddBox(*buttons, "chkOnTop", tr("On Top"), tr("Select to make this window topmost."));
    AddButton(*buttons, "cmdQuit", tr("&Quit"), tr("Click to Exit "), &frmMain::cmdQuit_Click);
    column->addLayout(buttons);

    Text2_ = new QPlainTextEdit(pane);
    Text2_->setObjectName(QStringLiteral("Text2"));
    Text2_->setAccessibleName(tr("Log"));
    Text2_->setReadOnly(true);
    Text2_->setTabChangesFocus(true);
    Text2_->setFixedHeight(Text2_->fontMetrics().lineSpacing() * 4 + 12);
    column->addWidget(Text2_);

    auto* status = new QHBoxLayout;
    Label10_ = new QLabel(QStringLiteral("Ready"), pane);
    Label10_->setObjectName(QStringLiteral("Label10"));
    Label10_->setMinimumWidth(fontMetrics().horizontalAdvance(tr("Changing Attributes...")) + 12);
    ProgBarM_ = new QProgressBar(pane);
    ProgBarM_->setObjectName(QStringLiteral("ProgBarM"));
    ProgBarM_->setAccessibleName(tr("Progress"));
    ProgBarM_->setValue(0);
    ProgBarM_->setTextVisible(false);
    Label1_ = new QLabel(pane);
    Label1_->setObjectName(QStringLiteral("Label1"));
    status->addWidget(Label10_);
    status->addWidget(ProgBarM_, 1);
    status->addSpacing(12);
    status->addWidget(Label1_);
    column->addLayout(status);
    return pane;
}

void frmMain::ConnectList()
{
    using fileview::ListProperties;
    using fileview::ListViewEditable;
    lvw2_->Set(&ListProperties::Checkboxes, true);
    lvw2_->Set(&ListProperties::HideSelection, true);
    lvw2_->Set(&ListProperties::MultiSelect, false);
    lvw2_->Set(&ListProperties::AutoPopupMenu, true);
    connect(lvw2_, &ListViewEditable::Click, this, [this] { gathering_.ListClicked(); });
    connect(lvw2_, &ListViewEditable::ColumnClick, this, [this] { gathering_.RefreshCheckedCount(); });
    connect(lvw2_, &ListViewEditable::KeyDown, this, [this] { gathering_.RefreshCheckedCount(); });
    connect(lvw2_, &ListViewEditable::OLEDragDrop, this, [this] { gathering_.FilesDropped(); });
    connect(lvw2_, &ListViewEditable::MenuCommandDone, this, [this] { gathering_.ListClicked(); });
    connect(lvw2_, &ListViewEditable::DropBegins, this, [this] { gathering_.DropBegins(); });
    connect(lvw2_, &ListViewEditable::DropEnds, this, [this] { gathering_.DropEnds(); });
    connect(lvw2_, &ListViewEditable::Resize, this, &frmMain::FitColumns);
    connect(Check1_, &QCheckBox::toggled, this, [this](bool on) {
        Check1_->setText(on ? tr("Un&check All") : tr("&Check All"));
        gathering_.CheckAll(on);
    });
    connect(cmbFileType_, &QComboBox::activated, this,
            [this] { gathering_.FilterByType(cmbFileType_->currentText()); });
    connect(txtFilter_, &QLineEdit::textChanged, this, [this](const QString& text) {
        txtFilter_->setClearButtonEnabled(true); // only now, since its icon takes long to find
        gathering_.FilterByName(text);
    });
    auto* clock = new QTimer(this);
    clock->setObjectName(QStringLiteral("Timer1"));
    connect(clock, &QTimer::timeout, this, &frmMain::TellTime);
    clock->start(std::chrono::seconds(1));
    TellTime();
}

} // namespace app

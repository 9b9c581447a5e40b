// SPDX-License-Identifier: MIT
#include "app/ui/frmPref.h"

#include "workspace/ui/Fields.h"
#include "workspace/ui/Mnemonics.h"
#include "workspace/ui/WindowPlace.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QCloseEvent>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QTabWidget>

namespace app {

namespace {

// A box that shows an option of the state, 0 or 1. The window takes it over with OK.
struct OptionBox
{
    const char* name;
    const char* caption;
    int model::AppState::*option;
};

constexpr std::array RenamingOptions{
    OptionBox{"Check2",
              QT_TRANSLATE_NOOP("app::frmPref", "Automatically Refresh Rename View on Main File View Click."),
              &model::AppState::AutoRefreshRenameView},
    OptionBox{"Check3",
              QT_TRANSLATE_NOOP("app::frmPref", "Automatically Refresh Main File View after Renaming."),
              &model::AppState::AutoRefreshMainView},
    OptionBox{"Check4", QT_TRANSLATE_NOOP("app::frmPref", "Automatically Validate Names after Preview."),
              &model::AppState::AutoValidate},
    OptionBox{
        "Check5",
        QT_TRANSLATE_NOOP("app::frmPref", "Automatically Normalize File/Dir Attributes before renaming."),
        &model::AppState::AutoNormalizeAttributes},
    OptionBox{"Check7", QT_TRANSLATE_NOOP("app::frmPref", "Show Rename Log After Each Renaming."),
              &model::AppState::ShowRenameLog},
    OptionBox{"Check8", QT_TRANSLATE_NOOP("app::frmPref", "Save Log File for each operation."),
              &model::AppState::SaveLogFile},
    OptionBox{"Check9", QT_TRANSLATE_NOOP("app::frmPref", "Show Rename Drop dialog."),
              &model::AppState::ShowRenameDrop},
    OptionBox{"Check12", QT_TRANSLATE_NOOP("app::frmPref", "Show Confirmation Message after Renaming."),
              &model::AppState::ConfirmAfterRename},
};

constexpr OptionBox HiddenFoldersBox{"Check6",
                                     QT_TRANSLATE_NOOP("app::frmPref", "Show Hidden Folders in Folder Pane."),
                                     &model::AppState::ShowHiddenFolders};

// A box that is a store of its own and holds as soon as it is clicked.
struct StoredBox
{
    const char* name;
    const char* caption;
    bool PreferenceControls::*value;
};

constexpr std::array StoredBoxes{
    StoredBox{"Check19", QT_TRANSLATE_NOOP("app::frmPref", "Save File Type Selection"),
              &PreferenceControls::Check19},
    StoredBox{"Check1", QT_TRANSLATE_NOOP("app::frmPref", "Save Last Selected Folder"),
              &PreferenceControls::Check1},
    StoredBox{"Check10", QT_TRANSLATE_NOOP("app::frmPref", "All Files in File View Checked Initially."),
              &PreferenceControls::Check10},
};

QCheckBox& Box(const QWidget& window, const char* name)
{
    return *window.findChild<QCheckBox*>(QLatin1String(name));
}

template<class Do>
void ForEachOption(Do act)
{
    for (const OptionBox& box : RenamingOptions) {
        act(box);
    }
    act(HiddenFoldersBox);
}

} // namespace

frmPref::frmPref(model::AppState& state, PreferenceControls& controls,
                 const platform::ProgramFolder& programFolder, Functions functions, QWidget* parent)
    : QWidget(parent, Qt::Window),
      state_(state),
      controls_(controls),
      programFolder_(programFolder),
      functions_(std::move(functions))
{
    setObjectName(QStringLiteral("frmPref"));
    setWindowTitle(tr("Quillmark - Preferences"));
    auto* column = new QVBoxLayout(this);
    SSTab1_ = new QTabWidget(this);
    SSTab1_->setObjectName(QStringLiteral("SSTab1"));
    SSTab1_->addTab(NewRenamingPage(), tr("Renaming Options"));
    SSTab1_->addTab(NewViewPage(), tr("File/Folder View"));
    column->addWidget(SSTab1_, 1);
    QHBoxLayout& row = workspace::AddRow(*column);
    row.addStretch(1);
    QPushButton* ok = workspace::NewButton(QLatin1String("Command1"), tr("OK"));
    QPushButton* cancel = workspace::NewButton(QLatin1String("Command2"), tr("CANCEL"));
    row.addWidget(ok);
    row.addWidget(cancel);
    connect(ok, &QPushButton::clicked, this, [this] {
        SaveSettings();
        hide();
    });
    connect(cancel, &QPushButton::clicked, this, &QWidget::close);
    connect(new QShortcut(QKeySequence::Cancel, this), &QShortcut::activated, this, &QWidget::close);
    ListenToStoredControls();
    workspace::AssignMnemonics(*this);
}

QCheckBox* frmPref::AddBox(QBoxLayout& column, const char* name, const QString& caption)
{
    QCheckBox* box = workspace::NewCheckBox(QLatin1String(name), caption);
    column.addWidget(box);
    return box;
}

QWidget* frmPref::NewRenamingPage()
{
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    for (const OptionBox& box : RenamingOptions) {
        AddBox(*column, box.name, tr(box.caption));
    }
    AddBox(*column, "Check11", tr("Context Menu Command Appends Items to Existing.")); // kept by nobody
    column->addStretch(1);
    return page;
}

QWidget* frmPref::NewViewPage()
{
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    AddBox(*column, HiddenFoldersBox.name, tr(HiddenFoldersBox.caption));
    Check21_ = AddBox(*column, "Check21", tr("Clear File List View on Drag-Drop of Folders."));
    for (const StoredBox& box : StoredBoxes) {
        AddBox(*column, box.name, tr(box.caption));
    }
    chkBkr_ = AddBox(*column, "chkBkr", tr("Always ask for Bookmark Names."));
    AddBox(*column, "chkMainMax", tr("Start Main Window Maximized")); // kept by nobody
    column->addWidget(NewSortFrame());
    column->addStretch(1);
    return page;
}

QWidget* frmPref::NewSortFrame()
{
    QGroupBox* frame = workspace::NewFrame(QLatin1String("FrameSort"), tr("Sort Names (oncolumn click):"));
    QVBoxLayout& column = workspace::ColumnOf(*frame);
    OptSort1_ =
        workspace::NewRadioButton(QStringLiteral("OptSort1"), tr("By Magnitude (Ignoring pre-zeros)"));
    OptSort0_ = workspace::NewRadioButton(QStringLiteral("OptSort0"), tr("Alphabetically"));
    column.addWidget(OptSort1_);
    column.addWidget(OptSort0_);
    return frame;
}

void frmPref::ListenToStoredControls()
{
    for (const StoredBox& box : StoredBoxes) {
        connect(&Box(*this, box.name), &QCheckBox::clicked, this,
                [this, value = box.value](bool on) { controls_.*value = on; });
    }
    connect(&Box(*this, "Check10"), &QCheckBox::clicked, this,
            [this](bool on) { state_.AllSelected = on ? 1 : 0; }); // stays so even if the window is cancelled
    connect(OptSort1_, &QRadioButton::toggled, this, [this](bool on) {
        controls_.OptSort1 = on;
        state_.SortNamesByMagnitude = on;
    });
}

void frmPref::ShowValues()
{
    ForEachOption([this](const OptionBox& box) { Box(*this, box.name).setChecked(state_.*box.option == 1); });
    for (const StoredBox& box : StoredBoxes) {
        Box(*this, box.name).setChecked(controls_.*box.value);
    }
    const bool byMagnitude = controls_.OptSort1;
    (byMagnitude ? OptSort1_ : OptSort0_)->setChecked(true);
    Check21_->setChecked(state_.ClearOnDragDrop);
    chkBkr_->setChecked(state_.DontAskBookmarkNames != 1);
}

void frmPref::Open()
{
    if (!isVisible()) {
        ShowValues();
        SSTab1_->setCurrentIndex(0);
        SSTab1_->setFocus();
    }
    workspace::BringUp(*this);
}

void frmPref::ShowAsksForNames(bool asks)
{
    chkBkr_->setChecked(asks);
}

void frmPref::SaveSettings()
{
    if (isVisible()) {
        state_.ClearOnDragDrop = Check21_->isChecked();
        ForEachOption(
            [this](const OptionBox& box) { state_.*box.option = Box(*this, box.name).isChecked() ? 1 : 0; });
        state_.DontAskBookmarkNames = chkBkr_->isChecked() ? 0 : 1;
        functions_.apply();
    }
    functions_.write();
}

// Closed without OK: the controls that are a store go back to what is written. A click on Check10 has changed
// the state, and that stays.
void frmPref::closeEvent(QCloseEvent* event)
{
    if (isVisible()) {
        controls_ = ReadPreferenceControls(programFolder_);
        state_.SortNamesByMagnitude = controls_.OptSort1;
    }
    QWidget::closeEvent(event);
}

} // namespace app

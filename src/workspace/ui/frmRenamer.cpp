// SPDX-License-Identifier: MIT
#include "workspace/ui/frmRenamer.h"

#include "platform/NameBytes.h"
#include "workspace/ui/ActionListPane.h"
#include "workspace/ui/CellColours.h"
#include "workspace/ui/Fields.h"
#include "workspace/ui/FileDialogs.h"
#include "workspace/ui/Mnemonics.h"
#include "workspace/ui/Panels.h"
#include "workspace/ui/PreviewGrid.h"
#include "workspace/ui/ReplaceListWindow.h"
#include "workspace/ui/WindowPlace.h"
#include "workspace/ui/frmLog.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QDesktopServices>
#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QUrl>
#include <QVBoxLayout>

namespace workspace {
namespace {

// About what a title bar takes of a small screen, in pixels.
constexpr int TitleBarHeight = 40;

// The title bar of a window that offers everything but closing it.
constexpr Qt::WindowFlags FlagsWithoutClose = Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                              Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint;

QHBoxLayout& NewRow(QWidget& owner)
{
    auto* row = new QHBoxLayout(&owner);
    row->setContentsMargins({});
    return *row;
}

} // namespace

frmRenamer::frmRenamer(RenameWorkspace& workspace, model::AppState& state, model::RandomSource& random,
                       Collaborators collaborators, QWidget* parent)
    : QWidget(parent, FlagsWithoutClose),
      workspace_(workspace),
      state_(state),
      random_(random),
      ownOnTop_(state),
      collaborators_(std::move(collaborators)),
      pickers_(state, random)
{
    setObjectName(QStringLiteral("frmRenamer"));
    setWindowTitle(tr("Quillmark - Renamer"));
    state_.StopFlag.Clear();

    auto* options = new QSplitter(Qt::Horizontal);
    actions_ = new ActionListPane(workspace_.options.List3);
    auto* parts = new QSplitter(Qt::Vertical);
    auto* column = new QVBoxLayout(this);
    column->addWidget(NewCommandRow());
    column->addWidget(parts, 1);
    parts->addWidget(options);
    options->addWidget(actions_);
    options->addWidget(NewPanelArea());
    parts->addWidget(NewGridArea());
    column->addWidget(NewRunRow());
    options->setStretchFactor(1, 1);
    parts->setStretchFactor(1, 1);
    for (QSplitter* splitter : {options, parts}) {
        splitter->setChildrenCollapsible(false);
    }
    hostControls_.window = this;
    hostControls_.grid = &workspace_.grid;

    connect(actions_, &ActionListPane::CurrentActionChanged, this, &frmRenamer::ShowCurrentPanel);
    ShowCurrentPanel();
    actions_->setFocus(); // a rename begins with an action
    AssignMnemonics(*this);
    resize(QSize(1000, 720).boundedTo(screen()->availableSize() - QSize(0, TitleBarHeight)));
    parts->setSizes({350, 300});
}

frmRenamer::~frmRenamer() = default;

QPushButton* frmRenamer::AddCommand(QHBoxLayout& row, QLatin1String name, const QString& caption,
                                    void (frmRenamer::*command)())
{
    QPushButton* button = NewButton(name, caption);
    row.addWidget(button);
    connect(button, &QPushButton::clicked, this, [this, command] {
        // A name in the middle of an edit counts, also where a shortcut left the focus in its box.
        if (const auto* box = findChild<QLineEdit*>(NameEditor); box && box->hasFocus()) {
            grid_->setFocus();
        }
        (this->*command)();
    });
    return button;
}

QWidget* frmRenamer::NewCommandRow()
{
    auto* area = new QWidget;
    QHBoxLayout& row = NewRow(*area);
    AddCommand(row, QLatin1String("Command14"), tr("&File Selection"), &frmRenamer::Command14_Click)
        ->setEnabled(static_cast<bool>(collaborators_.fileSelection));
    AddCommand(row, QLatin1String("cmdRefresh"), tr("R&efresh"), &frmRenamer::cmdRefresh_Click);
    AddCommand(row, QLatin1String("cmdClear"), tr("&Clear"), &frmRenamer::cmdClear_Click);
    row.addSpacing(12);
    AddCommand(row, QLatin1String("Command1"), tr("&Manage"), &frmRenamer::Command1_Click)
        ->setEnabled(static_cast<bool>(collaborators_.manage));
    AddCommand(row, QLatin1String("Command12"), tr("Create Rename &drop"), &frmRenamer::Command12_Click)
        ->setEnabled(static_cast<bool>(collaborators_.createDrop));
    AddCommand(row, QLatin1String("cmdLog"), tr("Rename &Log"), &frmRenamer::cmdLog_Click);
    row.addStretch(1);
    auto* onTop = NewCheckBox(QLatin1String("chkOnTop"), tr("On Top"));
    OnTop().Join(windowing::RenamerOnTop, *this, *onTop);
    row.addWidget(onTop);
    return area;
}

QWidget* frmRenamer::NewPanelArea()
{
    auto* scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    auto* area = new QWidget;
    auto* column = new QVBoxLayout(area);
    column->setContentsMargins({});
    int widest = 0; // panels scroll up and down only
    const Panels panels({binder_, random_, pickers_, [this] { cmdReplaceOptions_Click(); },
                         [this] {
                             Command3_Click();
                         }});
    for (const model::ActionKind kind : model::AllActionKinds) {
        QWidget* panel = panels.NewPanel(kind, workspace_.options);
        MarkAsAlternative(*panel);
        panels_[static_cast<std::size_t>(kind)] = panel;
        column->addWidget(panel);
        widest = qMax(widest, panel->minimumSizeHint().width());
    }
    column->addStretch(1);
    scroll->setWidget(area);
    scroll->setMinimumWidth(widest + scroll->verticalScrollBar()->sizeHint().width());
    return scroll;
}

QWidget* frmRenamer::NewLegend()
{
    auto* legend = new QWidget;
    QHBoxLayout& row = NewRow(*legend);
    const auto addColour = [&row](const QString& text, model::ValidationState state) {
        const QColor colour(GridPre::ColourOf(state));
        auto* label = new QLabel(text);
        QPalette palette = label->palette();
        palette.setColor(QPalette::Window, colour);
        palette.setColor(QPalette::WindowText, TextColourOn(colour));
        label->setPalette(palette);
        label->setAutoFillBackground(true);
        label->setContentsMargins(8, 2, 8, 2);
        row.addWidget(label);
    };
    addColour(tr("Duplicate"), model::ValidationState::Duplicate);
    addColour(tr("Not Changed"), model::ValidationState::NotChanged);
    return legend;
}

QWidget* frmRenamer::NewGridArea()
{
    auto* area = new QWidget;
    auto* column = new QVBoxLayout(area);
    column->setContentsMargins({});
    QHBoxLayout& row = AddRow(*column);
    hostControls_.rowCount = new QLabel;
    hostControls_.rowCount->setObjectName(QStringLiteral("Label1"));
    grid_ = new PreviewGrid(workspace_.grid);
    grid_->setObjectName(QStringLiteral("GridPre"));
    grid_->setAccessibleName(tr("Original and new names"));
    auto* hint = new QLabel(tr("(Double click to manually rename)"));
    hint->setBuddy(grid_);
    auto* sort = new QComboBox;
    sort->setObjectName(QStringLiteral("Combo1"));
    sort->addItems(RenameWorkspace::SortEntries());
    sort->setMaxVisibleItems(static_cast<int>(RenameWorkspace::SortEntries().size()));
    sort->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    sort->setMinimumContentsLength(14);
    sort->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    sort->setPlaceholderText(tr("As listed"));
    sort->setCurrentIndex(-1);
    PassWheelWithoutFocus(*sort);

    row.addWidget(hint);
    row.addWidget(hostControls_.rowCount, 1);
    row.addWidget(NewLegend());
    row.addSpacing(12);
    AddField(row, tr("Sort Files"), *sort);
    column->addWidget(grid_, 1);

    connect(grid_, &PreviewGrid::OriginalDoubleClicked, this, &frmRenamer::OpenOriginal);
    connect(sort, &QComboBox::activated, this, [this](int entry) { workspace_.SortBy(entry); });
    // New rows come in the order of the main list.
    connect(&workspace_.grid, &GridPre::modelReset, sort, [sort] { sort->setCurrentIndex(-1); });
    return area;
}

QWidget* frmRenamer::NewRunRow()
{
    auto* area = new QWidget;
    QHBoxLayout& row = NewRow(*area);
    AddCommand(row, QLatin1String("cmdPreview"), tr("&Preview"), &frmRenamer::cmdPreview_Click);
    AddCommand(row, QLatin1String("cmdValidate"), tr("&Validate"), &frmRenamer::cmdValidate_Click);
    AddCommand(row, QLatin1String("cmdExecute"), tr("&Rename Now!"), &frmRenamer::cmdExecute_Click);
    AddCommand(row, QLatin1String("Command13"), tr("&STOP!"), &frmRenamer::Command13_Click);
    row.addSpacing(12);
    hostControls_.status = new QLabel(tr("Ready"));
    hostControls_.status->setObjectName(QStringLiteral("lblStatus"));
    hostControls_.status->setMinimumWidth(
        fontMetrics().horizontalAdvance(tr("Refreshing Main File View...")));
    hostControls_.progress = new QProgressBar;
    hostControls_.progress->setObjectName(QStringLiteral("ProgBar"));
    hostControls_.progress->setAccessibleName(tr("Progress"));
    hostControls_.progress->setValue(0);
    hostControls_.progress->setTextVisible(false);
    row.addWidget(hostControls_.status);
    row.addWidget(hostControls_.progress, 1);
    row.addSpacing(12);
    AddCommand(row, QLatin1String("cmdClose"), tr("E&xit"), &frmRenamer::cmdClose_Click);
    return area;
}

WindowHost::Controls frmRenamer::HostControls()
{
    return hostControls_;
}

void frmRenamer::ShowOptions()
{
    binder_.Show();
    actions_->ShowActions();
    ShowCurrentPanel();
}

void frmRenamer::ShowCurrentPanel()
{
    const actions::ActionList& list = workspace_.options.List3;
    const auto row = static_cast<std::size_t>(list.currentIndex);
    const auto kind = list.currentIndex >= 0 && row < list.entries.size()
                          ? model::ActionKindOf(list.entries[row].text)
                          : std::nullopt;
    if (!kind) {
        return; // an emptied list leaves the panel of the entry chosen last
    }
    for (const model::ActionKind each : model::AllActionKinds) {
        panels_[static_cast<std::size_t>(each)]->setVisible(kind == each);
    }
}

void frmRenamer::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        workspace_.Activated();
    }
    QWidget::changeEvent(event);
}

void frmRenamer::closeEvent(QCloseEvent* event)
{
    event->setAccepted(!event->spontaneous());
}

void frmRenamer::OpenOriginal(int row)
{
    // The URL is made of the name's bytes, which need not be UTF-8.
    QByteArray path = platform::ToBytes(workspace_.grid.Row(row).path + workspace_.grid.Row(row).original);
    if (!path.startsWith('/')) {
        path.prepend(QFile::encodeName(QDir::currentPath()) + '/');
    }
    QDesktopServices::openUrl(QUrl::fromEncoded("file://" + path.toPercentEncoding("/")));
}

windowing::OnTopGroup& frmRenamer::OnTop()
{
    return collaborators_.onTop ? *collaborators_.onTop : ownOnTop_;
}

void frmRenamer::cmdPreview_Click()
{
    workspace_.cmdPreview_Click();
    workspace_.grid.AnnounceChanges();
}

void frmRenamer::cmdValidate_Click()
{
    workspace_.cmdValidate_Click();
    workspace_.grid.AnnounceChanges();
}

void frmRenamer::cmdExecute_Click()
{
    const bool done = workspace_.cmdExecute_Click();
    workspace_.grid.AnnounceChanges();
    if (done && collaborators_.renamed) {
        collaborators_.renamed();
    }
    if (done && state_.ShowRenameLog == 1) {
        cmdLog_Click();
    } else if (log_ && log_->isVisible()) {
        log_->Reload(); // or it would go on showing the run before
    }
}

void frmRenamer::Command13_Click()
{
    workspace_.Command13_Click();
}

void frmRenamer::cmdClear_Click()
{
    workspace_.cmdClear_Click();
    workspace_.grid.AnnounceChanges();
}

void frmRenamer::cmdRefresh_Click()
{
    workspace_.cmdRefresh_Click();
}

void frmRenamer::Command12_Click()
{
    const auto path =
        AskWhereToSave(*this, tr("Create Rename Drop"), {tr("Rename Drop (*.rnp)"), QStringLiteral("rnp")});
    if (!path) {
        return;
    }
    const platform::Status status = collaborators_.createDrop(*path);
    if (!status.IsOk()) {
        QMessageBox::information(this, tr("Renamer"), status.Description());
    }
}

void frmRenamer::Command1_Click()
{
    collaborators_.manage();
}

void frmRenamer::Command14_Click()
{
    collaborators_.fileSelection();
}

void frmRenamer::cmdLog_Click()
{
    if (!log_) {
        log_ = new frmLog(workspace_.LogPath(), this);
    }
    log_->Reload();
    BringUp(*log_);
}

void frmRenamer::cmdClose_Click()
{
    state_.StopFlag.Set();
    for (ReplaceListWindow* list : {replaceList_, extensionList_}) {
        if (list) {
            list->close();
        }
    }
    hide();
}

void frmRenamer::OpenReplaceList(ReplaceListWindow*& window, ReplaceListKind kind)
{
    if (!window) {
        window = new ReplaceListWindow(kind, workspace_.options, pickers_, OnTop(), this);
    }
    window->Open();
}

void frmRenamer::cmdReplaceOptions_Click()
{
    OpenReplaceList(replaceList_, ReplaceListKind::Names);
}

void frmRenamer::Command3_Click()
{
    OpenReplaceList(extensionList_, ReplaceListKind::Extensions);
}

} // namespace workspace

// SPDX-License-Identifier: MIT
#include "workspace/ui/ReplaceListWindow.h"

#include "actions/ValueEntries.h"
#include "workspace/ReplaceListFile.h"
#include "workspace/ui/Fields.h"
#include "workspace/ui/FileDialogs.h"
#include "workspace/ui/Mnemonics.h"
#include "workspace/ui/Pickers.h"
#include "workspace/ui/ReplaceTable.h"
#include "workspace/ui/ValueBlocks.h"
#include "workspace/ui/WindowPlace.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace workspace {
namespace {

DocumentKind ListFiles()
{
    return {ReplaceListWindow::tr("Strings Replace List (*.srl)"), QStringLiteral("srl")};
}

} // namespace

// What makes a window of the three.
struct ReplaceListWindow::Variant
{
    QLatin1String name;
    const char* title;
    std::array<const char*, ReplaceGrid::ColumnCount> heads;
    const QStringList& (*entries)(); // of the combo over a cell
    actions::ReplaceRows& (*rows)(actions::RenameOptions&);
    windowing::OnTopValue onTop;
    bool hasSingleValue; // Check2 and cmbExtAll: one value for all extensions
};

const ReplaceListWindow::Variant& ReplaceListWindow::VariantOf(ReplaceListKind kind)
{
    constexpr auto rowsOfNames = [](actions::RenameOptions& options) -> actions::ReplaceRows& {
        return options.replace.ReplaceList;
    };
    constexpr auto rowsOfExtensions = [](actions::RenameOptions& options) -> actions::ReplaceRows& {
        return options.extension.ExtReplaceList;
    };
    constexpr const char* matchCase = QT_TR_NOOP("Match Case");
    constexpr const char* from = QT_TR_NOOP("From String");
    constexpr const char* to = QT_TR_NOOP("To String");
    static const std::array<Variant, 3> variants{{
        {QLatin1String("frmSReplace"),
         QT_TR_NOOP("Replace File name Strings"),
         {matchCase, from, to},
         actions::ValueEntries,
         rowsOfNames,
         windowing::ReplaceListOnTop,
         false},
        {QLatin1String("frmExtReplace"),
         QT_TR_NOOP("Replace File Extensions"),
         {matchCase, from, to},
         actions::ExtensionEntries,
         rowsOfExtensions,
         windowing::ExtensionListOnTop,
         true},
        // Pairs of a tag and its new value; the flag's column has no heading.
        {QLatin1String("frmExifReplace"),
         QT_TR_NOOP("Strings Replace"),
         {"", QT_TR_NOOP("Exif Tag"), QT_TR_NOOP("Change To")},
         actions::ExifChangeEntries,
         rowsOfNames,
         windowing::ReplaceListOnTop,
         false},
    }};
    return variants[static_cast<std::size_t>(kind)];
}

ReplaceListWindow::ReplaceListWindow(ReplaceListKind kind, actions::RenameOptions& options, Pickers& pickers,
                                     windowing::OnTopGroup& onTop, QWidget* parent)
    : QWidget(parent, Qt::Window),
      variant_(VariantOf(kind)),
      options_(options),
      pickers_(pickers),
      grid_({tr(variant_.heads[0]), tr(variant_.heads[1]), tr(variant_.heads[2])})
{
    setObjectName(variant_.name);
    setWindowTitle(tr(variant_.title));
    auto* column = new QVBoxLayout(this);
    AddMarkRow(*column, onTop);
    if (variant_.hasSingleValue) {
        AddSingleValue(*column);
    }
    table_ = new ReplaceTable(grid_, variant_.entries(), pickers);
    table_->setAccessibleName(windowTitle());
    column->addWidget(table_, 1);
    AddCommandRow(*column);
    connect(new QShortcut(QKeySequence::Cancel, this), &QShortcut::activated, this,
            &ReplaceListWindow::cmdQuit_Click);
    AssignMnemonics(*this);
    resize(560, 420);
}

ReplaceListWindow::~ReplaceListWindow()
{
    delete table_; // before its rows
}

void ReplaceListWindow::AddMarkRow(QVBoxLayout& column, windowing::OnTopGroup& group)
{
    QHBoxLayout& row = AddRow(column);
    markAll_ = NewCheckBox(QLatin1String("Check1"), {});
    row.addWidget(markAll_);
    connect(markAll_, &QCheckBox::toggled, this, &ReplaceListWindow::Check1_Click);
    Check1_Click(false);
    if (variant_.hasSingleValue) {
        single_ = NewCheckBox(QLatin1String("Check2"), tr("Replace all extensions"));
        row.addSpacing(12);
        row.addWidget(single_);
        connect(single_, &QCheckBox::toggled, this, &ReplaceListWindow::Check2_Click);
    }
    row.addStretch(1);
    QCheckBox* onTop = NewCheckBox(QLatin1String("chkOnTop"), tr("On Top"));
    onTop->setToolTip(tr("Select to make this window topmost."));
    row.addWidget(onTop);
    group.Join(variant_.onTop, *this, *onTop);
}

void ReplaceListWindow::AddSingleValue(QVBoxLayout& column)
{
    singleField_ = new QWidget;
    singleValue_ = new QComboBox;
    singleValue_->setObjectName(QStringLiteral("cmbExtAll"));
    SetUpValueCombo(*singleValue_, variant_.entries());
    auto* row = new QHBoxLayout(singleField_);
    row->setContentsMargins({});
    AddField(*row, tr("Replace All Extensions To:"), *singleValue_, 1);
    column.addWidget(singleField_);
    connect(singleValue_, &QComboBox::textActivated, this,
            [this](const QString& entry) { pickers_.Pick(entry, *singleValue_, MaskFrom::Window); });
}

QPushButton* ReplaceListWindow::AddCommand(QHBoxLayout& row, QLatin1String name, const QString& caption,
                                           void (ReplaceListWindow::*command)(), const QString& toolTip)
{
    QPushButton* button = NewButton(name, caption);
    button->setToolTip(toolTip);
    row.addWidget(button);
    connect(button, &QPushButton::clicked, this, command);
    return button;
}

void ReplaceListWindow::AddCommandRow(QVBoxLayout& column)
{
    QHBoxLayout& row = AddRow(column);
    listCommands_ = {
        AddCommand(row, QLatin1String("Command1"), tr("Save List"), &ReplaceListWindow::Command1_Click),
        AddCommand(row, QLatin1String("Command2"), tr("Load List"), &ReplaceListWindow::Command2_Click),
        AddCommand(row, QLatin1String("cmdClear"), tr("&Clear"), &ReplaceListWindow::cmdClear_Click,
                   tr("Clear the lists"))};
    row.addStretch(1);
    AddCommand(row, QLatin1String("cmdCScr"), tr("OK"), &ReplaceListWindow::cmdCScr_Click,
               tr("Click to Replace the texts shown in the left list with those in the right list in the "
                  "selected documents"));
    AddCommand(row, QLatin1String("cmdQuit"), tr("Cancel"), &ReplaceListWindow::cmdQuit_Click,
               tr("Click to Quit"));
}

void ReplaceListWindow::Open()
{
    if (!isVisible()) {
        ShowOptions();
    }
    BringUp(*this);
}

void ReplaceListWindow::ShowOptions()
{
    grid_.Show(variant_.rows(options_));
    table_->setCurrentIndex(grid_.index(0, ReplaceGrid::From - 1));
    const QSignalBlocker quiet(markAll_);
    markAll_->setChecked(false);
    markAll_->setText(tr("&Match Case All"));
    table_->setFocus();
    if (variant_.hasSingleValue) {
        const QString value = options_.extension.ExtensionAllValue;
        singleValue_->setCurrentIndex(-1);
        singleValue_->setEditText(value);
        const QSignalBlocker once(single_);
        single_->setChecked(!value.isEmpty());
        Check2_Click(!value.isEmpty()); // the flag is what the box shows
        if (!value.isEmpty()) {
            singleValue_->setFocus();
        }
    }
}

// A cell in the middle of an edit counts, also where a picker is open for it or a shortcut left it the focus.
void ReplaceListWindow::FinishEdit()
{
    pickers_.Close();
    if (table_->viewport()->isAncestorOf(focusWidget())) {
        table_->setFocus();
    }
}

void ReplaceListWindow::closeEvent(QCloseEvent* event)
{
    pickers_.Close();
    QWidget::closeEvent(event);
}

void ReplaceListWindow::Check1_Click(bool on)
{
    markAll_->setText(on ? tr("&Match Case None") : tr("&Match Case All"));
    grid_.MarkAll(on);
}

void ReplaceListWindow::Check2_Click(bool on)
{
    options_.extension.ReplaceAllExtensions = on;
    markAll_->setEnabled(!on);
    table_->setEnabled(!on);
    singleField_->setVisible(on);
    for (QPushButton* button : listCommands_) {
        button->setVisible(!on);
    }
}

void ReplaceListWindow::Command1_Click()
{
    FinishEdit();
    const auto path = AskWhereToSave(*this, tr("Save Replace List"), ListFiles());
    if (!path) {
        return;
    }
    const platform::Status status = SaveReplaceList({markAll_->isChecked(), grid_.Rows()}, *path);
    if (!status.IsOk()) {
        QMessageBox::information(this, tr("Strings Replacer"), status.Description());
    }
}

void ReplaceListWindow::Command2_Click()
{
    FinishEdit();
    const auto path = AskWhatToLoad(*this, tr("Load Replace List"), ListFiles());
    if (!path) {
        return;
    }
    ReplaceListFile list;
    const platform::Status status = LoadReplaceList(list, *path);
    if (!status.IsOk()) {
        QMessageBox::information(this, tr("Strings Replacer"), status.Description());
        return;
    }
    const QSignalBlocker once(markAll_);
    markAll_->setChecked(list.matchCaseAll);
    Check1_Click(list.matchCaseAll); // marks the rows of the list that was there
    grid_.Load(list.rows);
}

void ReplaceListWindow::cmdClear_Click()
{
    FinishEdit();
    grid_.Clear();
    actions::ReplaceRows& rows = variant_.rows(options_);
    rows.assign(rows.size(), {}); // as many as before
}

void ReplaceListWindow::cmdCScr_Click()
{
    FinishEdit();
    variant_.rows(options_) = grid_.Rows();
    if (variant_.hasSingleValue) {
        options_.extension.ExtensionAllValue = singleValue_->currentText();
    }
    close();
}

void ReplaceListWindow::cmdQuit_Click()
{
    close();
}

} // namespace workspace

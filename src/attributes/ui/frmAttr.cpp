// SPDX-License-Identifier: MIT
#include "attributes/ui/frmAttr.h"

#include "workspace/ui/Fields.h"
#include "workspace/ui/Mnemonics.h"
#include "workspace/ui/WindowPlace.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

namespace attributes {

namespace {

struct BoxRow
{
    bool AtbsState::*isChecked;
    const char* caption;
    const char* toolTip = "";
};

// Atbs0 to Atbs5.
constexpr std::array<BoxRow, 6> BoxRows{
    {{&AtbsState::Normal, QT_TRANSLATE_NOOP("attributes::frmAttr", "Normal"),
      QT_TRANSLATE_NOOP("attributes::frmAttr", "Takes all other attributes away")},
     {&AtbsState::ReadOnly, QT_TRANSLATE_NOOP("attributes::frmAttr", "Read Only")},
     {&AtbsState::Hidden, QT_TRANSLATE_NOOP("attributes::frmAttr", "Hidden")},
     {&AtbsState::System, QT_TRANSLATE_NOOP("attributes::frmAttr", "System")},
     {&AtbsState::Directory, QT_TRANSLATE_NOOP("attributes::frmAttr", "Directory"),
      QT_TRANSLATE_NOOP("attributes::frmAttr", "Only folders have this attribute: a file can't be given it")},
     {&AtbsState::Archive, QT_TRANSLATE_NOOP("attributes::frmAttr", "Archive")}}};

} // namespace

frmAttr::frmAttr(const fileview::FileList& rows, std::function<int()> progressMaximum, model::RunHost& host,
                 QWidget* parent)
    : QWidget(parent, Qt::Window), rows_(rows), progressMaximum_(std::move(progressMaximum)), host_(host)
{
    setObjectName(QStringLiteral("frmAttr"));
    setWindowTitle(tr("Change Attributes"));
    auto* column = new QVBoxLayout(this);
    auto* label = new QLabel(tr("Change Attributes To:"));
    label->setObjectName(QStringLiteral("Label1"));
    column->addWidget(label);
    AddBoxes(*column);
    column->addSpacing(8);
    column->addStretch(1);
    QHBoxLayout& row = workspace::AddRow(*column);
    QPushButton* change = workspace::NewButton(QLatin1String("Command1"), tr("&Change Attributes Now"));
    row.addWidget(change);
    connect(change, &QPushButton::clicked, this, &frmAttr::Command1_Click);
    row.addStretch(1);
    QPushButton* close = workspace::NewButton(QLatin1String("Command2"), tr("Close"));
    row.addWidget(close);
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    connect(new QShortcut(QKeySequence::Cancel, this), &QShortcut::activated, this, &QWidget::close);
    workspace::AssignMnemonics(*this);
}

void frmAttr::AddBoxes(QVBoxLayout& column)
{
    auto* list = new QVBoxLayout;
    list->setContentsMargins(12, 0, 0, 0); // they belong to the label
    column.addLayout(list);
    for (std::size_t index = 0; index < BoxRows.size(); ++index) {
        Atbs_[index] = new QCheckBox(tr(BoxRows[index].caption));
        Atbs_[index]->setObjectName(workspace::ElementName(QLatin1String("Atbs"), static_cast<int>(index)));
        Atbs_[index]->setToolTip(tr(BoxRows[index].toolTip));
        list->addWidget(Atbs_[index]);
    }
    // By mouse, space bar or mnemonic; not when it is checked by ShowBoxes.
    connect(Atbs_[0], &QCheckBox::clicked, this, &frmAttr::Atbs0_Click);
}

void frmAttr::Open()
{
    if (!isVisible()) {
        ShowBoxes({});
        Atbs_[0]->setFocus();
    }
    workspace::BringUp(*this);
}

AtbsState frmAttr::Boxes() const
{
    AtbsState boxes;
    for (std::size_t index = 0; index < BoxRows.size(); ++index) {
        boxes.*BoxRows[index].isChecked = Atbs_[index]->isChecked() && Atbs_[index]->isEnabled();
    }
    return boxes;
}

void frmAttr::ShowBoxes(const AtbsState& boxes)
{
    for (std::size_t index = 0; index < BoxRows.size(); ++index) {
        Atbs_[index]->setChecked(boxes.*BoxRows[index].isChecked);
    }
}

// The other boxes leave Normal as it is, so both may be checked; then Normal holds.
void frmAttr::Atbs0_Click(bool checked)
{
    if (checked) {
        AtbsState boxes;
        ClrCks(boxes);
        boxes.Normal = true;
        ShowBoxes(boxes);
    }
}

void frmAttr::Command1_Click()
{
    ChangeAttributes(rows_, progressMaximum_(), Boxes(), host_);
}

} // namespace attributes

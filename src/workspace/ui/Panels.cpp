// SPDX-License-Identifier: MIT
#include "workspace/ui/Panels.h"

#include "actions/ValueEntries.h"
#include "workspace/ui/Fields.h"
#include "workspace/ui/Mnemonics.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace workspace {

using model::ActionKind;

QWidget* Panels::NewPanel(ActionKind kind, actions::RenameOptions& options) const
{
    switch (kind) {
    case ActionKind::Replace:
        return Replace(options.replace);
    case ActionKind::ReplaceFirst:
        return ReplaceFirst(options.replaceFirst);
    case ActionKind::ReplaceMid:
        return ReplaceMid(options.replaceMid);
    case ActionKind::ReplaceLast:
        return ReplaceLast(options.replaceLast);
    case ActionKind::ReplaceAll:
        return ReplaceAll(options.replaceAll);
    case ActionKind::Insert:
        return Insert(options.insert);
    case ActionKind::Suffix:
        return Suffix(options.suffix);
    case ActionKind::Prefix:
        return Prefix(options.prefix);
    case ActionKind::Length:
        return Length(options.length);
    case ActionKind::ChangeCase:
        return ChangeCase(options.changeCase);
    case ActionKind::Extension:
        return Extension(options.extension);
    case ActionKind::Clean:
        return Clean(options.clean);
    case ActionKind::Compose:
        break;
    }
    return Compose(options.compose);
}

void Panels::AddBox(QHBoxLayout& row, const QString& caption, QLatin1String name, QString& value,
                    int characters) const
{
    QLineEdit* box = NewBox(name, characters);
    tools_.binder.Text(*box, value);
    AddField(row, caption, *box);
}

void Panels::AddValue(QVBoxLayout& column, QHBoxLayout& row, const QString& caption, ActionKind kind,
                      actions::ValueControls& value) const
{
    const bool hasStretch = kind == ActionKind::ReplaceFirst || kind == ActionKind::ReplaceMid ||
                            kind == ActionKind::ReplaceLast || kind == ActionKind::ReplaceAll;
    const ValueParts parts = NewValue(
        ControlsOf(kind), value, hasStretch ? actions::ValueEntries() : actions::ValueEntriesWithoutCase(),
        kind == ActionKind::Insert ? MaskBlockWidget::Help::Short : MaskBlockWidget::Help::Long, tools_);
    AddField(row, caption, *parts.combo, 1);
    column.addWidget(parts.blocks);
}

QWidget* Panels::ReplaceFirst(actions::ReplaceFirstOptions& options) const
{
    QGroupBox* panel = NewFrame(QLatin1String("frmReplaceFirst"), tr("Replace First Characters"));
    QHBoxLayout& row = AddRow(ColumnOf(*panel));
    AddBox(row, tr("Replace First"), QLatin1String("Text1"), options.Text1, 4);
    AddValue(ColumnOf(*panel), row, tr("characters, with"), ActionKind::ReplaceFirst, options.cmbFirst);
    return panel;
}

QWidget* Panels::ReplaceMid(actions::ReplaceMidOptions& options) const
{
    QGroupBox* panel = NewFrame(QLatin1String("frmReplaceMid"), tr("Replace Mid Characters"));
    QHBoxLayout& row = AddRow(ColumnOf(*panel));
    AddBox(row, tr("Replace"), QLatin1String("Text12"), options.Text12, 4);
    AddBox(row, tr("characters starting at position"), QLatin1String("Text13"), options.Text13, 4);
    AddValue(ColumnOf(*panel), row, tr("with"), ActionKind::ReplaceMid, options.cmbMid);
    return panel;
}

QWidget* Panels::ReplaceLast(actions::ReplaceLastOptions& options) const
{
    QGroupBox* panel = NewFrame(QLatin1String("frmReplaceLast"), tr("Replace Last Characters"));
    QHBoxLayout& row = AddRow(ColumnOf(*panel));
    AddBox(row, tr("Replace Last"), QLatin1String("Text14"), options.Text14, 4);
    row.addWidget(new QLabel(tr("characters")));
    AddValue(ColumnOf(*panel), row, tr("with"), ActionKind::ReplaceLast, options.cmbLast);
    return panel;
}

QWidget* Panels::ReplaceAll(actions::ReplaceAllOptions& options) const
{
    QGroupBox* panel = NewFrame(QLatin1String("frmReplaceAll"), tr("Replace All"));
    QHBoxLayout& row = AddRow(ColumnOf(*panel));
    AddValue(ColumnOf(*panel), row, tr("Replace All Characters  with"), ActionKind::ReplaceAll,
             options.cmbAll);
    return panel;
}

QWidget* Panels::Suffix(actions::SuffixOptions& options) const
{
    QGroupBox* panel = NewFrame(QLatin1String("frmSuffix"), tr("Add Suffix"));
    QHBoxLayout& row = AddRow(ColumnOf(*panel));
    AddValue(ColumnOf(*panel), row, tr("Suffix filenames with:"), ActionKind::Suffix, options.cmbSuffix);
    return panel;
}

QWidget* Panels::Prefix(actions::PrefixOptions& options) const
{
    QGroupBox* panel = NewFrame(QLatin1String("frmPrefix"), tr("Add Prefix"));
    QHBoxLayout& row = AddRow(ColumnOf(*panel));
    AddValue(ColumnOf(*panel), row, tr("Prefix filenames with:"), ActionKind::Prefix, options.cmbPrefix);
    return panel;
}

QWidget* Panels::NewCounterTabs(ActionKind kind, actions::CounterBlock& counter,
                                actions::AlphaCounterBlock& letters) const
{
    const ActionControls& names = ControlsOf(kind);
    auto* tabs = new QTabWidget;
    const auto addTab = [tabs](QWidget* block, const QString& caption) {
        auto* page = new QWidget;
        auto* column = new QVBoxLayout(page);
        column->addWidget(block);
        column->addStretch(1);
        MarkAsAlternative(*page);
        tabs->addTab(page, caption);
    };
    addTab(new CounterBlockWidget(names, counter, tools_), tr("Counter"));
    addTab(new AlphaCounterBlockWidget(names, letters, tools_), tr("Alpha Counter"));
    return tabs;
}

QWidget* Panels::Replace(actions::ReplaceOptions& options) const
{
    QGroupBox* panel = NewFrame(QLatin1String("frmReplace"), tr("Replace"));
    QPushButton* edit = NewButton(QLatin1String("cmdReplaceOptions"), tr("Replace Options"));
    QObject::connect(edit, &QPushButton::clicked, edit, tools_.editReplaceList);
    QHBoxLayout& row = AddRow(ColumnOf(*panel));
    row.addWidget(edit);
    row.addStretch(1);
    ColumnOf(*panel).addWidget(NewCounterTabs(ActionKind::Replace, options.txtReplaceC, options.txtReplaceA));
    return panel;
}

QWidget* Panels::Extension(actions::ExtensionOptions& options) const
{
    QGroupBox* panel = NewFrame(QLatin1String("frmExtension"), tr("Change Extension"));
    QVBoxLayout& column = ColumnOf(*panel);
    QRadioButton* replace = NewRadioButton(QStringLiteral("Option43"), tr("Replace With"));
    QRadioButton* upper = NewRadioButton(QStringLiteral("Option42"), tr("Change to Upper Case"));
    QRadioButton* lower = NewRadioButton(QStringLiteral("Option41"), tr("Change to LowerCase"));
    QRadioButton* invert = NewRadioButton(QStringLiteral("Option40"), tr("Invert Case"));
    tools_.binder.Choice({upper, lower, invert, replace}, options.change);
    QPushButton* edit = NewButton(QLatin1String("Command3"), tr("Replace Options"));
    QObject::connect(edit, &QPushButton::clicked, edit, tools_.editExtensionList);
    QHBoxLayout& row = AddRow(column);
    row.addWidget(replace);
    row.addWidget(edit);
    row.addStretch(1);
    for (QRadioButton* button : {upper, lower, invert}) {
        column.addWidget(button);
    }
    column.addWidget(NewCounterTabs(ActionKind::Extension, options.txtExtC, options.txtExtA));
    return panel;
}

} // namespace workspace

// SPDX-License-Identifier: MIT
#include "workspace/ui/ValueBlocks.h"

#include "workspace/ui/Fields.h"
#include "workspace/ui/Mnemonics.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QLineEdit>
#include <QVBoxLayout>

namespace workspace {
namespace {

// What a pick from the combo's list puts on show, unless it opens a picker, which leaves the blocks as they
// are. Entries that need no block leave the letters as they are.
void ShowBlocksOf(const QString& entry, actions::ValueControls& value)
{
    const bool counter = entry == QLatin1String("$Counter$");
    const bool letters = entry == QLatin1String("$AlphaCounter$");
    const bool random = entry == QLatin1String("$Random String$");
    value.frameCVisible = counter;
    value.frameRVisible = random;
    if (counter || letters || random) {
        value.frameAVisible = letters;
    }
}

// The frame gets its place before it is put on show, or it would be a window of its own for a moment.
QGroupBox* AddBlockFrame(QVBoxLayout& column, QLatin1String name, const QString& caption, QWidget* block,
                         const bool& shown, Binder& binder)
{
    QGroupBox* frame = NewFrame(name, caption);
    ColumnOf(*frame).addWidget(block);
    MarkAsAlternative(*frame);
    column.addWidget(frame);
    binder.Shown(*frame, shown);
    return frame;
}

} // namespace

void SetUpValueCombo(QComboBox& combo, const QStringList& entries)
{
    combo.setEditable(true);
    combo.setInsertPolicy(QComboBox::NoInsert);
    combo.setCompleter(nullptr); // what is typed stays as typed
    // A combo takes it for a pick when it is left with a text that is one of its entries.
    QObject::disconnect(combo.lineEdit(), &QLineEdit::editingFinished, &combo, nullptr);
    combo.setMaxVisibleItems(20);
    combo.addItems(entries);
}

ValueParts NewValue(const ActionControls& names, actions::ValueControls& value, const QStringList& entries,
                    MaskBlockWidget::Help help, const PanelTools& tools)
{
    auto* combo = new QComboBox;
    combo->setObjectName(names.combo);
    SetUpValueCombo(*combo, entries);
    tools.binder.Combo(*combo, value.combo);

    auto* blocks = new QWidget;
    auto* column = new QVBoxLayout(blocks);
    column->setContentsMargins({});
    const auto title = [](const char* text) {
        return QCoreApplication::translate("ValueBlocks", text);
    };
    QGroupBox* counter =
        AddBlockFrame(*column, names.counterFrame, title(QT_TRANSLATE_NOOP("ValueBlocks", "Counter")),
                      new CounterBlockWidget(names, value.counter, tools), value.frameCVisible, tools.binder);
    QGroupBox* letters = AddBlockFrame(
        *column, names.letterFrame, title(QT_TRANSLATE_NOOP("ValueBlocks", "Alpha Counter")),
        new AlphaCounterBlockWidget(names, value.letters, tools), value.frameAVisible, tools.binder);
    QGroupBox* mask = AddBlockFrame(
        *column, names.maskFrame, title(QT_TRANSLATE_NOOP("ValueBlocks", "Random String")),
        new MaskBlockWidget(names.mask, names.test, value.mask, help, tools.binder, tools.random),
        value.frameRVisible, tools.binder);
    QObject::connect(combo, &QComboBox::textActivated, blocks,
                     [=, &value, &pickers = tools.pickers](const QString& entry) {
                         if (pickers.Pick(entry, *combo, MaskFrom::Block)) {
                             return;
                         }
                         ShowBlocksOf(entry, value);
                         counter->setVisible(value.frameCVisible);
                         letters->setVisible(value.frameAVisible);
                         mask->setVisible(value.frameRVisible);
                     });
    return {combo, blocks};
}

} // namespace workspace

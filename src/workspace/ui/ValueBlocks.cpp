// SPDX-License-Identifier: MIT
#include "workspace/ui/ValueBlocks.h"

#include "workspace/ui/Fields.h"
#include "workspace/ui/Mnemonics.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QVBoxLayout>

namespace workspace {
namespace {

// What a pick from the combo's list puts on show. Entries that need no block leave the letters as they are.
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

QGroupBox* NewBlockFrame(QLatin1String name, const QString& caption, QWidget* block, const bool& shown,
                         Binder& binder)
{
    QGroupBox* frame = NewFrame(name, caption);
    ColumnOf(*frame).addWidget(block);
    MarkAsAlternative(*frame);
    frame->hide();
    binder.OnShow([frame, &shown] { frame->setHidden(!shown); });
    return frame;
}

} // namespace

ValueParts NewValue(const ActionControls& names, actions::ValueControls& value, const QStringList& entries,
                    MaskBlockWidget::Help help, const PanelTools& tools)
{
    auto* combo = new QComboBox;
    combo->setObjectName(names.combo);
    combo->setEditable(true);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setCompleter(nullptr); // what is typed stays as typed
    combo->setMaxVisibleItems(20);
    combo->addItems(entries);
    tools.binder.Combo(*combo, value.combo);

    auto* blocks = new QWidget;
    auto* column = new QVBoxLayout(blocks);
    column->setContentsMargins({});
    Binder& binder = tools.binder;
    const auto title = [](const char* text) {
        return QCoreApplication::translate("ValueBlocks", text);
    };
    QGroupBox* counter =
        NewBlockFrame(names.counterFrame, title(QT_TRANSLATE_NOOP("ValueBlocks", "Counter")),
                      new CounterBlockWidget(names, value.counter, tools), value.frameCVisible, binder);
    QGroupBox* letters =
        NewBlockFrame(names.letterFrame, title(QT_TRANSLATE_NOOP("ValueBlocks", "Alpha Counter")),
                      new AlphaCounterBlockWidget(names, value.letters, tools), value.frameAVisible, binder);
    QGroupBox* mask =
        NewBlockFrame(names.maskFrame, title(QT_TRANSLATE_NOOP("ValueBlocks", "Random String")),
                      new MaskBlockWidget(names, value.mask, help, tools), value.frameRVisible, binder);
    for (QGroupBox* frame : {counter, letters, mask}) {
        column->addWidget(frame);
    }
    QObject::connect(combo, &QComboBox::textActivated, blocks, [=, &value](const QString& entry) {
        ShowBlocksOf(entry, value);
        counter->setVisible(value.frameCVisible);
        letters->setVisible(value.frameAVisible);
        mask->setVisible(value.frameRVisible);
    });
    return {combo, blocks};
}

} // namespace workspace

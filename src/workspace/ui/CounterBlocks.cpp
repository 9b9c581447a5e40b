// SPDX-License-Identifier: MIT
#include "workspace/ui/CounterBlocks.h"

#include "actions/CounterStates.h"
#include "workspace/ui/Fields.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace workspace {
namespace {

using Boxes = std::array<QString, 6>;

// Which box of a block stands where on screen. Both kinds of block look alike, whatever the order of their
// boxes.
struct BoxOrder
{
    int startFrom;
    int withStep;
    int padTo;
    int padCharacter;
    int prefix;
    int suffix;
};

// Two lines in columns: what is counted and how it is padded, and what stands around it. Further lines are
// free.
constexpr int FreeLine = 2;

QGridLayout& FillBlock(QWidget& block, QLatin1String names, const BoxOrder& order, Boxes& values,
                       Binder& binder)
{
    auto* lines = new QGridLayout(&block);
    lines->setContentsMargins({});
    const auto add = [&](int line, int column, int columns, const QString& caption, int index,
                         int characters) {
        QLineEdit* box = NewBox(ElementName(names, index), characters);
        binder.Text(*box, values[static_cast<std::size_t>(index)]);
        auto* label = new QLabel(caption);
        label->setBuddy(box);
        lines->addWidget(label, line, column);
        lines->addWidget(box, line, column + 1, 1, columns);
    };
    add(0, 0, 1, CounterBlockWidget::tr("Start from"), order.startFrom, 5);
    add(0, 2, 1, CounterBlockWidget::tr("with step"), order.withStep, 3);
    add(0, 4, 1, CounterBlockWidget::tr("Pad to"), order.padTo, 3);
    add(0, 6, 1, CounterBlockWidget::tr("characters with"), order.padCharacter, 2);
    add(1, 0, 3, CounterBlockWidget::tr("Prefix:"), order.prefix, 0);
    add(1, 4, 3, CounterBlockWidget::tr("Suffix:"), order.suffix, 0);
    lines->setColumnStretch(8, 1); // boxes keep to the left
    return *lines;
}

} // namespace

CounterBlockWidget::CounterBlockWidget(const ActionControls& names, actions::CounterBlock& block,
                                       const PanelTools& tools)
{
    using Box = actions::CounterBlock;
    FillBlock(*this, names.counterBoxes,
              {Box::StartFrom, Box::WithStep, Box::PadTo, Box::PadCharacter, Box::Prefix, Box::Suffix},
              block.text, tools.binder);
}

AlphaCounterBlockWidget::AlphaCounterBlockWidget(const ActionControls& names,
                                                 actions::AlphaCounterBlock& block, const PanelTools& tools)
{
    using Box = actions::AlphaCounterBlock;
    QGridLayout& lines =
        FillBlock(*this, names.letterBoxes,
                  {Box::StartFrom, Box::WithStep, Box::PadTo, Box::PadCharacter, Box::Prefix, Box::Suffix},
                  block.text, tools.binder);
    QRadioButton* upper = NewRadioButton(ElementName(names.letterCase, Box::Uppercase), tr("Uppercase"));
    QRadioButton* lower = NewRadioButton(ElementName(names.letterCase, Box::Lowercase), tr("Lowercase"));
    auto* choice = new QHBoxLayout;
    choice->addWidget(upper);
    choice->addWidget(lower);
    choice->addStretch(1);
    lines.addLayout(choice, FreeLine, 1, 1, -1);
    tools.binder.Choice({upper, lower}, block.letterCase);
}

MaskBlockWidget::MaskBlockWidget(QLatin1String boxName, QLatin1String testName, QString& mask, Help help,
                                 Binder& binder, model::RandomSource& random)
{
    QLineEdit* box = NewBox(boxName, 16);
    binder.Text(*box, mask);
    QPushButton* test = NewButton(testName, tr("Test"));
    test->setAutoDefault(false); // Enter is no press that lasts
    test->setToolTip(tr("Shows a sample while the button is held down"));

    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins({});
    auto* left = new QVBoxLayout;
    columns->addLayout(left);
    QHBoxLayout& line = AddRow(*left);
    AddField(line, tr("Mask String:"), *box);
    line.addWidget(test);
    left->addStretch(1);
    columns->addSpacing(12);
    columns->addWidget(NewHint(help == Help::Long
                                   ? tr("A : Capital Alphabet.\na : Small Alphabet.\n# : A Digit.\n"
                                        "N : Alphanumeric Character.\nH : Hexadecimal Character.\n")
                                   : tr("A : Capital Alphabet ;# : A Digit\n"
                                        "a : Small Alphabet ; N : Alphanumeric Character.\n"
                                        "H : Hexadecimal Character.")),
                       1);

    const auto show = [box](const QString& text) {
        const QSignalBlocker quiet(box); // the mask stays what it is
        box->setText(text);
    };
    // Held down by the left mouse button, or by the space bar.
    connect(test, &QPushButton::pressed, this,
            [show, &mask, &random] { show(actions::RandomString(mask, random)); });
    connect(test, &QPushButton::released, this, [show, &mask] { show(mask); });
}

} // namespace workspace

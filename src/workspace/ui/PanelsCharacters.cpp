// SPDX-License-Identifier: MIT
//
// The panels of the actions that work on the characters of a name: Change Case, Length and Clean.
#include "model/Text.h"
#include "workspace/ui/Fields.h"
#include "workspace/ui/Panels.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

namespace workspace {
namespace {

// Cuts the box to its first character at any change, before the binding sees it.
void KeepFirstCharacter(QLineEdit& box)
{
    QObject::connect(&box, &QLineEdit::textChanged, &box, [&box](const QString& text) {
        const QString first = model::Left(text, 1);
        if (text != first) {
            box.setText(first);
        }
    });
}

// Turns a button on when its box is clicked.
class ClickChooses final : public QObject
{
public:
    ClickChooses(QWidget& box, QRadioButton& button) : QObject(&box), button_(button)
    {
        box.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::MouseButtonPress) {
            button_.setChecked(true);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QRadioButton& button_;
};

struct KeepBox
{
    QLatin1String name;
    const char* caption;
    const char* toolTip; // empty: none
    bool actions::CleanOptions::*value;
};

constexpr KeepBox KeepBoxes[] = {
    {QLatin1String("Check3"), "_", QT_TRANSLATE_NOOP("workspace::Panels", "UnderScore"),
     &actions::CleanOptions::Check3},
    {QLatin1String("Check4"), "-", QT_TRANSLATE_NOOP("workspace::Panels", "Hyphen"),
     &actions::CleanOptions::Check4},
    {QLatin1String("Check5"), "(", "", &actions::CleanOptions::Check5},
    {QLatin1String("Check6"), ")", "", &actions::CleanOptions::Check6},
    {QLatin1String("Check7"), "$", "", &actions::CleanOptions::Check7},
    {QLatin1String("Check8"), ",", QT_TRANSLATE_NOOP("workspace::Panels", "Comma"),
     &actions::CleanOptions::Check8},
    {QLatin1String("Check9"), "#", "", &actions::CleanOptions::Check9},
    {QLatin1String("Check10"), " ", QT_TRANSLATE_NOOP("workspace::Panels", "Space"),
     &actions::CleanOptions::Check10},
    {QLatin1String("Check11"), ".", QT_TRANSLATE_NOOP("workspace::Panels", "Point"),
     &actions::CleanOptions::Check11},
};

} // namespace

QWidget* Panels::ChangeCase(actions::ChangeCaseOptions& options) const
{
    QGroupBox* panel = NewFrame(QLatin1String("frmCase"), tr("Change Case"));
    const QList<QRadioButton*> buttons{NewRadioButton(QStringLiteral("Option37"), tr("Change to Upper Case")),
                                       NewRadioButton(QStringLiteral("Option38"), tr("Change to Lower Case")),
                                       NewRadioButton(QStringLiteral("Option39"), tr("Invert Case"))};
    for (QRadioButton* button : buttons) {
        ColumnOf(*panel).addWidget(button);
    }
    tools_.binder.Choice(buttons, options.change);
    return panel;
}

QWidget* Panels::Length(actions::LengthOptions& options) const
{
    QGroupBox* panel = NewFrame(QLatin1String("frmLength"), tr("Make all filenames same length"));
    QVBoxLayout& column = ColumnOf(*panel);
    auto* length = new QComboBox;
    length->setObjectName(QStringLiteral("cmbLength"));
    length->setEditable(true);
    length->setInsertPolicy(QComboBox::NoInsert);
    length->setCompleter(nullptr);
    length->addItems(actions::LengthOptions::Measures());
    tools_.binder.Combo(*length, options.cmbLength);
    AddField(AddRow(column), tr("Length:"), *length, 1);

    // Every option button with its box, if it has one, in a line of its own.
    const auto addLine = [this](QVBoxLayout& lines, QRadioButton* button, QLatin1String name,
                                QString* value) {
        QHBoxLayout& line = AddRow(lines);
        line.addWidget(button);
        QLineEdit* box = nullptr;
        if (value) {
            box = NewBox(name, 4, button->text());
            tools_.binder.Text(*box, *value);
            line.addWidget(box);
        }
        line.addStretch(1);
        return box;
    };
    QRadioButton* fromStart =
        NewRadioButton(QStringLiteral("Option1"), tr("Take Characters from the beginning"));
    QRadioButton* fromEnd = NewRadioButton(QStringLiteral("Option2"), tr("Take Characters from the end"));
    QRadioButton* from =
        NewRadioButton(QStringLiteral("Option3"), tr("Take Characters starting at position"));
    addLine(column, fromStart, QLatin1String(), nullptr);
    addLine(column, fromEnd, QLatin1String(), nullptr);
    addLine(column, from, QLatin1String("Text37"), &options.Text37);
    tools_.binder.Choice({fromStart, fromEnd, from}, options.take);

    QGroupBox* padding = NewFrame(QLatin1String("frmPadding"), tr("Padding"));
    QRadioButton* front = NewRadioButton(QStringLiteral("Option19"), tr("Pad at the beginning with:"));
    QRadioButton* back = NewRadioButton(QStringLiteral("Option20"), tr("Pad at the end with:"));
    KeepFirstCharacter(*addLine(ColumnOf(*padding), front, QLatin1String("Text18"), &options.Text18));
    KeepFirstCharacter(*addLine(ColumnOf(*padding), back, QLatin1String("Text19"), &options.Text19));
    tools_.binder.Choice({front, back}, options.pad);
    column.addWidget(padding);
    return panel;
}

QGroupBox* Panels::NewKeepFrame(actions::CleanOptions& options) const
{
    QGroupBox* frame = NewFrame(QLatin1String("frmKeep"), tr("Keep these Characters"));
    QHBoxLayout& signs = AddRow(ColumnOf(*frame));
    for (const KeepBox& keep : KeepBoxes) {
        const QString toolTip = *keep.toolTip ? tr(keep.toolTip) : QString();
        QCheckBox* box = NewCheckBox(keep.name, QLatin1String(keep.caption), toolTip);
        tools_.binder.Check(*box, options.*keep.value);
        signs.addWidget(box);
        if (keep.value == &actions::CleanOptions::Check10) { // its caption alone can't be seen
            signs.addWidget(new QLabel(tr("(space)")));
        }
        signs.addSpacing(8);
    }
    signs.addStretch(1);
    QLineEdit* others = NewBox(QStringLiteral("Text48"), 0);
    tools_.binder.Text(*others, options.Text48);
    AddField(AddRow(ColumnOf(*frame)), tr("Any Other Characters to Keep (Separate by comma):"), *others, 1);
    return frame;
}

QWidget* Panels::Clean(actions::CleanOptions& options) const
{
    QGroupBox* panel = NewFrame(QLatin1String("frmClean"), tr("Clean Filename"));
    QVBoxLayout& column = ColumnOf(*panel);
    const auto addCheck = [this](QBoxLayout& line, QLatin1String name, const QString& caption, bool& value) {
        QCheckBox* box = NewCheckBox(name, caption);
        tools_.binder.Check(*box, value);
        line.addWidget(box);
    };
    QHBoxLayout& remove = AddRow(column);
    remove.addWidget(new QLabel(tr("Remove")));
    remove.addSpacing(8);
    addCheck(remove, QLatin1String("chkCAlpha"), tr("Capital Letters"), options.chkCAlpha);
    addCheck(remove, QLatin1String("chkSAlpha"), tr("Small Letters"), options.chkSAlpha);
    addCheck(remove, QLatin1String("chkVowel"), tr("Vowels"), options.chkVowel);
    addCheck(remove, QLatin1String("chkDigit"), tr("Digits"), options.chkDigit);
    remove.addStretch(1);
    addCheck(column, QLatin1String("Check12"), tr("Remove any unwanted Special Characters:"),
             options.Check12);
    column.addWidget(NewKeepFrame(options));

    QRadioButton* space = NewRadioButton(QStringLiteral("Option4"), tr("Space"));
    QRadioButton* other = NewRadioButton(QStringLiteral("Option5"), tr("Character:"));
    tools_.binder.Choice({space, other}, options.filler);
    QLineEdit* filler = NewBox(QStringLiteral("Text49"), 4, other->text());
    tools_.binder.Text(*filler, options.Text49);
    new ClickChooses(*filler, *other);
    QHBoxLayout& replace = AddRow(column);
    replace.addWidget(new QLabel(tr("Replace the Removed Characters with:")));
    replace.addWidget(space);
    replace.addWidget(other);
    replace.addWidget(filler);
    replace.addStretch(1);
    return panel;
}

} // namespace workspace

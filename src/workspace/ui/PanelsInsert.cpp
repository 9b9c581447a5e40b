// SPDX-License-Identifier: MIT
//
// The Insert panel: a value, and one of three parts that tell where it goes.
#include "workspace/ui/Fields.h"
#include "workspace/ui/Mnemonics.h"
#include "workspace/ui/Panels.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace workspace {
namespace {

// A part of a row that comes and goes with the mode.
QHBoxLayout& AddPlace(QHBoxLayout& row, QLatin1String name)
{
    auto* place = new QWidget;
    place->setObjectName(name);
    MarkAsAlternative(*place);
    auto* line = new QHBoxLayout(place);
    line->setContentsMargins({});
    row.addWidget(place);
    return *line;
}

} // namespace

std::function<void()> Panels::AddInsertPlaces(QHBoxLayout& row, actions::InsertOptions& options) const
{
    const auto addMatchCase = [this](QHBoxLayout& line, QLatin1String name, bool& value) {
        QCheckBox* matchCase = NewCheckBox(name, tr("Match Case"));
        tools_.binder.Check(*matchCase, value);
        line.addWidget(matchCase);
    };
    QHBoxLayout& position = AddPlace(row, QLatin1String("frmInsPos"));
    auto* fromStart = new QLabel(tr("Position from the Start of FIlename:"));
    auto* fromEnd = new QLabel(tr("Position from the End of FIlename:"));
    QLineEdit* box = NewBox(QStringLiteral("Text38"), 4);
    tools_.binder.Text(*box, options.Text38);
    for (QLabel* caption : {fromStart, fromEnd}) {
        caption->setBuddy(box);
        position.addWidget(caption);
    }
    position.addWidget(box);

    QHBoxLayout& string = AddPlace(row, QLatin1String("frmInsStr1"));
    AddBox(string, tr("Specify String:"), QLatin1String("Text43"), options.Text43, 12);
    addMatchCase(string, QLatin1String("Check2"), options.Check2);

    QHBoxLayout& twoStrings = AddPlace(row, QLatin1String("frmInsStr2"));
    AddBox(twoStrings, tr("First:"), QLatin1String("Text44"), options.Text44, 8);
    AddBox(twoStrings, tr("Second:"), QLatin1String("Text45"), options.Text45, 8);
    addMatchCase(twoStrings, QLatin1String("Check1"), options.Check1);

    return [=, &options, positionPart = position.parentWidget(), stringPart = string.parentWidget(),
            twoParts = twoStrings.parentWidget()] {
        const int mode = options.Mode();
        positionPart->setVisible(mode == 0 || mode == 1);
        fromStart->setVisible(mode == 0);
        fromEnd->setVisible(mode == 1);
        stringPart->setVisible(mode == 2 || mode == 3);
        twoParts->setVisible(mode == 4);
    };
}

QWidget* Panels::Insert(actions::InsertOptions& options) const
{
    QGroupBox* panel = NewFrame(QLatin1String("frmInsert"), tr("Insert Strings"));
    QVBoxLayout& column = ColumnOf(*panel);
    auto* mode = new QComboBox;
    mode->setObjectName(QStringLiteral("cmbInsert"));
    mode->setAccessibleName(tr("Where to insert"));
    mode->addItems(actions::InsertOptions::Modes());
    tools_.binder.DropDown(*mode, options.cmbInsert);

    QHBoxLayout& place = AddRow(column);
    place.addWidget(mode);
    place.addSpacing(12);
    const auto showPlace = AddInsertPlaces(place, options);
    place.addStretch(1);
    AddValue(column, AddRow(column), tr("String to Insert:"), model::ActionKind::Insert, options.cmbInsertS);
    tools_.binder.OnShow(showPlace);
    QObject::connect(mode, &QComboBox::textActivated, panel, showPlace);
    return panel;
}

} // namespace workspace

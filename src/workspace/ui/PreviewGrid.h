// SPDX-License-Identifier: MIT
//
// PreviewGrid: the grid of original and new names on screen. New names are edited in place, on a double
// click, F2 or a typed key; the model takes the text when Enter ends the edit. All rows are equally high and
// none is ever measured, so a hundred thousand of them scroll like a hundred.
#pragma once

#include "workspace/ui/CellColours.h"

#include <QTableView>

namespace workspace {

class GridPre;

// Object name of the box in which a name, or a text to be replaced, is edited.
inline const QString NameEditor = QStringLiteral("txtEdit");

// A table whose cells are edited in place, each in a text box or an editable combo. A key that begins an edit
// is put in front of the cell's text, and the rest is selected behind it; otherwise all of it is selected.
class EditableTable : public QTableView
{
    Q_OBJECT

public:
    using QTableView::QTableView;

protected:
    using QTableView::edit;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
};

class PreviewGrid final : public EditableTable
{
    Q_OBJECT

public:
    // `rows` outlives the grid.
    explicit PreviewGrid(GridPre& rows, QWidget* parent = nullptr);

Q_SIGNALS:
    // A double click on an original name; rows count from 1.
    void OriginalDoubleClicked(int row);
};

// A table that only differs in its rows: equal heights, columns that share the width, no row numbers.
void SetUpAsList(QTableView& table);

} // namespace workspace

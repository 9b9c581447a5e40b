// SPDX-License-Identifier: MIT
//
// ReplaceTable: a ReplaceGrid on screen. Cells are edited in place: the flag in the combo cmbEdit, the text
// sought in the box txtEdit, its replacement in the combo cmbToR, whose picks open pickers. A menu on the
// right mouse button edits, copies and empties a cell and deletes a row; the Delete key empties a cell.
#pragma once

#include "workspace/ui/PreviewGrid.h"

class QMenu;

namespace workspace {

class Pickers;
class ReplaceGrid;

class ReplaceTable final : public EditableTable
{
    Q_OBJECT

public:
    // `entries` is the list of cmbToR. The references outlive the table.
    ReplaceTable(ReplaceGrid& grid, const QStringList& entries, Pickers& pickers, QWidget* parent = nullptr);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void AddToMenu(const QString& caption, void (ReplaceTable::*command)());
    void EditCell();
    void CopyText();
    void ClearCell();
    void DeleteRow();

    ReplaceGrid& grid_;
    QMenu* menu_;
};

} // namespace workspace

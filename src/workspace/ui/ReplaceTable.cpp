// SPDX-License-Identifier: MIT
#include "workspace/ui/ReplaceTable.h"

#include "workspace/ReplaceGrid.h"
#include "workspace/ui/Fields.h"
#include "workspace/ui/Pickers.h"
#include "workspace/ui/ValueBlocks.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QStyledItemDelegate>

namespace workspace {
namespace {

constexpr int MatchCaseWidth = 80; // pixels

// Enter ends the edit of a cell, so here it is no pick.
QComboBox* NewCellCombo(QLatin1String name, const QStringList& entries, QWidget* parent)
{
    auto* combo = new QComboBox(parent);
    combo->setObjectName(name);
    SetUpValueCombo(*combo, entries);
    combo->setCurrentIndex(-1);
    QObject::disconnect(combo->lineEdit(), &QLineEdit::returnPressed, combo, nullptr);
    return combo;
}

// The editors over the cells: a combo of flags, a text box, and a combo of values, whose picks open pickers.
class CellEditors final : public QStyledItemDelegate
{
public:
    CellEditors(ReplaceGrid& grid, const QStringList& entries, Pickers& pickers, QAbstractItemView& view)
        : QStyledItemDelegate(&view), grid_(grid), entries_(entries), pickers_(pickers), view_(view)
    {}

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override
    {
        cell_ = index;
        grid_.BeginEdit(index.row() + 1);
        QWidget* editor = NewEditor(index.column() + 1, parent);
        editor->setAccessibleName(
            index.model()->headerData(index.column(), Qt::Horizontal, Qt::DisplayRole).toString());
        editor->setFont(option.font);
        return editor;
    }

    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex&) const override
    {
        editor->setGeometry(option.rect);
    }

    // An open picker has the focus, and its target must outlast that.
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const bool leaves = event->type() == QEvent::FocusOut || event->type() == QEvent::Hide;
        return !(leaves && watched == picking_) && QStyledItemDelegate::eventFilter(watched, event);
    }

    // An edit that ends before its picker does takes what the picker would write.
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override
    {
        if (editor == picking_) {
            picking_.clear();
            pickers_.Close();
        }
        QStyledItemDelegate::setModelData(editor, model, index);
    }

protected:
    // Rows outside the list are dimmed.
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        if (index.row() >= grid_.Count()) {
            option->palette.setColor(QPalette::Text, option->palette.color(QPalette::PlaceholderText));
        }
    }

private:
    QWidget* NewEditor(int column, QWidget* parent) const
    {
        switch (column) {
        case ReplaceGrid::MatchCase:
            return NewCellCombo(QLatin1String("cmbEdit"), {QStringLiteral("y"), QStringLiteral("n")}, parent);
        case ReplaceGrid::From: {
            QLineEdit* box = NewBox(NameEditor, 0);
            box->setParent(parent);
            return box;
        }
        default:
            values_ = NewCellCombo(QLatin1String("cmbToR"), entries_, parent);
            connect(values_, &QComboBox::textActivated, this, &CellEditors::Pick);
            return values_;
        }
    }

    void Pick(const QString& entry)
    {
        const int pick = ++picks_;
        picking_ = values_; // before the picker takes the focus
        const bool isOpen = pickers_.Pick(entry, *values_, MaskFrom::Window, [self = QPointer(this), pick] {
            if (self) {
                self->FinishPick(pick);
            }
        });
        if (!isOpen) {
            picking_.clear();
        }
    }

    // The picker has closed: its text goes into the cell. Not if it made way for the next pick of the combo,
    // and not if the edit is over.
    void FinishPick(int pick)
    {
        if (pick == picks_ && picking_ && view_.indexWidget(cell_) == picking_) {
            QWidget* const editor = std::exchange(picking_, nullptr);
            Q_EMIT commitData(editor);
            Q_EMIT closeEditor(editor);
        }
    }

    ReplaceGrid& grid_;
    const QStringList entries_;
    Pickers& pickers_;
    QAbstractItemView& view_;
    mutable QPersistentModelIndex cell_;  // the one edited last
    mutable QPointer<QComboBox> values_;  // the combo over a cell
    mutable QPointer<QComboBox> picking_; // the same while a picker is open for it
    int picks_ = 0;
};

} // namespace

ReplaceTable::ReplaceTable(ReplaceGrid& grid, const QStringList& entries, Pickers& pickers, QWidget* parent)
    : EditableTable(parent), grid_(grid), menu_(new QMenu(this))
{
    setObjectName(QStringLiteral("GridR"));
    setModel(&grid);
    SetUpAsList(*this);
    setItemDelegate(new CellEditors(grid, entries, pickers, *this));
    setSelectionMode(SingleSelection);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    horizontalHeader()->setSectionResizeMode(ReplaceGrid::MatchCase - 1, QHeaderView::Fixed);
    horizontalHeader()->resizeSection(ReplaceGrid::MatchCase - 1, MatchCaseWidth);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    verticalHeader()->setDefaultSectionSize(QComboBox().sizeHint().height()); // that of the editors

    menu_->setObjectName(QStringLiteral("mnuCell"));
    AddToMenu(tr("&Edit"), &ReplaceTable::EditCell);
    AddToMenu(tr("&CopyText"), &ReplaceTable::CopyText);
    AddToMenu(tr("C&lear"), &ReplaceTable::ClearCell);
    AddToMenu(tr("&Delete Row"), &ReplaceTable::DeleteRow);
}

void ReplaceTable::AddToMenu(const QString& caption, void (ReplaceTable::*command)())
{
    connect(menu_->addAction(caption), &QAction::triggered, this, command);
}

void ReplaceTable::mousePressEvent(QMouseEvent* event)
{
    const QModelIndex cell = indexAt(event->position().toPoint());
    if (cell.isValid()) {
        grid_.Touch(cell.row() + 1);
    }
    EditableTable::mousePressEvent(event);
}

void ReplaceTable::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Delete) && currentIndex().isValid()) {
        ClearCell();
    } else {
        EditableTable::keyPressEvent(event);
    }
}

void ReplaceTable::contextMenuEvent(QContextMenuEvent* event)
{
    const bool byMouse = event->reason() == QContextMenuEvent::Mouse;
    const QModelIndex cell = byMouse ? indexAt(event->pos()) : currentIndex();
    if (cell.isValid()) {
        setCurrentIndex(cell);
        menu_->popup(byMouse ? event->globalPos() : viewport()->mapToGlobal(visualRect(cell).bottomLeft()));
    }
}

void ReplaceTable::EditCell()
{
    edit(currentIndex());
}

void ReplaceTable::CopyText()
{
    QApplication::clipboard()->setText(currentIndex().data().toString());
}

void ReplaceTable::ClearCell()
{
    grid_.setData(currentIndex(), QString());
}

void ReplaceTable::DeleteRow()
{
    grid_.DeleteRow(currentIndex().row() + 1);
}

} // namespace workspace

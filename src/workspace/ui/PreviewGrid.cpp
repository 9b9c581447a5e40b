// SPDX-License-Identifier: MIT
#include "workspace/ui/PreviewGrid.h"

#include "workspace/GridPre.h"

#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>

namespace workspace {
namespace {

// Edits a cell in a box that looks like the cell.
class NameDelegate final : public ColourDelegate
{
public:
    using ColourDelegate::ColourDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override
    {
        auto* box = new QLineEdit(parent);
        box->setObjectName(NameEditor);
        box->setAccessibleName(GridPre::tr("New name"));
        box->setFrame(false);
        box->setFont(option.font);
        if (const auto colour = CellColour(index)) {
            QPalette palette = box->palette();
            palette.setColor(QPalette::Base, *colour);
            palette.setColor(QPalette::Text, TextColourOn(*colour));
            box->setPalette(palette);
        }
        return box;
    }

    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex&) const override
    {
        editor->setGeometry(option.rect.adjusted(0, 1, 0, 0));
    }

    // Keys that would lead to another row do nothing while a name is edited, and Tab stays at the cell.
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::KeyPress) {
            switch (static_cast<const QKeyEvent*>(event)->key()) {
            case Qt::Key_Up:
            case Qt::Key_Down:
            case Qt::Key_PageUp:
            case Qt::Key_PageDown:
                return true;
            case Qt::Key_Tab:
            case Qt::Key_Backtab:
                Q_EMIT commitData(static_cast<QWidget*>(watched));
                Q_EMIT closeEditor(static_cast<QWidget*>(watched));
                return true;
            default:
                break;
            }
        }
        return ColourDelegate::eventFilter(watched, event);
    }
};

} // namespace

void SetUpAsList(QTableView& table)
{
    table.verticalHeader()->hide();
    table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + 6);
    table.horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table.horizontalHeader()->setHighlightSections(false);
    table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    table.setWordWrap(false);
    table.setTextElideMode(Qt::ElideMiddle);
    table.setCornerButtonEnabled(false);
    table.setTabKeyNavigation(false); // Tab leaves the table
}

PreviewGrid::PreviewGrid(GridPre& rows, QWidget* parent) : EditableTable(parent)
{
    setModel(&rows);
    SetUpAsList(*this);
    for (int column = GridPre::Path; column <= GridPre::ColumnCount; ++column) {
        setColumnHidden(column - 1, true);
    }
    setItemDelegate(new NameDelegate(this));
    setSelectionMode(SingleSelection);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    connect(this, &QTableView::doubleClicked, this, [this](const QModelIndex& index) {
        if (index.column() + 1 == GridPre::Original) {
            Q_EMIT OriginalDoubleClicked(index.row() + 1);
        }
    });
}

bool EditableTable::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    QString typed;
    if (trigger == AnyKeyPressed && event && event->type() == QEvent::KeyPress) {
        typed = static_cast<const QKeyEvent*>(event)->text();
        if (typed.isEmpty() || !typed.front().isPrint()) {
            return false;
        }
        event = nullptr; // or the editor would get the key
    }
    if (!QTableView::edit(index, trigger, event)) {
        return false;
    }
    QWidget* const editor = indexWidget(index);
    const auto* combo = qobject_cast<QComboBox*>(editor);
    if (auto* box = combo ? combo->lineEdit() : qobject_cast<QLineEdit*>(editor)) {
        const int rest = static_cast<int>(box->text().size());
        box->setText(typed + box->text());
        box->setSelection(static_cast<int>(typed.size()), rest);
    }
    return true;
}

} // namespace workspace

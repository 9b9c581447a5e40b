// SPDX-License-Identifier: MIT
#include "workspace/ui/OrderList.h"

#include "actions/RenameOptions.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

namespace workspace {

OrderList::OrderList(QWidget* parent) : QListWidget(parent)
{
    setUniformItemSizes(true);
    setVerticalScrollMode(ScrollPerItem); // so the scroll bar's value is the row on top
    setEditTriggers(NoEditTriggers);
}

int OrderList::RowUnder(const QMouseEvent& event) const
{
    const int rowHeight = qMax(1, sizeHintForRow(0));
    return qMax(0, actions::ListRowCalc(event.position().toPoint().y(), rowHeight,
                                        verticalScrollBar()->value(), count()));
}

bool OrderList::IsOver(const QMouseEvent& event) const
{
    return viewport()->rect().contains(event.position().toPoint());
}

void OrderList::mousePressEvent(QMouseEvent* event)
{
    // A click on a check box, too, is a click on its row.
    if (QListWidgetItem* item = itemAt(event->position().toPoint());
        item && event->button() == Qt::LeftButton) {
        setCurrentItem(item);
    }
    QListWidget::mousePressEvent(event);
    dragging_ = false;
    dragRow_ = -1;
    if (event->button() == Qt::LeftButton && count() > 0) {
        pressedAt_ = event->position().toPoint();
        dragRow_ = RowUnder(*event);
    }
}

void OrderList::mouseMoveEvent(QMouseEvent* event)
{
    if (dragRow_ < 0 || !(event->buttons() & Qt::LeftButton)) {
        QListWidget::mouseMoveEvent(event);
        return;
    }
    const QPoint way = event->position().toPoint() - pressedAt_;
    if (!dragging_ && way.manhattanLength() < QApplication::startDragDistance()) {
        return;
    }
    dragging_ = true;
    viewport()->setCursor(IsOver(*event) ? Qt::ClosedHandCursor : Qt::ForbiddenCursor);
    setCurrentRow(IsOver(*event) ? RowUnder(*event) : dragRow_);
}

void OrderList::mouseReleaseEvent(QMouseEvent* event)
{
    if (!dragging_ || event->button() != Qt::LeftButton) {
        dragRow_ = -1;
        QListWidget::mouseReleaseEvent(event); // a plain click, which may hit a check box
        return;
    }
    const int from = dragRow_;
    const int to = IsOver(*event) ? RowUnder(*event) : from;
    EndDrag(to);
    if (from != to) {
        Q_EMIT RowDropped(from, to);
    }
}

void OrderList::keyPressEvent(QKeyEvent* event)
{
    if (dragging_ && event->key() == Qt::Key_Escape) {
        EndDrag(dragRow_);
        return;
    }
    QListWidget::keyPressEvent(event);
}

void OrderList::EndDrag(int row)
{
    setCurrentRow(row);
    dragging_ = false;
    dragRow_ = -1;
    viewport()->unsetCursor();
}

} // namespace workspace

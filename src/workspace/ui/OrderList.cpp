// SPDX-License-Identifier: MIT
#include "workspace/ui/OrderList.h"

#include "actions/RenameOptions.h"

#include <QApplication>
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

void OrderList::mousePressEvent(QMouseEvent* event)
{
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
    if (!dragging_) {
        dragging_ = true;
        viewport()->setCursor(Qt::ClosedHandCursor);
    }
    setCurrentRow(RowUnder(*event));
}

void OrderList::mouseReleaseEvent(QMouseEvent* event)
{
    const int from = dragRow_;
    dragRow_ = -1;
    if (!dragging_ || event->button() != Qt::LeftButton) {
        QListWidget::mouseReleaseEvent(event); // a plain click, which may hit a check box
        return;
    }
    dragging_ = false;
    viewport()->unsetCursor();
    const int to = RowUnder(*event);
    setCurrentRow(to);
    Q_EMIT RowDropped(from, to);
}

} // namespace workspace

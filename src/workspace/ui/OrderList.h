// SPDX-License-Identifier: MIT
//
// OrderList: a list whose rows are put in order by dragging them with the left mouse button. It moves nothing
// itself: it says which row was dropped on which, and its owner moves the values behind the rows. Rows count
// from 0.
#pragma once

#include <QListWidget>

namespace workspace {

class OrderList final : public QListWidget
{
    Q_OBJECT

public:
    explicit OrderList(QWidget* parent = nullptr);

    // While a drag passes over, the current row follows the mouse. A drag that ends outside the list, or by
    // Escape, moves nothing.
    bool IsDragging() const { return dragging_; }

Q_SIGNALS:
    // Row `from` was dropped on another row, `to`, which is the current one now.
    void RowDropped(int from, int to);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    int RowUnder(const QMouseEvent& event) const;
    bool IsOver(const QMouseEvent& event) const;
    void EndDrag(int row);

    int dragRow_ = -1; // where the button went down
    QPoint pressedAt_;
    bool dragging_ = false;
};

} // namespace workspace

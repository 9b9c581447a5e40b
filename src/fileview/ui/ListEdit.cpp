// SPDX-License-Identifier: MIT
//
// A cell of ListViewEditable that is edited in place.
#include "fileview/ui/ListViewEditable.h"

#include <QFocusEvent>
#include <QKeyEvent>

namespace fileview {

bool ListViewEditable::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != txtEdit_) {
        return QWidget::eventFilter(watched, event);
    }
    if (event->type() == QEvent::FocusOut) {
        // The box's own menu and another program take the focus only for a while.
        const auto reason = static_cast<const QFocusEvent*>(event)->reason();
        if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason) {
            LeaveEdit();
        }
    } else if (event->type() == QEvent::KeyPress) {
        switch (static_cast<const QKeyEvent*>(event)->key()) {
        case Qt::Key_Escape:
            txtEdit_->setText(TextInEdit());
            [[fallthrough]];
        case Qt::Key_Return:
        case Qt::Key_Enter:
            LeaveEdit();
            return true;
        default:
            break;
        }
    }
    return false;
}

// The cell's text, not what is being typed.
QString ListViewEditable::TextInEdit() const
{
    return editCell_.isValid() ? rows_.Cell(editCell_.row() + 1, editCell_.column() + 1) : QString();
}

void ListViewEditable::OpenEdit()
{
    if (properties_.View != lvwReport) {
        return;
    }
    const auto& column = rows_.ColumnHeaders().at(static_cast<std::size_t>(editCell_.column()));
    txtEdit_->setAlignment(column.Alignment == lvwColumnRight    ? Qt::AlignRight
                           : column.Alignment == lvwColumnCenter ? Qt::AlignHCenter
                                                                 : Qt::AlignLeft);
    txtEdit_->setText(TextInEdit());
    txtEdit_->show();
    PlaceEdit();
    if (txtEdit_->isVisible()) {
        txtEdit_->setFocus();
        txtEdit_->selectAll();
    }
}

// Keeps an open box over its cell, or leaves it when the cell is out of sight or gone.
void ListViewEditable::PlaceEdit()
{
    if (txtEdit_->isHidden()) {
        return;
    }
    QRect cell = table_->visualRect(editCell_);
    if (!editCell_.isValid() || !cell.intersects(table_->viewport()->rect())) {
        LeaveEdit();
        return;
    }
    if (editCell_.column() == 0) {
        QStyleOptionViewItem option;
        option.initFrom(table_);
        option.rect = cell;
        option.features = QStyleOptionViewItem::HasDisplay | QStyleOptionViewItem::HasDecoration;
        option.features.setFlag(QStyleOptionViewItem::HasCheckIndicator, properties_.Checkboxes);
        option.decorationSize = table_->iconSize();
        option.text = txtEdit_->text();
        cell.setLeft(style()->subElementRect(QStyle::SE_ItemViewItemText, &option, table_).left());
    }
    txtEdit_->setGeometry(cell);
}

void ListViewEditable::LeaveEdit()
{
    if (txtEdit_->hasFocus()) {
        ListView().setFocus(); // else hiding the box would give it to another control
    }
    if (txtEdit_->isHidden()) {
        return; // left by losing the focus
    }
    txtEdit_->hide();
    QString oldText = TextInEdit();
    QString newText = txtEdit_->text();
    if (!editCell_.isValid() || newText == oldText) {
        return;
    }
    const auto write = [this](const QString& text) {
        rows_.SetCell(editCell_.row() + 1, editCell_.column() + 1, text); // of a row that is gone: nothing
    };
    bool isCancelled = false;
    Q_EMIT BeforeItemEdit(isCancelled, editCell_.row() + 1, editCell_.column(), oldText, newText);
    if (isCancelled) {
        return;
    }
    write(newText);
    Q_EMIT AfterItemEdit(isCancelled, editCell_.row() + 1, editCell_.column(), oldText, newText);
    if (isCancelled) {
        write(oldText);
    }
}

} // namespace fileview

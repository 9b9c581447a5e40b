// SPDX-License-Identifier: MIT
//
// ListViewEditable and a person's hands: mouse, keys, drags, and what they make the list do.
#include "fileview/DroppedPaths.h"
#include "fileview/ui/ListViewEditable.h"
#include "windowing/DroppedFiles.h"

#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QToolTip>

namespace fileview {

namespace {

using windowing::Message;

constexpr int TwipsPerPixel = 15;

int ButtonOf(Qt::MouseButton button)
{
    switch (button) {
    case Qt::LeftButton:
        return 1;
    case Qt::RightButton:
        return 2;
    case Qt::MiddleButton:
        return 4;
    default:
        return 0;
    }
}

int ShiftOf(Qt::KeyboardModifiers modifiers)
{
    return (modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0) +
           (modifiers.testFlag(Qt::ControlModifier) ? 2 : 0) + (modifiers.testFlag(Qt::AltModifier) ? 4 : 0);
}

// A tooltip that shows a text as it is, whatever characters a name has.
QString PlainTooltip(const QString& text)
{
    return Qt::mightBeRichText(text) ? QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped()) : text;
}

} // namespace

// Runs after the list or its header have dealt with one of the messages that were asked for.
void ListViewEditable::After(qintptr&, QWidget* hWnd, int uMsg, qintptr wParam, qintptr lParam)
{
    if (hWnd == table_->Header().viewport()) {
        const int section = table_->Header().logicalIndexAt(windowing::PointOf(lParam));
        if (IsFlatHeader() && section >= 0) {
            ColumnClicked(section + 1);
        }
        return;
    }
    PlaceEdit();
    switch (uMsg) {
    case Message::VScroll:
        Q_EMIT VScroll();
        break;
    case Message::HScroll:
        Q_EMIT HScroll();
        break;
    case Message::MouseWheel:
        Q_EMIT Mousewheel();
        break;
    case Message::Notify:
        if (wParam == windowing::HeaderItemChanging) {
            table_->viewport()->update(); // the tinted column
            Q_EMIT HeaderItemChanging();
        }
        break;
    default:
        break;
    }
}

// No message is asked for before the list deals with it.
void ListViewEditable::Before(bool&, qintptr&, QWidget*&, int&, qintptr&, qintptr&) {}

bool ListViewEditable::BeforeEvent(QEvent& event)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress: {
        const auto& mouse = static_cast<const QMouseEvent&>(event);
        Q_EMIT MouseDown(ButtonOf(mouse.button()), ShiftOf(mouse.modifiers()),
                         mouse.pos().x() * TwipsPerPixel, mouse.pos().y() * TwipsPerPixel);
        return false;
    }
    case QEvent::ToolTip: {
        const auto& help = static_cast<const QHelpEvent&>(event);
        QToolTip::showText(help.globalPos(), PlainTooltip(ListView().toolTip()), ListView().viewport());
        return true;
    }
    case QEvent::ContextMenu: {
        const auto& menu = static_cast<const QContextMenuEvent&>(event);
        if (menu.reason() == QContextMenuEvent::Keyboard && properties_.AutoPopupMenu) {
            const QRect row = ListView().visualRect(ListView().currentIndex());
            ShowMenu(ListView().viewport()->mapToGlobal(row.center()));
        }
        return true;
    }
    case QEvent::DragEnter:
    case QEvent::DragMove: {
        auto& drag = static_cast<QDragMoveEvent&>(event);
        drag.setAccepted(properties_.AllowFileDragDrop && drag.mimeData()->hasUrls());
        return true;
    }
    case QEvent::DragLeave:
        return true;
    case QEvent::Drop: {
        auto& drop = static_cast<QDropEvent&>(event);
        drop.setDropAction(Qt::CopyAction); // nothing is taken from where it came
        drop.accept();
        TakeDrop(drop);
        return true;
    }
    case QEvent::KeyPress:
        return KeyPressed(static_cast<const QKeyEvent&>(event));
    default:
        return false;
    }
}

void ListViewEditable::AfterEvent(QEvent& event)
{
    switch (event.type()) {
    case QEvent::MouseMove:
        MouseMoved(static_cast<const QMouseEvent&>(event));
        break;
    case QEvent::MouseButtonRelease:
        MouseReleased(static_cast<const QMouseEvent&>(event));
        break;
    case QEvent::MouseButtonDblClick:
        Q_EMIT DblClick();
        break;
    case QEvent::KeyRelease: {
        const auto& key = static_cast<const QKeyEvent&>(event);
        Q_EMIT KeyUp(key.key(), ShiftOf(key.modifiers()));
        break;
    }
    default:
        break;
    }
}

ListViewEditable::Place ListViewEditable::HitTest(const QPoint& pixels) const
{
    const QModelIndex hit = ListView().indexAt(pixels);
    return hit.isValid() ? Place{hit.row() + 1, hit.column()} : Place();
}

void ListViewEditable::MouseMoved(const QMouseEvent& event)
{
    const Place hit = HitTest(event.pos());
    if (properties_.AutoTooltip && hit.row > 0) {
        ListView().setToolTip(hit.subItem > 0 ? rows_.Cell(hit.row, hit.subItem + 1)
                                              : rows_.Cell(hit.row, FileList::Path) +
                                                    rows_.Cell(hit.row, FileList::Name));
    }
    if (properties_.HoverSelection && hit.row > 0 && event.buttons() == Qt::NoButton) {
        table_->selectionModel()->setCurrentIndex(
            rows_.index(hit.row - 1, 0), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    Q_EMIT MouseMove(ButtonOf(event.button()), ShiftOf(event.modifiers()), event.pos().x() * TwipsPerPixel,
                     event.pos().y() * TwipsPerPixel);
}

void ListViewEditable::MouseReleased(const QMouseEvent& event)
{
    const int button = ButtonOf(event.button());
    const int shift = ShiftOf(event.modifiers());
    if (event.button() == Qt::RightButton && properties_.AutoPopupMenu) {
        ShowMenu(event.globalPosition().toPoint());
    }
    Q_EMIT MouseUp(button, shift, event.pos().x() * TwipsPerPixel, event.pos().y() * TwipsPerPixel);
    const Place hit = HitTest(event.pos());
    if (hit.row > 0 && properties_.SubitemSelect) {
        SetSelectedItem(hit.row);
        editCell_ = rows_.index(hit.row - 1, hit.subItem);
        if (properties_.AllowItemEdit) {
            OpenEdit();
        }
        host_.Yield();
        Q_EMIT SubitemClick(hit.row, hit.subItem, button, shift);
    } else if (hit.row == 0 && properties_.AutoDeselect) {
        SetSelectedItem(0);
    }
    if (hit.row > 0) {
        Q_EMIT ItemClick(hit.row);
    }
    Q_EMIT Click();
}

bool ListViewEditable::KeyPressed(const QKeyEvent& event)
{
    Q_EMIT KeyDown(event.key(), ShiftOf(event.modifiers()));
    if (!event.text().isEmpty() && !event.text().at(0).isNull()) {
        Q_EMIT KeyPress(event.text().at(0).unicode());
    }
    const bool checks = event.key() == Qt::Key_Space && event.modifiers() == Qt::NoModifier &&
                        properties_.Checkboxes && SelectedItem() > 0;
    if (checks) {
        CheckSelected();
    }
    return checks;
}

// All selected rows take the check that the current one changes to.
void ListViewEditable::CheckSelected()
{
    const bool checked = !rows_.Checked(SelectedItem());
    std::vector<int> selected;
    GetSelectedItems(selected);
    for (const int row : selected) {
        rows_.SetChecked(row, checked);
        Q_EMIT ItemCheck(row);
    }
    Q_EMIT Click();
}

void ListViewEditable::TakeDrop(const QDropEvent& event)
{
    const QStringList paths = windowing::DroppedNames(*event.mimeData());
    Q_EMIT DropBegins();
    rows_.Lock();
    const DropCounts counts =
        fileview::TakeDrop(paths, rows_, scanner_, properties_, properties_.ClearOnDragDrop);
    Q_EMIT FileDragDropFinish(counts.Total, counts.Files, counts.Folders);
    Q_EMIT OLEDragDrop(event.mimeData(), static_cast<int>(event.dropAction()), 0, ShiftOf(event.modifiers()),
                       event.position().toPoint().x() * TwipsPerPixel,
                       event.position().toPoint().y() * TwipsPerPixel);
    rows_.RemoveDuplicates();
    SortCustom(FileList::Path, true, ldtString);
    rows_.Unlock();
    Q_EMIT DropEnds();
}

} // namespace fileview

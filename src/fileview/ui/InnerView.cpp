// SPDX-License-Identifier: MIT
#include "fileview/ui/InnerView.h"

#include <QEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

namespace fileview {

namespace {

constexpr int RowPadding = 6; // pixels above and below a row's text together

template<class View>
bool Hear(ViewListener& listener, QEvent& event, View passOn)
{
    if (listener.BeforeEvent(event)) {
        return true;
    }
    const bool isHandled = passOn();
    listener.AfterEvent(event);
    return isHandled;
}

bool IsOfKeys(const QEvent& event)
{
    return event.type() == QEvent::KeyPress || event.type() == QEvent::KeyRelease;
}

// What comes to a view itself and not to its viewport: keys, and the key of the menu.
bool IsOfView(const QEvent& event)
{
    return IsOfKeys(event) || event.type() == QEvent::ContextMenu;
}

// Says in the middle of an empty view that it is empty.
void PaintEmptyText(QAbstractItemView& view, const QString& text)
{
    if (!text.isEmpty() && view.model()->rowCount() == 0) {
        QPainter painter(view.viewport());
        painter.setPen(view.palette().color(QPalette::PlaceholderText));
        painter.drawText(view.viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, text);
    }
}

QColor Mix(const QColor& base, const QColor& tint)
{
    const auto mixed = [](int of, int with) {
        return (of * 3 + with) / 4;
    };
    return {mixed(base.red(), tint.red()), mixed(base.green(), tint.green()),
            mixed(base.blue(), tint.blue())};
}

} // namespace

QColor ColourOf(int bgr)
{
    return {bgr & 0xFF, bgr >> 8U & 0xFF, bgr >> 16U & 0xFF};
}

BandColours BandColoursOf(const ListProperties& properties, const QColor& base)
{
    const QColor band = ColourOf(properties.HighlightColor);
    const bool isDark = base.lightness() < 128;
    return isDark ? BandColours{Mix(base, band), base} : BandColours{band, ColourOf(properties.DefaultColor)};
}

RowDelegate::RowDelegate(const ListProperties& properties, FileIcons& icons, QObject* parent)
    : QStyledItemDelegate(parent), properties_(properties), icons_(icons)
{}

void RowDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const auto* list = static_cast<const FileList*>(index.model());
    if (index.column() == 0) {
        option->icon = icons_.Of(list->Item(index.row() + 1));
        option->features |= QStyleOptionViewItem::HasDecoration;
        option->features.setFlag(QStyleOptionViewItem::HasCheckIndicator, properties_.Checkboxes);
    }
    const bool isReport = properties_.View == lvwReport;
    const bool isHidden = properties_.HideSelection && option->widget && !option->widget->hasFocus();
    if (isHidden || (isReport && index.column() != 0 && !properties_.FullRowSelect)) {
        option->state &= ~QStyle::State_Selected;
    }
    if (isReport) {
        option->state &= ~QStyle::State_HasFocus; // a row is current, not a cell
    }
    if (properties_.HotTracking && (option->state & QStyle::State_MouseOver) && index.column() == 0) {
        option->font.setUnderline(true);
    }
}

QString RowDelegate::displayText(const QVariant& value, const QLocale&) const
{
    return value.toString().replace(u'\n', QChar(0x240A)).replace(u'\r', QChar(0x240D));
}

bool RowDelegate::editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                              const QModelIndex& index)
{
    // The space bar is the control's, which checks all selected rows with it.
    return properties_.Checkboxes && !IsOfKeys(*event) &&
           QStyledItemDelegate::editorEvent(event, model, option, index);
}

FileHeader::FileHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent)
{
    setHighlightSections(false);
    setSectionsClickable(true);
    setTextElideMode(Qt::ElideRight);
}

void FileHeader::SetFlat(bool flat)
{
    isFlat_ = flat;
    setSectionsClickable(!flat);
    viewport()->update();
}

void FileHeader::paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const
{
    if (!isFlat_) {
        QHeaderView::paintSection(painter, rect, logicalIndex);
        return;
    }
    constexpr int margin = 4;
    const QVariant alignment = model()->headerData(logicalIndex, Qt::Horizontal, Qt::TextAlignmentRole);
    const QString text = model()->headerData(logicalIndex, Qt::Horizontal).toString();
    painter->fillRect(rect, palette().window());
    painter->setPen(palette().color(QPalette::WindowText));
    const QRect room = rect.adjusted(margin, 0, -margin, 0);
    painter->drawText(room, static_cast<int>(alignment.value<Qt::Alignment>()),
                      fontMetrics().elidedText(text, Qt::ElideRight, room.width()));
}

FileTable::FileTable(const ListProperties& properties, ViewListener& listener, QWidget* parent)
    : QTableView(parent), properties_(properties), listener_(listener)
{
    setHorizontalHeader(new FileHeader(this));
    Header().setSortIndicatorShown(true); // a table that doesn't sort by itself switches it off
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    setIconSize({16, 16});
    verticalHeader()->setDefaultSectionSize(
        qMax(iconSize().height() + 2, fontMetrics().height() + RowPadding));
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setVerticalScrollMode(ScrollPerItem);
    setHorizontalScrollMode(ScrollPerPixel);
    setWordWrap(false);
    setTextElideMode(Qt::ElideMiddle);
    setCornerButtonEnabled(false);
    setTabKeyNavigation(false); // Tab leaves the table
}

bool FileTable::event(QEvent* event)
{
    return IsOfView(*event) ? Hear(listener_, *event, [&] { return QTableView::event(event); })
                            : QTableView::event(event);
}

bool FileTable::viewportEvent(QEvent* event)
{
    return Hear(listener_, *event, [&] { return QTableView::viewportEvent(event); });
}

void FileTable::paintEvent(QPaintEvent* event)
{
    if (properties_.HighlightColumn) {
        const int column = properties_.CurrrentHighlightColumn - 1;
        const BandColours colours = BandColoursOf(properties_, palette().color(QPalette::Base));
        QPainter painter(viewport());
        painter.fillRect(viewport()->rect(), colours.rest);
        painter.fillRect(columnViewportPosition(column), 0, columnWidth(column), viewport()->height(),
                         colours.band);
    }
    QTableView::paintEvent(event);
    PaintEmptyText(*this, emptyText);
}

// Home and End lead to the first and the last row; left and right scroll.
QModelIndex FileTable::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    const int rows = model()->rowCount();
    switch (action) {
    case MoveHome:
        return model()->index(0, 0);
    case MoveEnd:
        return model()->index(rows - 1, 0);
    case MoveLeft:
    case MoveRight:
        horizontalScrollBar()->triggerAction(action == MoveLeft ? QScrollBar::SliderSingleStepSub
                                                                : QScrollBar::SliderSingleStepAdd);
        return currentIndex();
    default:
        return QTableView::moveCursor(action, modifiers);
    }
}

// Typed letters find a name, whatever column was clicked.
void FileTable::keyboardSearch(const QString& search)
{
    if (currentIndex().column() > 0) {
        selectionModel()->setCurrentIndex(currentIndex().siblingAtColumn(0), QItemSelectionModel::NoUpdate);
    }
    QTableView::keyboardSearch(search);
}

IconList::IconList(ViewListener& listener, QWidget* parent) : QListView(parent), listener_(listener)
{
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows); // as in the table, which has the same selection
    setResizeMode(Adjust);
    setLayoutMode(Batched);
    setUniformItemSizes(true);
    setMovement(Static);
    setTextElideMode(Qt::ElideMiddle);
}

void IconList::Arrange(const ListProperties& properties)
{
    const bool isLarge = properties.View == lvwIcon;
    const bool isColumns = properties.View == lvwList || properties.Arrange == lvwAutoLeft;
    setViewMode(isLarge ? IconMode : ListMode);
    setMovement(Static); // the mode sets its own
    setFlow(isColumns ? TopToBottom : LeftToRight);
    setWrapping(true);
    setIconSize(isLarge ? QSize(32, 32) : QSize(16, 16));
    const int width = fontMetrics().averageCharWidth();
    const int line = fontMetrics().height();
    setGridSize(isLarge ? QSize(width * 18, 32 + 2 * line + RowPadding)
                        : QSize(width * 32, qMax(18, line + RowPadding)));
    setWordWrap(false);
}

void IconList::paintEvent(QPaintEvent* event)
{
    QListView::paintEvent(event);
    PaintEmptyText(*this, emptyText);
}

bool IconList::event(QEvent* event)
{
    return IsOfView(*event) ? Hear(listener_, *event, [&] { return QListView::event(event); })
                            : QListView::event(event);
}

bool IconList::viewportEvent(QEvent* event)
{
    return Hear(listener_, *event, [&] { return QListView::viewportEvent(event); });
}

} // namespace fileview

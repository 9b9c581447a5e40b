// SPDX-License-Identifier: MIT
#include "fileview/ui/ListViewEditable.h"

#include "fileview/DroppedPaths.h"
#include "platform/Conversions.h"
#include "windowing/DroppedFiles.h"

#include <QBoxLayout>
#include <QDropEvent>
#include <QFileDialog>
#include <QMimeData>
#include <QMouseEvent>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>
#include <tuple>

namespace fileview {

namespace {

using windowing::Message;

constexpr int TwipsPerPixel = 15;

enum NextItemFlags { FocusedItem = 1, SelectedRow = 2 };

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

Qt::CursorShape CursorOf(int mousePointer)
{
    constexpr std::array shapes{
        Qt::ArrowCursor,     Qt::ArrowCursor,   Qt::CrossCursor,     Qt::IBeamCursor,
        Qt::ArrowCursor,     Qt::SizeAllCursor, Qt::SizeBDiagCursor, Qt::SizeVerCursor,
        Qt::SizeFDiagCursor, Qt::SizeHorCursor, Qt::UpArrowCursor,   Qt::WaitCursor,
        Qt::ForbiddenCursor, Qt::BusyCursor,    Qt::WhatsThisCursor, Qt::SizeAllCursor,
    };
    return mousePointer >= 0 && mousePointer < static_cast<int>(shapes.size())
               ? shapes.at(static_cast<std::size_t>(mousePointer))
               : Qt::ArrowCursor;
}

// A tooltip that shows a text as it is, whatever characters a name has.
QString PlainTooltip(const QString& text)
{
    return Qt::mightBeRichText(text) ? QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped()) : text;
}

} // namespace

ListViewEditable::ListViewEditable(FileList& rows, model::RunHost& host, model::AppState& state,
                                   QWidget* parent)
    : QWidget(parent), rows_(rows), host_(host), state_(state)
{
    MakeViews();
    MakeMenu();
    ForwardScanner();
    ApplyColumns();
    TakeSortOfRows();
    Apply();
}

// While the views go they still tell this control of their events.
ListViewEditable::~ListViewEditable()
{
    txtEdit_->removeEventFilter(this); // what is being typed is dropped
    delete views_;
}

void ListViewEditable::MakeViews()
{
    views_ = new QStackedWidget(this);
    table_ = new FileTable(properties_, *this, this);
    table_->setObjectName(QStringLiteral("ListView1"));
    table_->setAccessibleName(tr("Files"));
    iconList_ = new IconList(*this, this);
    iconList_->setAccessibleName(tr("Files"));
    for (QAbstractItemView* view : std::initializer_list<QAbstractItemView*>{table_, iconList_}) {
        view->setModel(&rows_);
        view->setItemDelegate(new RowDelegate(properties_, icons_, view));
        view->viewport()->setMouseTracking(true);
        view->setContextMenuPolicy(Qt::NoContextMenu); // the control's events open the menu
        views_->addWidget(view);
        connect(view->verticalScrollBar(), &QScrollBar::valueChanged, this,
                [view] { windowing::SendMessage(*view->viewport(), Message::VScroll); });
        connect(view->horizontalScrollBar(), &QScrollBar::valueChanged, this,
                [view] { windowing::SendMessage(*view->viewport(), Message::HScroll); });
    }
    iconList_->setSelectionModel(table_->selectionModel());

    txtEdit_ = new QLineEdit(table_->viewport());
    txtEdit_->setObjectName(QStringLiteral("txtEdit"));
    txtEdit_->setAccessibleName(tr("Text of the cell"));
    txtEdit_->setFrame(false);
    txtEdit_->setTextMargins(1, 0, 1, 0); // the text stays where the cell had it
    txtEdit_->hide();
    txtEdit_->installEventFilter(this);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(views_);
    setFocusProxy(table_);

    connect(&table_->Header(), &QHeaderView::sectionClicked, this,
            [this](int section) { ColumnClicked(section + 1); });
    connect(&table_->Header(), &QHeaderView::sectionResized, this, [this] {
        windowing::SendMessage(*ListView().viewport(), Message::Notify, windowing::HeaderItemChanging);
    });
    connect(&rows_, &FileList::SortChanged, this, &ListViewEditable::TakeSortOfRows);
    connect(&rows_, &FileList::ItemChecked, this, &ListViewEditable::ItemCheck);
    connect(&rows_, &QAbstractItemModel::modelReset, this, &ListViewEditable::LeaveEdit);
    connect(&rows_, &QAbstractItemModel::layoutChanged, this, &ListViewEditable::PlaceEdit);
    connect(&rows_, &QAbstractItemModel::rowsRemoved, this, &ListViewEditable::PlaceEdit);

    headerSubclass_.AddMsg(Message::LeftButtonUp, windowing::When::After);
    headerSubclass_.Subclass(*table_->Header().viewport(), *this);
    for (const int message : {Message::Notify, Message::VScroll, Message::HScroll, Message::MouseWheel}) {
        listSubclass_.AddMsg(message, windowing::When::After);
    }
}

void ListViewEditable::ForwardScanner()
{
    connect(&scanner_, &Scanner::BeforeScanStart, this, &ListViewEditable::BeforeScanStart);
    connect(&scanner_, &Scanner::SearchDirChange, this, &ListViewEditable::SearchDirChange);
    connect(&scanner_, &Scanner::ScanFinish, this, &ListViewEditable::ScanFinish);
}

QAbstractItemView& ListViewEditable::ListView() const
{
    return static_cast<QAbstractItemView&>(*views_->currentWidget());
}

void ListViewEditable::ReadProperties(const PropertyBag& bag)
{
    properties_ = ListProperties::ReadFrom(bag);
    isChanged_ = false;
    rows_.SetColumnHeaders(ColumnsOf(properties_.ColumnHeadersText));
    ApplyColumns();
    Apply();
}

void ListViewEditable::WriteProperties(PropertyBag& bag) const
{
    properties_.WriteTo(bag);
}

void ListViewEditable::ApplyColumns()
{
    const auto& columns = rows_.ColumnHeaders();
    for (std::size_t column = 0; column < columns.size(); ++column) {
        const auto width = static_cast<int>(columns[column].Width) / TwipsPerPixel;
        table_->setColumnWidth(static_cast<int>(column), std::max(0, width));
    }
}

void ListViewEditable::Apply()
{
    properties_.CurrrentHighlightColumn = std::max(1, properties_.CurrrentHighlightColumn);
    const ListProperties& of = properties_;
    views_->setCurrentIndex(of.View == lvwReport ? 0 : 1);
    iconList_->Arrange(of);
    setFocusProxy(&ListView());
    setEnabled(of.Enabled);
    if (isHidden() == of.Visible && (parentWidget() || !of.Visible)) {
        setVisible(of.Visible);
    }
    const bool isFlat = of.Appearance == ccFlat;
    const auto shape = isFlat ? QFrame::Box : QFrame::StyledPanel;
    for (auto* view : std::initializer_list<QAbstractItemView*>{table_, iconList_}) {
        view->setFrameShape(of.BorderStyle == ccNone ? QFrame::NoFrame : shape);
        view->setFrameShadow(isFlat ? QFrame::Plain : QFrame::Sunken);
        view->setSelectionMode(of.MultiSelect ? QAbstractItemView::ExtendedSelection
                                              : QAbstractItemView::SingleSelection);
        view->viewport()->setCursor(CursorOf(of.MousePointer));
        view->setAcceptDrops(of.AllowFileDragDrop);
        view->viewport()->setAcceptDrops(of.AllowFileDragDrop);
        view->viewport()->update();
    }
    table_->setShowGrid(of.GridLines);
    FileHeader& header = table_->Header();
    header.setVisible(!of.HideColumnHeaders);
    header.setSectionsMovable(of.AllowColumnReorder);
    header.SetFlat(of.FlatHeader);
    const auto [key, order, isSorted] = std::tuple(of.SortKey, of.SortOrder, of.Sorted);
    if (rows_.SortKey() != key) {
        rows_.SetSortKey(key);
    }
    if (rows_.Order() != order) {
        rows_.SetSortOrder(order == lvwDescending ? lvwDescending : lvwAscending);
    }
    if (rows_.Sorted() != isSorted) {
        rows_.SetSorted(isSorted);
    }
    ListenTo(ListView());
}

// The rows may be sorted by others, too.
void ListViewEditable::TakeSortOfRows()
{
    properties_.SortKey = rows_.SortKey();
    properties_.SortOrder = rows_.Order();
    properties_.Sorted = rows_.Sorted();
    table_->Header().setSortIndicator(rows_.Sorted() ? rows_.SortKey() : -1, rows_.Order() == lvwAscending
                                                                                 ? Qt::AscendingOrder
                                                                                 : Qt::DescendingOrder);
}

void ListViewEditable::SetEmptyText(const QString& text)
{
    table_->emptyText = text;
    iconList_->emptyText = text;
    ListView().viewport()->update();
}

void ListViewEditable::ListenTo(QAbstractItemView& view)
{
    if (listSubclass_.hWnd() != view.viewport()) {
        listSubclass_.Subclass(*view.viewport(), *this);
    }
}

void ListViewEditable::AddFile(const QString& Path, const QString& FileName)
{
    platform::FileSystem files;
    rows_.AddFile(Path, FileName, files);
}

int ListViewEditable::SelectedItem() const
{
    const QModelIndex current = table_->selectionModel()->currentIndex();
    return table_->selectionModel()->isRowSelected(current.row()) ? current.row() + 1 : 0;
}

void ListViewEditable::SetSelectedItem(int row)
{
    if (row < 1 || row > rows_.Count()) {
        table_->selectionModel()->clear();
        return;
    }
    rows_.AnnounceRows();
    const auto mode =
        properties_.MultiSelect ? QItemSelectionModel::Select : QItemSelectionModel::ClearAndSelect;
    table_->selectionModel()->setCurrentIndex(rows_.index(row - 1, 0), mode | QItemSelectionModel::Rows);
}

int ListViewEditable::SelectedCount() const
{
    int count = 0;
    for (const QItemSelectionRange& range : table_->selectionModel()->selection()) {
        count += range.height();
    }
    return count;
}

void ListViewEditable::SelectedAll(bool Value)
{
    rows_.AnnounceRows();
    Value ? ListView().selectAll() : table_->selectionModel()->clearSelection();
}

void ListViewEditable::InvertSelections()
{
    rows_.AnnounceRows();
    std::vector<int> selected;
    GetSelectedItems(selected);
    selected.push_back(rows_.Count() + 1);
    QItemSelection others;
    int first = 1;
    for (const int row : selected) {
        if (first < row) {
            others.append(QItemSelectionRange(rows_.index(first - 1, 0),
                                              rows_.index(row - 2, rows_.columnCount() - 1)));
        }
        first = row + 1;
    }
    table_->selectionModel()->select(others, QItemSelectionModel::ClearAndSelect);
}

int ListViewEditable::GetSelectedItems(std::vector<int>& Items) const
{
    std::vector<int> selected;
    for (const QItemSelectionRange& range : table_->selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            selected.push_back(row + 1);
        }
    }
    std::sort(selected.begin(), selected.end());
    if (!selected.empty()) {
        Items = selected;
    }
    return static_cast<int>(selected.size());
}

int ListViewEditable::NextItem(int Start, int Flags) const
{
    const QItemSelectionModel& selection = *table_->selectionModel();
    for (int row = std::max(-1, Start) + 1; row < rows_.rowCount(); ++row) {
        const bool isFocused = (Flags & FocusedItem) == 0 || selection.currentIndex().row() == row;
        const bool isSelected = (Flags & SelectedRow) == 0 || selection.isRowSelected(row);
        if (isFocused && isSelected) {
            return row;
        }
    }
    return -1;
}

int ListViewEditable::VisibleCount() const
{
    return table_->viewport()->height() / table_->verticalHeader()->defaultSectionSize();
}

int ListViewEditable::TopIndex() const
{
    return std::max(0, table_->rowAt(0)) + 1;
}

void ListViewEditable::SetTopIndex(int row)
{
    rows_.AnnounceRows();
    const int top = TopIndex();
    const int page = VisibleCount();
    int inSight = row;
    if (row >= top && row - top < page) {
        return;
    }
    if (row >= top) {
        inSight = row + page > rows_.Count() ? rows_.Count() : row + page - 1;
    }
    table_->scrollTo(rows_.index(inSight - 1, 0));
}

void ListViewEditable::ResizeListViewColumn(int Col)
{
    table_->setColumnWidth(Col, static_cast<QAbstractItemView*>(table_)->sizeHintForColumn(Col));
}

void ListViewEditable::ResizeListViewColumnsByText()
{
    for (int column = 0; column < rows_.columnCount(); ++column) {
        ResizeListViewColumn(column);
    }
}

void ListViewEditable::ResizeListViewHeader(int Col)
{
    table_->setColumnWidth(Col, table_->Header().sectionSizeHint(Col));
}

void ListViewEditable::ResizeListViewHeaders()
{
    for (int column = 0; column < rows_.columnCount(); ++column) {
        ResizeListViewHeader(column);
    }
}

void ListViewEditable::SortCustom(int Column, bool Ascending, int DataType)
{
    const QCursor pointer = ListView().viewport()->cursor();
    ListView().viewport()->setCursor(CursorOf(ccHourglass));
    rows_.SortCustom(Column, Ascending, DataType, state_.SortNamesByMagnitude);
    ListView().viewport()->setCursor(pointer);
}

void ListViewEditable::ColumnClicked(int column)
{
    const auto& header = rows_.ColumnHeaders().at(static_cast<std::size_t>(column - 1));
    const auto dataType = static_cast<int>(platform::LeadingNumber(header.Tag));
    SortCustom(column, properties_.SortOrder == lvwDescending, dataType);
    if (properties_.HighlightColumn) {
        DoHighlightColumn(properties_.HighlightColor, properties_.DefaultColor, column,
                          properties_.SizingType);
        host_.Yield();
    }
    PlaceEdit();
    Q_EMIT ColumnClick(column);
}

void ListViewEditable::DoHighlightColumn(int HighlightColor, int DefaultColor, int Column, int SizingType)
{
    properties_.HighlightColor = HighlightColor;
    properties_.DefaultColor = DefaultColor;
    properties_.CurrrentHighlightColumn = std::max(1, Column);
    properties_.SizingType =
        properties_.CurrrentHighlightColumn == 1 ? static_cast<int>(sizeIcon) : SizingType;
    table_->viewport()->update();
}

void ListViewEditable::Refresh()
{
    rows_.AnnounceRows();
    ListView().viewport()->update();
}

QString ListViewEditable::SelectDirectory(const QString& Prompt, QWidget* Owner)
{
    const QString chosen = QFileDialog::getExistingDirectory(
        Owner ? Owner : hWndCtrl(), Prompt + properties_.FileSpec + u'.', state_.LastTargetFolder);
    return chosen.isEmpty() || chosen.endsWith(u'/') ? chosen : chosen + u'/';
}

void ListViewEditable::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    Q_EMIT Resize();
}

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
}

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

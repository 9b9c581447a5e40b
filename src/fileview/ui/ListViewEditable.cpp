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

} // namespace fileview

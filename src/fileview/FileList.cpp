// SPDX-License-Identifier: MIT
#include "fileview/FileList.h"

#include "fileview/FileInfo.h"
#include "model/GetFName.h"

#include <algorithm>
#include <utility>

namespace fileview {

namespace {

constexpr int MostRowsWithoutDuplicates = 32'767; // row numbers of that comparison have 16 bits

QString Numbered(bool showIndex, int row, const QString& delimiter, const QString& text)
{
    return showIndex ? QString::number(row) + delimiter + text : text;
}

Qt::Alignment AlignmentOf(const ColumnHeader& column)
{
    switch (column.Alignment) {
    case lvwColumnRight:
        return Qt::AlignRight;
    case lvwColumnCenter:
        return Qt::AlignHCenter;
    default:
        return Qt::AlignLeft;
    }
}

} // namespace

FileList::FileList(QObject* parent)
    : QAbstractTableModel(parent), columns_(ColumnsOf(DefaultColumnHeadersText()))
{}

void FileList::Clear()
{
    beginResetModel();
    rows_.clear();
    announced_ = 0;
    endResetModel();
}

void FileList::AddFile(const QString& folder, const QString& name, platform::FileSystem& files)
{
    model::FileRow row;
    row.Text = name;
    // Files come folder by folder: rows of one folder share its text.
    row.Path = !rows_.empty() && rows_.back().Path == folder ? rows_.back().Path : folder;
    if (const auto info = files.GetInfo(folder, name)) {
        row.Type = info->isFolder ? model::FileFolder : types_.OfFile(name);
        row.size = info->size;
        row.modified = info->modified;
    }
    AddRow(std::move(row));
}

void FileList::AddRowsOf(const FileList& other, const std::function<bool(const model::FileRow&)>& isWanted)
{
    for (const model::FileRow& row : other.rows_) {
        if (isWanted(row)) {
            AddRow(row);
            rows_.back().checked = false;
        }
    }
}

void FileList::AddRow(model::FileRow row)
{
    RememberIcon(row);
    rows_.push_back(std::move(row));
    isOrderDue_ = isSorted_;
    if (locks_ == 0 && !isAnnouncementDue_) {
        isAnnouncementDue_ = true;
        QMetaObject::invokeMethod(this, &FileList::AnnounceRows, Qt::QueuedConnection);
    }
}

void FileList::RememberIcon(const model::FileRow& row)
{
    if (row.Type == lastType_) {
        return; // as nearly always
    }
    if (const QString key = IconKeyOf(row); !key.isEmpty()) {
        iconKeys_.insert(key);
    }
    lastType_ = IsProgramType(row.Type) ? QString() : row.Type;
}

void FileList::RemoveIf(const std::function<bool(const model::FileRow&)>& isUnwanted)
{
    std::vector<int> order;
    std::vector<int> unwanted;
    order.reserve(rows_.size());
    for (int row = 0; row < Count(); ++row) {
        (isUnwanted(rows_[static_cast<std::size_t>(row)]) ? unwanted : order).push_back(row);
    }
    if (unwanted.empty()) {
        return;
    }
    order.insert(order.end(), unwanted.begin(), unwanted.end());
    Reorder(order);
    RemoveLast(static_cast<int>(unwanted.size()));
    OrderNewRows();
}

void FileList::RemoveDuplicates()
{
    if (Count() > MostRowsWithoutDuplicates) {
        return;
    }
    QSet<QString> names;
    names.reserve(Count());
    RemoveIf([&names](const model::FileRow& row) {
        const qsizetype before = names.size();
        names.insert(row.Path + row.Text);
        return names.size() == before;
    });
}

void FileList::SetColumnHeaders(std::vector<ColumnHeader> columns)
{
    beginResetModel();
    columns_ = std::move(columns);
    endResetModel();
}

void FileList::SetChecked(int index, bool checked)
{
    rows_[static_cast<std::size_t>(index - 1)].checked = checked;
    if (index <= announced_) {
        const QModelIndex changed = createIndex(index - 1, 0);
        Q_EMIT dataChanged(changed, changed, {Qt::CheckStateRole});
    }
}

void FileList::SetCheckedAll(bool checked)
{
    SetCheckedIf([](const model::FileRow&) { return true; }, checked);
}

void FileList::InvertAllChecks()
{
    for (model::FileRow& row : rows_) {
        row.checked = !row.checked;
    }
    AnnounceChecks();
}

void FileList::SetCheckedIf(const std::function<bool(const model::FileRow&)>& isMeant, bool checked)
{
    for (model::FileRow& row : rows_) {
        row.checked = isMeant(row) ? checked : row.checked;
    }
    AnnounceChecks();
}

void FileList::AnnounceChecks()
{
    if (announced_ > 0) {
        Q_EMIT dataChanged(createIndex(0, 0), createIndex(announced_ - 1, 0), {Qt::CheckStateRole});
    }
}

int FileList::CheckedCount() const
{
    return static_cast<int>(
        std::count_if(rows_.begin(), rows_.end(), [](const model::FileRow& row) { return row.checked; }));
}

int FileList::GetCheckedItems(std::vector<int>& Items) const
{
    const int count = CheckedCount();
    if (count == 0) {
        return 0;
    }
    Items.clear();
    Items.reserve(static_cast<std::size_t>(count));
    for (int row = 1; row <= Count(); ++row) {
        if (Checked(row)) {
            Items.push_back(row);
        }
    }
    return count;
}

QString FileList::TextOf(const model::FileRow& row, int column) const
{
    switch (column) {
    case Name:
        return row.Text;
    case Path:
        return row.Path;
    case Size:
        return SizeTextOf(row);
    case Type:
        return row.Type;
    case Date:
        return DateTextOf(row);
    default:
        return {};
    }
}

QString FileList::Cell(int Row, int Col) const
{
    return Row >= 1 && Row <= Count() ? TextOf(Item(Row), Col) : QString();
}

QString FileList::Row(int Row, const QString& Delimiter, bool ShowIndex) const
{
    if (Row < 1 || Row > Count()) {
        return {};
    }
    QStringList cells;
    for (int column = 1; column <= columnCount(); ++column) {
        cells << Cell(Row, column);
    }
    return Numbered(ShowIndex, Row, Delimiter, cells.join(Delimiter));
}

QString FileList::Rows(const QString& RowDelimiter, const QString& ColDelimiter, bool ShowIndex,
                       std::span<const int> Indices) const
{
    QStringList rows;
    for (const int row : Indices) {
        rows << Row(row, ColDelimiter, ShowIndex);
    }
    return rows.join(RowDelimiter);
}

QString FileList::RowsArray(std::span<const int> Indices, const QString& RowDelimiter,
                            const QString& ColDelimiter, bool ShowIndex) const
{
    return Rows(RowDelimiter, ColDelimiter, ShowIndex, Indices);
}

QString FileList::Col(int Col, const QString& Delimiter, bool ShowIndex) const
{
    if (Col < 1 || Col > columnCount()) {
        return {};
    }
    QStringList cells;
    for (int row = 1; row <= Count(); ++row) {
        cells << Numbered(ShowIndex, row, QStringLiteral("\t"), Cell(row, Col));
    }
    return cells.join(Delimiter);
}

QString FileList::Cols(const QString& RowDelimiter, const QString& ColDelimiter, bool ShowIndex,
                       std::span<const int> Indices) const
{
    QStringList rows;
    for (int row = 1; row <= Count(); ++row) {
        QStringList cells;
        for (const int column : Indices) {
            if (column > columnCount()) {
                return {};
            }
            cells << Cell(row, std::max(1, column));
        }
        rows << Numbered(ShowIndex, row, ColDelimiter, cells.join(ColDelimiter));
    }
    return rows.join(RowDelimiter);
}

bool FileList::SetCell(int row, int col, const QString& text)
{
    if (row < 1 || row > Count() || col < Name || col > Date) {
        return false;
    }
    model::FileRow& item = rows_[static_cast<std::size_t>(row - 1)];
    auto written = item.written ? *item.written : model::WrittenTexts();
    switch (col) {
    case Name:
        item.Text = text;
        break;
    case Path:
        item.Path = text;
        break;
    case Type:
        item.Type = text;
        break;
    default:
        // An empty text isn't a null one: it was written, too.
        (col == Size ? written.size : written.date) = text.isNull() ? QStringLiteral("") : text;
        item.written = std::make_shared<const model::WrittenTexts>(std::move(written));
    }
    if (row <= announced_) {
        const QModelIndex changed = createIndex(row - 1, col - 1);
        Q_EMIT dataChanged(changed, changed);
    }
    return true;
}

void FileList::SortCustom(int column, bool ascending, int dataType, bool byMagnitude)
{
    sort_ = {column, ascending, dataType, byMagnitude};
    isSorted_ = true;
    SortAnew();
}

void FileList::SetSortKey(int key)
{
    sort_ = {key + 1, sort_.ascending};
    SortAnew();
}

void FileList::SetSortOrder(SortOrder order)
{
    sort_.ascending = order == lvwAscending;
    SortAnew();
}

void FileList::SetSorted(bool sorted)
{
    isSorted_ = sorted;
    SortAnew();
}

void FileList::SortAnew()
{
    SortNow();
    Q_EMIT SortChanged();
}

void FileList::SortNow()
{
    if (!isSorted_) {
        return;
    }
    isOrderDue_ = false;
    // The keys stand for names: another column of texts is sorted as it is.
    const bool ordersNames = sort_.column == Name && sort_.dataType != ldtNumber &&
                             sort_.dataType != ldtDateTime && sort_.byMagnitude;
    std::vector<QString> texts;
    texts.reserve(rows_.size());
    for (const model::FileRow& row : rows_) {
        texts.push_back(TextOf(row, sort_.column));
    }
    const auto keys = ordersNames ? MagnitudeKeysOf(texts) : KeysOf(texts, sort_.dataType);
    Reorder(OrderOf(keys, sort_.ascending));
}

// Views learn of all rows before they learn of a new order.
void FileList::Reorder(const std::vector<int>& order)
{
    InsertNewRows();
    if (std::is_sorted(order.begin(), order.end())) {
        return;
    }
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    std::vector<model::FileRow> rows;
    rows.reserve(rows_.capacity());
    std::vector<int> placeOf(order.size());
    for (const int row : order) {
        placeOf[static_cast<std::size_t>(row)] = static_cast<int>(rows.size());
        rows.push_back(std::move(rows_[static_cast<std::size_t>(row)]));
    }
    rows_ = std::move(rows);
    const QModelIndexList from = persistentIndexList();
    QModelIndexList to;
    to.reserve(from.size());
    for (const QModelIndex& index : from) {
        to << createIndex(placeOf[static_cast<std::size_t>(index.row())], index.column());
    }
    changePersistentIndexList(from, to);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

void FileList::RemoveLast(int count)
{
    beginRemoveRows({}, Count() - count, Count() - 1);
    rows_.erase(rows_.end() - count, rows_.end());
    announced_ = Count();
    endRemoveRows();
}

void FileList::Unlock()
{
    if (--locks_ == 0) {
        AnnounceRows();
    }
}

void FileList::AnnounceRows()
{
    isAnnouncementDue_ = false;
    InsertNewRows();
    OrderNewRows();
}

void FileList::OrderNewRows()
{
    if (isOrderDue_ && locks_ == 0) {
        SortNow();
    }
}

void FileList::InsertNewRows()
{
    if (announced_ < Count()) {
        beginInsertRows({}, announced_, Count() - 1);
        announced_ = Count();
        endInsertRows();
    }
}

int FileList::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : announced_;
}

int FileList::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant FileList::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const model::FileRow& row = Item(index.row() + 1);
    const auto& column = columns_[static_cast<std::size_t>(index.column())];
    switch (role) {
    case Qt::DisplayRole:
        return TextOf(row, index.column() + 1);
    case Qt::CheckStateRole:
        return index.column() == 0 ? QVariant(row.checked ? Qt::Checked : Qt::Unchecked) : QVariant();
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(AlignmentOf(column) | Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant FileList::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) {
        return {};
    }
    const auto& column = columns_[static_cast<std::size_t>(section)];
    switch (role) {
    case Qt::DisplayRole:
        return column.Text;
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(AlignmentOf(column) | Qt::AlignVCenter);
    default:
        return {};
    }
}

Qt::ItemFlags FileList::flags(const QModelIndex& index) const
{
    if (!index.isValid()) {
        return {};
    }
    return Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren |
           (index.column() == 0 ? Qt::ItemIsUserCheckable : Qt::NoItemFlags);
}

bool FileList::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || index.column() != 0 || role != Qt::CheckStateRole) {
        return false;
    }
    SetChecked(index.row() + 1, value.toInt() == Qt::Checked);
    Q_EMIT ItemChecked(index.row() + 1);
    return true;
}

} // namespace fileview

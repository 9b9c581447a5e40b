// SPDX-License-Identifier: MIT
#include "workspace/GridPre.h"

#include "model/GetFName.h"
#include "model/Text.h"
#include "platform/Conversions.h"

#include <QDateTime>

#include <algorithm>
#include <array>
#include <limits>

namespace workspace {

namespace {

const std::array<QString, GridPre::ColumnCount>& Headers()
{
    static const std::array<QString, GridPre::ColumnCount> headers{
        QStringLiteral("Original"), QStringLiteral("Preview"),           QStringLiteral("Path"),
        QStringLiteral("Size"),     QStringLiteral("Modified"),          QStringLiteral("Folder"),
        QStringLiteral("Type"),     QStringLiteral("Picture Taken Date")};
    return headers;
}

QString TextOf(const model::RenameRow& row, int column)
{
    switch (column) {
    case GridPre::Original:
        return row.original;
    case GridPre::Preview:
        return row.preview;
    case GridPre::Path:
        return row.path;
    case GridPre::Size:
        return QString::number(row.size);
    case GridPre::Modified:
        return row.modified ? platform::ModifiedText(*row.modified) : QString();
    case GridPre::Folder:
        return row.folder;
    case GridPre::Type:
        return row.type;
    case GridPre::PictureTakenDate:
        return row.pictureTakenDate;
    default:
        return {};
    }
}

// A number that sorts like the cell's date; the least one for a cell without a date. Picture dates part their
// days with ":" in the file.
qint64 DateKey(const model::RenameRow& row, int column)
{
    constexpr qint64 noDate = std::numeric_limits<qint64>::min();
    if (column == GridPre::Modified) {
        return row.modified.value_or(noDate);
    }
    QString text = TextOf(row, column);
    text.remove(0, text.indexOf(u' ') == 9 ? 10 : 0); // "DateTime: "
    if (text.size() > 7 && text.at(4) == u':' && text.at(7) == u':') {
        text[4] = text[7] = u'/';
    }
    const auto moment = platform::ToMoment(text);
    return moment ? moment->toSecsSinceEpoch() : noDate;
}

int BaseLength(const model::RenameRow& row, int column)
{
    return model::Length(model::GetFName(TextOf(row, column), row.type, false));
}

// What a row sorts by.
struct SortItem
{
    int row; // 0-based, before the sort
    qint64 number;
    QString text;
};

SortItem ItemOf(const model::RenameRow& row, int index, int column, SortKind kind)
{
    switch (kind) {
    case SortKind::Number:
        return {index, row.size, {}}; // the one column of numbers
    case SortKind::Date:
        return {index, DateKey(row, column), {}};
    case SortKind::Text:
        break;
    }
    return {index, 0, TextOf(row, column)};
}

int Compare(const SortItem& a, const SortItem& b)
{
    if (a.number != b.number) {
        return a.number < b.number ? -1 : 1;
    }
    const int folded = QString::compare(a.text, b.text, Qt::CaseInsensitive);
    return folded != 0 ? folded : QString::compare(a.text, b.text);
}

} // namespace

unsigned GridPre::ColourOf(model::ValidationState state)
{
    switch (state) {
    case model::ValidationState::Changed:
        return 0xACF9B8;
    case model::ValidationState::NotChanged:
        return 0x00FFFF;
    case model::ValidationState::Duplicate:
        return 0xFF0000;
    case model::ValidationState::NotValidated:
        break;
    }
    return 0xFFFFFF;
}

QString GridPre::Cell(int row, int column) const
{
    return TextOf(Row(row), column);
}

int GridPre::LongestLength(int column) const
{
    int longest = 0;
    for (const model::RenameRow& row : rows_) {
        longest = std::max(longest, BaseLength(row, column));
    }
    return longest;
}

int GridPre::ShortestLength(int column) const
{
    int shortest = rows_.empty() ? 0 : BaseLength(rows_.front(), column);
    for (const model::RenameRow& row : rows_) {
        shortest = std::min(shortest, BaseLength(row, column));
    }
    return shortest;
}

void GridPre::SetRows(std::vector<model::RenameRow> rows)
{
    beginResetModel();
    rows_ = std::move(rows);
    firstChanged_ = lastChanged_ = 0;
    endResetModel();
}

model::RenameRow& GridPre::Changed(int row)
{
    firstChanged_ = firstChanged_ == 0 ? row : std::min(firstChanged_, row);
    lastChanged_ = std::max(lastChanged_, row);
    return rows_[static_cast<std::size_t>(row - 1)];
}

void GridPre::SetPreview(int row, const QString& text)
{
    Changed(row).preview = text;
}

void GridPre::SetState(int row, model::ValidationState state)
{
    Changed(row).state = state;
}

void GridPre::SetPictureTakenDate(int row, const QString& text)
{
    Changed(row).pictureTakenDate = text;
}

void GridPre::PromotePreviews()
{
    for (int number = 1; number <= RowCount(); ++number) {
        if (!Row(number).preview.isEmpty()) {
            model::RenameRow& row = Changed(number);
            row.original = std::move(row.preview);
            row.preview = QString();
        }
    }
}

void GridPre::AnnounceChanges()
{
    if (firstChanged_ == 0) {
        return;
    }
    const QModelIndex first = index(firstChanged_ - 1, 0);
    const QModelIndex last = index(lastChanged_ - 1, ColumnCount - 1);
    firstChanged_ = lastChanged_ = 0;
    Q_EMIT dataChanged(first, last);
}

void GridPre::Sort(int column, SortOrder order, SortKind kind)
{
    std::vector<SortItem> items;
    items.reserve(rows_.size());
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        items.push_back(ItemOf(rows_[i], static_cast<int>(i), column, kind));
    }
    std::stable_sort(items.begin(), items.end(), [order](const SortItem& a, const SortItem& b) {
        return order == SortOrder::Ascending ? Compare(a, b) < 0 : Compare(b, a) < 0;
    });

    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    std::vector<model::RenameRow> sorted;
    sorted.reserve(rows_.size());
    for (const SortItem& item : items) {
        sorted.push_back(std::move(rows_[static_cast<std::size_t>(item.row)]));
    }
    rows_ = std::move(sorted);
    std::vector<int> newRowOf(items.size());
    for (std::size_t i = 0; i < items.size(); ++i) {
        newRowOf[static_cast<std::size_t>(items[i].row)] = static_cast<int>(i);
    }
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    for (const QModelIndex& old : before) {
        after.append(index(newRowOf[static_cast<std::size_t>(old.row())], old.column()));
    }
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

int GridPre::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : RowCount();
}

int GridPre::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant GridPre::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const model::RenameRow& row = rows_[static_cast<std::size_t>(index.row())];
    const int column = index.column() + 1;
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return TextOf(row, column);
    case ColourRole:
        return column == Preview && row.state != model::ValidationState::NotValidated
                   ? QVariant(ColourOf(row.state))
                   : QVariant();
    default:
        return {};
    }
}

QVariant GridPre::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || section < 0) {
        return {};
    }
    if (orientation == Qt::Vertical) {
        return section + 1;
    }
    return section < ColumnCount ? QVariant(Headers()[static_cast<std::size_t>(section)]) : QVariant();
}

Qt::ItemFlags GridPre::flags(const QModelIndex& index) const
{
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    flags.setFlag(Qt::ItemIsEditable, index.isValid() && index.column() + 1 == Preview);
    return flags;
}

bool GridPre::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole || !(flags(index) & Qt::ItemIsEditable)) {
        return false;
    }
    rows_[static_cast<std::size_t>(index.row())].preview = value.toString();
    Q_EMIT dataChanged(index, index, {Qt::DisplayRole, Qt::EditRole});
    return true;
}

} // namespace workspace

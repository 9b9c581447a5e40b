// SPDX-License-Identifier: MIT
#include "workspace/ReplaceGrid.h"

#include <algorithm>

namespace workspace {
namespace {

// The cells of a row, by 0-based column.
constexpr std::array<QString actions::ReplaceRow::*, ReplaceGrid::ColumnCount> Cells{
    &actions::ReplaceRow::matchFlag, &actions::ReplaceRow::from, &actions::ReplaceRow::to};

QString actions::ReplaceRow::*CellOf(const QModelIndex& index)
{
    return Cells[static_cast<std::size_t>(index.column())];
}

QString FirstLine(const QString& text)
{
    const auto end = std::find_if(text.begin(), text.end(), [](QChar unit) {
        return unit == u'\n' || unit == u'\r' || unit == QChar::LineSeparator ||
               unit == QChar::ParagraphSeparator;
    });
    return text.left(end - text.begin());
}

} // namespace

ReplaceGrid::ReplaceGrid(Heads heads, QObject* parent)
    : QAbstractTableModel(parent), heads_(std::move(heads)), rows_(RowCount)
{}

void ReplaceGrid::Touch(int row)
{
    if (row > count_) {
        count_ = row;
        AnnounceRows(count_);
    }
}

actions::ReplaceRows ReplaceGrid::Rows() const
{
    return {rows_.begin(), rows_.begin() + count_};
}

void ReplaceGrid::Show(const actions::ReplaceRows& rows)
{
    rows_.assign(RowCount, {});
    Load(rows);
}

void ReplaceGrid::Load(const actions::ReplaceRows& rows)
{
    count_ = static_cast<int>(std::min<std::size_t>(rows.size(), RowCount));
    std::copy_n(rows.begin(), count_, rows_.begin());
    AnnounceRows(RowCount);
}

void ReplaceGrid::MarkAll(bool on)
{
    for (int row = 0; row < count_; ++row) {
        rows_[static_cast<std::size_t>(row)].matchFlag = on ? QStringLiteral("Y") : QStringLiteral("n");
    }
    AnnounceRows(count_);
}

void ReplaceGrid::BeginEdit(int row)
{
    Touch(row); // or a row filled by keys alone would be no part of the list
    const QModelIndex flag = index(row - 1, MatchCase - 1);
    if (data(flag).toString().isEmpty()) {
        setData(flag, QStringLiteral("n"));
    }
}

void ReplaceGrid::Clear()
{
    std::fill_n(rows_.begin(), count_, actions::ReplaceRow());
    AnnounceRows(count_);
}

void ReplaceGrid::DeleteRow(int row)
{
    beginRemoveRows({}, row - 1, row - 1);
    rows_.erase(rows_.begin() + row - 1);
    endRemoveRows();
    beginInsertRows({}, RowCount - 1, RowCount - 1);
    rows_.emplace_back();
    endInsertRows();
}

void ReplaceGrid::AnnounceRows(int last)
{
    if (last > 0) {
        Q_EMIT dataChanged(index(0, 0), index(last - 1, ColumnCount - 1));
    }
}

int ReplaceGrid::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int ReplaceGrid::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ReplaceGrid::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) ||
        (role != Qt::DisplayRole && role != Qt::EditRole)) {
        return {};
    }
    return rows_[static_cast<std::size_t>(index.row())].*CellOf(index);
}

QVariant ReplaceGrid::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || section < 0) {
        return {};
    }
    if (orientation == Qt::Vertical) {
        return section + 1;
    }
    return section < ColumnCount ? QVariant(heads_[static_cast<std::size_t>(section)]) : QVariant();
}

Qt::ItemFlags ReplaceGrid::flags(const QModelIndex& index) const
{
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    flags.setFlag(Qt::ItemIsEditable, index.isValid());
    return flags;
}

bool ReplaceGrid::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole || !checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return false;
    }
    rows_[static_cast<std::size_t>(index.row())].*CellOf(index) = FirstLine(value.toString());
    Q_EMIT dataChanged(index, index, {Qt::DisplayRole, Qt::EditRole});
    return true;
}

} // namespace workspace

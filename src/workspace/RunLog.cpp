// SPDX-License-Identifier: MIT
#include "workspace/RunLog.h"

#include "platform/TextFile.h"
#include "workspace/LogFormat.h"

#include <algorithm>

namespace workspace {

RunLog::Fields RunLog::FieldsOf(const QString& line)
{
    Fields fields;
    qsizetype from = 0;
    for (std::size_t i = 0; i + 1 < fields.size(); ++i) {
        const qsizetype at = line.indexOf(LogSeparator, from);
        if (at < 0) {
            fields[i] = line.mid(from);
            return fields;
        }
        fields[i] = line.mid(from, at - from);
        from = at + LogSeparator.size();
    }
    fields.back() = line.mid(from);
    return fields;
}

void RunLog::Load(const QString& path)
{
    const QStringList lines =
        platform::ReadLines(path, platform::Fallback::NameBytes).value_or(QStringList());
    beginResetModel();
    rows_.clear();
    rows_.reserve(static_cast<std::size_t>(lines.size()));
    std::ranges::transform(lines, std::back_inserter(rows_), FieldsOf);
    endResetModel();
}

int RunLog::FailureCount() const
{
    return static_cast<int>(std::ranges::count_if(
        rows_, [](const Fields& fields) { return fields[Result] != RenameSuccessful; }));
}

int RunLog::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int RunLog::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant RunLog::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const QString& field =
        rows_[static_cast<std::size_t>(index.row())][static_cast<std::size_t>(index.column())];
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole: // columns are narrower than many paths
        return field;
    case ColourRole:
        return index.column() == Result && field != RenameSuccessful ? QVariant(FailureColour) : QVariant();
    default:
        return {};
    }
}

QVariant RunLog::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    switch (section) {
    case Path:
        return tr("Path");
    case OriginalName:
        return tr("Original Name");
    case ModifiedName:
        return tr("Modified Name");
    case Result:
        return tr("Result");
    default:
        return {};
    }
}

} // namespace workspace

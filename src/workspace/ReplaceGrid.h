// SPDX-License-Identifier: MIT
//
// ReplaceGrid: the grid in which a list of replacements is edited, as an item model. It always has 500 rows;
// the list is the rows 1 to Count, and what stands below is outside the list. The operations below count rows
// and columns from 1; windows use the QAbstractTableModel side, which counts from 0.
#pragma once

#include "actions/ReplaceList.h"

#include <QAbstractTableModel>

#include <array>
#include <vector>

namespace workspace {

class ReplaceGrid final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { MatchCase = 1, From, To };
    static constexpr int ColumnCount = 3;
    static constexpr int RowCount = 500;

    using Heads = std::array<QString, ColumnCount>;

    explicit ReplaceGrid(Heads heads, QObject* parent = nullptr);

    // The highest row that was ever touched, or the number of rows shown or loaded last.
    int Count() const { return count_; }

    // A row was pressed with the mouse: the list reaches down to it.
    void Touch(int row);

    // Rows 1 to Count, empty ones too.
    actions::ReplaceRows Rows() const;

    // The grid shows these rows and nothing else. Rows beyond the grid's end are dropped.
    void Show(const actions::ReplaceRows& rows);

    // Lays these rows over the grid from row 1 on, and they become the list. Rows below aren't emptied: they
    // stay on show, outside the list. Rows beyond the grid's end are dropped.
    void Load(const actions::ReplaceRows& rows);

    // Column 1 of rows 1 to Count becomes "Y" or "n". Actions ask for a small "y", so rows marked by this
    // stay without regard to case; only a "y" put into the cell itself is case-sensitive.
    void MarkAll(bool on);

    // An editor opens in a row, which touches it: "n" goes into its column 1 if that is empty.
    void BeginEdit(int row);

    // Empties the cells of rows 1 to Count. The count stays.
    void Clear();

    // Takes the row out; those below move up, and the last one becomes empty. The count stays.
    void DeleteRow(int row);

    // The view's side. Every cell is editable and is one line: of a text of several lines the first is taken.
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

private:
    // Tells views that the rows 1 to `last` changed.
    void AnnounceRows(int last);

    Heads heads_;
    std::vector<actions::ReplaceRow> rows_;
    int count_ = 0;
};

} // namespace workspace

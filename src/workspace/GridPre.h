// SPDX-License-Identifier: MIT
//
// GridPre: the rows of a rename, as an item model. The logic uses the operations below, in which rows and
// columns count from 1; windows use the QAbstractTableModel side, which counts from 0.
//
// Changes made through SetPreview, SetState and the like are told to views in one range when AnnounceChanges
// is called, never a cell at a time: a run may touch 100,000 rows before the next repaint.
#pragma once

#include "model/RenameRow.h"

#include <QAbstractTableModel>

#include <vector>

namespace workspace {

enum class SortOrder { Ascending, Descending };
enum class SortKind { Text, Number, Date };

class GridPre final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Original = 1, Preview, Path, Size, Modified, Folder, Type, PictureTakenDate };
    static constexpr int ColumnCount = 8;

    // data() role of a Preview cell's colour, 0xRRGGBB as an unsigned number; none while it isn't validated.
    // Colours need no window here: the delegate that paints the cell turns it into a brush.
    static constexpr int ColourRole = Qt::UserRole;

    // RGB of a Preview cell in a state, 0xRRGGBB.
    static unsigned ColourOf(model::ValidationState state);

    using QAbstractTableModel::QAbstractTableModel;

    int RowCount() const { return static_cast<int>(rows_.size()); }

    // REQUIRES: 1 <= row <= RowCount().
    const model::RenameRow& Row(int row) const { return rows_[static_cast<std::size_t>(row - 1)]; }

    // The cell's text: numbers in plain digits, the date as "yyyy/MM/dd hh:mm:ss".
    QString Cell(int row, int column) const;

    // The greatest and the least number of characters that the base names of a column have, over all rows; 0
    // without rows.
    int LongestLength(int column) const;
    int ShortestLength(int column) const;

    // Replaces all rows. Announced at once.
    void SetRows(std::vector<model::RenameRow> rows);
    void Clear() { SetRows({}); }

    // Announced by AnnounceChanges.
    void SetPreview(int row, const QString& text);
    void SetState(int row, model::ValidationState state);
    void SetPictureTakenDate(int row, const QString& text);

    // Makes every non-empty Preview the row's Original and empties it. Announced by AnnounceChanges.
    void PromotePreviews();

    // Tells views what changed since the last call, in one range.
    void AnnounceChanges();

    // Sorts all rows by a column. Text compares without case, and exactly where that leaves a tie; a date
    // that can't be read comes before all others. Rows that compare equal keep their order.
    void Sort(int column, SortOrder order, SortKind kind);

    // The view's side. Only Preview is editable; editing it changes nothing else. Columns 3 to 8 are for
    // the logic, and views hide them.
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

private:
    model::RenameRow& Changed(int row);

    std::vector<model::RenameRow> rows_;
    int firstChanged_ = 0; // 1-based; 0: nothing changed
    int lastChanged_ = 0;
};

} // namespace workspace

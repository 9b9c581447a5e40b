// SPDX-License-Identifier: MIT
//
// FileList: the rows of a file list, each with a check mark. The main list `lvw2`, from whose checked rows
// the rename workspace takes its own, is one. It is the model under the control ListViewEditable, and needs
// none to work. Rows and columns count from 1, as on screen.
//
// What always holds:
//  1. The full name of a row is its Path & Text.
//  2. Rows that were added are in the list at once. Views hear of them a little later and many at a time:
//  when
//     the program next waits for events, or by AnnounceRows. While the list is locked, by AnnounceRows alone.
//  3. Once the list is sorted it stays so: rows that are added find their place when they are announced and
//     the list isn't locked. Rows that compare equal keep their order.
#pragma once

#include "fileview/ColHeader.h"
#include "fileview/SortKeys.h"
#include "model/FileRow.h"
#include "platform/FileSystem.h"
#include "platform/TypeText.h"

#include <QAbstractTableModel>
#include <QSet>
#include <QString>

#include <functional>
#include <span>
#include <vector>

namespace fileview {

enum SortOrder { lvwAscending = 0, lvwDescending = 1 };

class FileList final : public QAbstractTableModel
{
    Q_OBJECT

public:
    // Columns of the list as it comes; ColumnHeaders may name others.
    enum Column { Name = 1, Path, Size, Type, Date };

    // The list with its five default columns.
    explicit FileList(QObject* parent = nullptr);

    int Count() const { return static_cast<int>(rows_.size()); }

    // REQUIRES: 1 <= index <= Count().
    const model::FileRow& Item(int index) const { return rows_[static_cast<std::size_t>(index - 1)]; }

    void Clear();

    // Makes room for that many rows, before adding many.
    void Reserve(int count) { rows_.reserve(static_cast<std::size_t>(count)); }

    // Adds one row for the file folder & name, unchecked. `folder` ends with a separator or is empty. A file
    // that isn't there gives a row with an empty type.
    void AddFile(const QString& folder, const QString& name, platform::FileSystem& files);

    // Adds the rows of another list for which `isWanted` says so, as they are there, but unchecked.
    void AddRowsOf(const FileList& other, const std::function<bool(const model::FileRow&)>& isWanted);

    // Takes out all rows for which `isUnwanted` says so, and tells views once.
    void RemoveIf(const std::function<bool(const model::FileRow&)>& isUnwanted);

    // Takes out every row whose full name an earlier row has, to the letter. A list of more than 32,767 rows
    // stays as it is.
    void RemoveDuplicates();

    // The columns on screen. Rows have texts for the first five; further ones are empty.
    const std::vector<ColumnHeader>& ColumnHeaders() const { return columns_; }
    void SetColumnHeaders(std::vector<ColumnHeader> columns);

    // Checks.
    bool Checked(int index) const { return Item(index).checked; }
    void SetChecked(int index, bool checked);
    void SetCheckedAll(bool checked);
    void InvertAllChecks();

    // Checks or unchecks the rows for which `isMeant` says so.
    void SetCheckedIf(const std::function<bool(const model::FileRow&)>& isMeant, bool checked);

    // Number of checked rows.
    int CheckedCount() const;

    // Gives the numbers of the checked rows, ascending, and returns how many they are. If there are none,
    // `Items` stays as it was.
    int GetCheckedItems(std::vector<int>& Items) const;

    // Rows as text. A row or column that isn't there gives an empty text.

    QString Cell(int Row, int Col) const;

    // The row's columns, as many as there are headers. With ShowIndex the row's number comes first.
    QString Row(int Row, const QString& Delimiter, bool ShowIndex) const;

    // Row for each of these rows.
    QString Rows(const QString& RowDelimiter, const QString& ColDelimiter, bool ShowIndex,
                 std::span<const int> Indices) const;

    // The same, with the arguments in another order.
    QString RowsArray(std::span<const int> Indices, const QString& RowDelimiter, const QString& ColDelimiter,
                      bool ShowIndex) const;

    // That column of all rows. With ShowIndex each is the row's number, a tab, and the value.
    QString Col(int Col, const QString& Delimiter, bool ShowIndex) const;

    // The listed columns of each row; 1 and anything below it is the name. With ShowIndex the row's number
    // comes first.
    QString Cols(const QString& RowDelimiter, const QString& ColDelimiter, bool ShowIndex,
                 std::span<const int> Indices) const;

    // Writes a text into a cell; nothing on the disk changes. False if there is no such cell.
    bool SetCell(int row, int col, const QString& text);

    // Sorts by a column, counted from 1, as its data type asks, and stays sorted so. `byMagnitude` tells
    // whether names are ordered by the number at their ends.
    void SortCustom(int column, bool ascending, int dataType, bool byMagnitude = false);

    // Sort column, counted from 0, and direction. While Sorted is set, another column sorts the rows by its
    // texts as they stand, and another direction turns the order round.
    int SortKey() const { return sort_.column - 1; }
    void SetSortKey(int key);
    SortOrder Order() const { return sort_.ascending ? lvwAscending : lvwDescending; }
    void SetSortOrder(SortOrder order);
    bool Sorted() const { return isSorted_; }
    void SetSorted(bool sorted);

    // While it is locked, views see nothing of rows that come in; locks nest.
    void Lock() { ++locks_; }
    void Unlock();

    // Tells views of the rows that were added since the last time.
    void AnnounceRows();

    // Distinct icons of all rows so far; clearing the list leaves them.
    int IconCount() const { return static_cast<int>(iconKeys_.size()); }

    // The view's side.
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

Q_SIGNALS:
    // A person checked or unchecked the row.
    void ItemChecked(int row);

    // SortKey, Order or Sorted have changed.
    void SortChanged();

private:
    QString TextOf(const model::FileRow& row, int column) const;
    void AddRow(model::FileRow row);
    void RememberIcon(const model::FileRow& row);
    void SortNow();
    void SortAnew();
    void Reorder(const std::vector<int>& order);
    void RemoveLast(int count);
    void AnnounceChecks();
    void InsertNewRows();
    void OrderNewRows();

    std::vector<model::FileRow> rows_;
    std::vector<ColumnHeader> columns_;
    QSet<QString> iconKeys_;
    QString lastType_; // of the row before, unless programs have it
    platform::TypeTexts types_;
    SortRequest sort_;
    int announced_ = 0; // rows that views know of
    int locks_ = 0;
    bool isSorted_ = false;
    bool isAnnouncementDue_ = false;
    bool isOrderDue_ = false; // rows came in since the list was sorted
};

} // namespace fileview

// SPDX-License-Identifier: MIT
//
// ColHeader and ColHeaders: the columns of a list, and the one text in which they are stored, the tag text.
// One line a column, its fields found by name in any order and without regard to case:
//
//   |Text=Size|Key=|Width=799.9371|Alignment=0|DataType=1|
//
// Nothing escapes the delimiter, so a value can't hold it. Blanks in a value are kept.
#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace fileview {

enum DataType { ldtString = 0, ldtNumber = 1, ldtDateTime = 2 };

enum ColumnAlignment { lvwColumnLeft = 0, lvwColumnRight = 1, lvwColumnCenter = 2 };

// A column of the list that is on screen. `Tag` carries the data type to the sort.
struct ColumnHeader
{
    QString Key;
    QString Text;
    float Width = 0; // twips
    int Alignment = lvwColumnLeft;
    QString Tag;
};

struct ColHeader
{
    QString Text;
    QString Key;     // may be empty
    float Width = 0; // twips
    int Alignment = lvwColumnLeft;
    int DataType = ldtString;

    // The column as one line, a `Delimiter` before, between and behind the five fields. The width has as many
    // digits as single precision needs.
    QString GetTagText(const QString& Delimiter) const;

    // Reads all five fields. A field that is missing, or not closed by a delimiter, is empty; a number is the
    // longest number at its field's start, 0 if there is none.
    void SetPropsFromTagText(const QString& Text, const QString& Delimiter);
};

// An ordered collection of columns. Indices count from 1. Keys are compared without regard to case; a column
// added without a key is found by its index alone.
class ColHeaders
{
public:
    int Count() const { return static_cast<int>(items_.size()); }

    // Null if there is none.
    const ColHeader* Item(int Index) const;
    const ColHeader* Item(const QString& Key) const;

    bool Exists(const QString& Key) const { return Item(Key) != nullptr; }
    bool Exists(int Index) const { return Item(Index) != nullptr; }

    // False if there is none.
    bool Remove(int Index);
    bool Remove(const QString& Key);

    void Clear()
    {
        items_.clear();
        keys_.clear();
    }

    // Adds a column under a key, or without one; before or after the item of that index if one is given, else
    // at the end. Null if the key is taken or there is no such index, and nothing is added. The item is valid
    // until the next change.
    ColHeader* AddEx(ColHeader Item, const QString& Key = {}, std::optional<int> Before = {},
                     std::optional<int> After = {});
    ColHeader* Add(const QString& Key, const QString& Text, float Width = 0, int Alignment = lvwColumnLeft,
                   int DataType = ldtString, std::optional<int> Before = {}, std::optional<int> After = {});

    // All columns of a list, instead of those that are here.
    void AddFromColumnHeaders(const std::vector<ColumnHeader>& Columns);

    // Gives a list these columns, instead of its own.
    void SetColumnHeaders(std::vector<ColumnHeader>& Columns) const;

    // Each column's line with "|" between its fields; a `Delimiter` before, between and behind the lines.
    // Empty without columns.
    QString GetTagText(const QString& Delimiter) const;

    // Adds a column for each line that isn't empty.
    void CreateItemsFromTagText(const QString& Text, const QString& LineDelimiter,
                                const QString& FieldDelimiter);

    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }

private:
    std::vector<ColHeader> items_;
    std::vector<QString> keys_; // of the collection, beside the items
};

// The five columns of the file list: name, path, size, type, date.
QString DefaultColumnHeadersText();

// The columns that a list with this tag text has.
std::vector<ColumnHeader> ColumnsOf(const QString& columnHeadersText);

} // namespace fileview

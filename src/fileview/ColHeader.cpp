// SPDX-License-Identifier: MIT
#include "fileview/ColHeader.h"

#include "platform/Conversions.h"

#include <QLocale>

#include <algorithm>

namespace fileview {

namespace {

const QString TextField = QStringLiteral("Text=");
const QString KeyField = QStringLiteral("Key=");
const QString WidthField = QStringLiteral("Width=");
const QString AlignmentField = QStringLiteral("Alignment=");
const QString DataTypeField = QStringLiteral("DataType=");

const QString LineEnd = QStringLiteral("\r\n");
const QString FieldEnd = QStringLiteral("|");

QString FieldOf(const QString& line, const QString& delimiter, const QString& field)
{
    const QString start = delimiter + field;
    const qsizetype found = line.indexOf(start, 0, Qt::CaseInsensitive);
    if (found < 0) {
        return {};
    }
    const qsizetype from = found + start.size();
    const qsizetype to = line.indexOf(delimiter, from);
    return to < 0 ? QString() : line.mid(from, to - from);
}

// Small numbers of an enumeration; one beyond a 32-bit integer is 0.
int IntegerOf(const QString& text)
{
    const double number = platform::LeadingNumber(text);
    return number >= -2147483648.0 && number <= 2147483647.0 ? static_cast<int>(number) : 0;
}

QString TagOf(int dataType)
{
    return QString::number(dataType);
}

} // namespace

QString ColHeader::GetTagText(const QString& Delimiter) const
{
    return Delimiter +
           QStringList{TextField + Text, KeyField + Key, WidthField + platform::ShortestSingleText(Width),
                       AlignmentField + QString::number(Alignment), DataTypeField + QString::number(DataType)}
               .join(Delimiter) +
           Delimiter;
}

void ColHeader::SetPropsFromTagText(const QString& line, const QString& Delimiter)
{
    Text = FieldOf(line, Delimiter, TextField);
    Key = FieldOf(line, Delimiter, KeyField);
    Width = static_cast<float>(platform::LeadingNumber(FieldOf(line, Delimiter, WidthField)));
    Alignment = IntegerOf(FieldOf(line, Delimiter, AlignmentField));
    DataType = IntegerOf(FieldOf(line, Delimiter, DataTypeField));
}

const ColHeader* ColHeaders::Item(int Index) const
{
    return Index >= 1 && Index <= Count() ? &items_[static_cast<std::size_t>(Index - 1)] : nullptr;
}

const ColHeader* ColHeaders::Item(const QString& Key) const
{
    const auto found = std::find_if(keys_.begin(), keys_.end(), [&Key](const QString& key) {
        return !key.isEmpty() && key.compare(Key, Qt::CaseInsensitive) == 0;
    });
    return found == keys_.end() ? nullptr : &items_[static_cast<std::size_t>(found - keys_.begin())];
}

bool ColHeaders::Remove(int Index)
{
    if (!Exists(Index)) {
        return false;
    }
    items_.erase(items_.begin() + (Index - 1));
    keys_.erase(keys_.begin() + (Index - 1));
    return true;
}

bool ColHeaders::Remove(const QString& Key)
{
    const ColHeader* const item = Item(Key);
    return item && Remove(static_cast<int>(item - items_.data()) + 1);
}

ColHeader* ColHeaders::AddEx(ColHeader Item, const QString& Key, std::optional<int> Before,
                             std::optional<int> After)
{
    const std::optional<int> beside = Before ? Before : After;
    if (Exists(Key) || (beside && !Exists(*beside))) {
        return nullptr;
    }
    const int at = !beside ? Count() : Before ? *Before - 1 : *After;
    keys_.insert(keys_.begin() + at, Key);
    return &*items_.insert(items_.begin() + at, std::move(Item));
}

ColHeader* ColHeaders::Add(const QString& Key, const QString& Text, float Width, int Alignment, int DataType,
                           std::optional<int> Before, std::optional<int> After)
{
    return AddEx({Text, Key, Width, Alignment, DataType}, Key, Before, After);
}

void ColHeaders::AddFromColumnHeaders(const std::vector<ColumnHeader>& Columns)
{
    Clear();
    for (const ColumnHeader& column : Columns) {
        Add(column.Key, column.Text, column.Width, column.Alignment, IntegerOf(column.Tag));
    }
}

void ColHeaders::SetColumnHeaders(std::vector<ColumnHeader>& Columns) const
{
    Columns.clear();
    for (const ColHeader& item : items_) {
        Columns.push_back({item.Key, item.Text, item.Width, item.Alignment, TagOf(item.DataType)});
    }
}

QString ColHeaders::GetTagText(const QString& Delimiter) const
{
    QString text;
    for (const ColHeader& item : items_) {
        text += Delimiter + item.GetTagText(FieldEnd);
    }
    return text.isEmpty() ? text : text + Delimiter;
}

void ColHeaders::CreateItemsFromTagText(const QString& Text, const QString& LineDelimiter,
                                        const QString& FieldDelimiter)
{
    for (const QString& line : Text.split(LineDelimiter, Qt::SkipEmptyParts)) {
        AddEx({})->SetPropsFromTagText(line, FieldDelimiter);
    }
}

QString DefaultColumnHeadersText()
{
    // The blanks before a heading place its text, and "Level" is a leftover that nothing reads.
    return QStringList{
        QStringLiteral("|Text=              Name|Key=|Width=2100|Alignment=0|DataType=0|Level=0|"),
        QStringLiteral("|Text=                    Path|Key=|Width=2400.063|Alignment=0|DataType=0|Level=0|"),
        QStringLiteral("|Text=Size|Key=|Width=799.9371|Alignment=0|DataType=1|Level=0|"),
        QStringLiteral("|Text=Type|Key=|Width=1000.063|Alignment=0|DataType=0|Level=0|"),
        QStringLiteral("|Text=Created Date|Key=|Width=2100|Alignment=2|DataType=2|Level=0|"),
    }
        .join(LineEnd);
}

std::vector<ColumnHeader> ColumnsOf(const QString& columnHeadersText)
{
    ColHeaders headers;
    headers.CreateItemsFromTagText(columnHeadersText, LineEnd, FieldEnd);
    std::vector<ColumnHeader> columns;
    headers.SetColumnHeaders(columns);
    return columns;
}

} // namespace fileview

// SPDX-License-Identifier: MIT
#include "fileview/ListProperties.h"

namespace fileview {

namespace {

// Visits each stored property by key and member, in the order in which they are read.
template<class Properties, class Visitor>
void ForEachProperty(Properties& of, Visitor&& visit)
{
    visit("Appearance", of.Appearance);
    visit("AllowColumnReorder", of.AllowColumnReorder);
    visit("Arrange", of.Arrange);
    visit("BorderStyle", of.BorderStyle);
    visit("Checkboxes", of.Checkboxes);
    visit("Enabled", of.Enabled);
    visit("FlatScrollBar", of.FlatScrollBar);
    visit("FullRowSelect", of.FullRowSelect);
    visit("GridLines", of.GridLines);
    visit("HideColumnHeaders", of.HideColumnHeaders);
    visit("HideSelection", of.HideSelection);
    visit("HotTracking", of.HotTracking);
    visit("HoverSelection", of.HoverSelection);
    visit("MousePointer", of.MousePointer);
    visit("MultiSelect", of.MultiSelect);
    visit("SortKey", of.SortKey);
    visit("SortOrder", of.SortOrder);
    visit("Sorted", of.Sorted);
    visit("TextBackground", of.TextBackground);
    visit("View", of.View);
    visit("Visible", of.Visible);
    visit("ColumnHeadersText", of.ColumnHeadersText);
    visit("AutoDeselect", of.AutoDeselect);
    visit("FileSpec", of.FileSpec);
    visit("IncludeFolder", of.IncludeFolder);
    visit("Path", of.Path);
    visit("Recursive", of.Recursive);
    visit("SubitemSelect", of.SubitemSelect);
    visit("UpdateFrequency", of.UpdateFrequency);
    visit("HighlightColumn", of.HighlightColumn);
    visit("CurrrentHighlightColumn", of.CurrrentHighlightColumn); // spelt so in what is stored
    visit("SizingType", of.SizingType);
    visit("HighlightColor", of.HighlightColor);
    visit("DefaultColor", of.DefaultColor);
    visit("FlatHeader", of.FlatHeader);
    visit("AutoTooltip", of.AutoTooltip);
    visit("AutoPopupMenu", of.AutoPopupMenu);
    visit("AllowFileDragDrop", of.AllowFileDragDrop);
    visit("AllowItemEdit", of.AllowItemEdit);
    visit("ClearOnDragDrop", of.ClearOnDragDrop);
    visit("ShowFolders", of.ShowFolders);
}

} // namespace

void PropertyBag::WriteProperty(const QString& name, const QVariant& value, const QVariant& defaultValue)
{
    if (value == defaultValue) {
        values_.remove(name);
    } else {
        values_.insert(name, value);
    }
}

ListProperties ListProperties::OfNewList()
{
    ListProperties properties;
    properties.ShowFolders = 0;
    return properties;
}

ListProperties ListProperties::ReadFrom(const PropertyBag& bag)
{
    ListProperties properties;
    ForEachProperty(properties, [&bag]<class Value>(const char* key, Value& value) {
        const QVariant read = bag.ReadProperty(QLatin1String(key), QVariant::fromValue(value));
        Value converted{};
        if (QMetaType::convert(read.metaType(), read.constData(), QMetaType::fromType<Value>(), &converted)) {
            value = converted;
        }
    });
    return properties;
}

void ListProperties::WriteTo(PropertyBag& bag) const
{
    PropertyBag defaults; // by key, to find each one's beside its value
    const ListProperties unset;
    ForEachProperty(unset, [&defaults](const char* key, const auto& value) {
        defaults.WriteProperty(QLatin1String(key), QVariant::fromValue(value), {});
    });
    ForEachProperty(*this, [&](const char* name, const auto& value) {
        const auto key = QLatin1String(name);
        bag.WriteProperty(key, QVariant::fromValue(value), defaults.ReadProperty(key, {}));
    });
}

} // namespace fileview

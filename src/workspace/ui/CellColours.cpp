// SPDX-License-Identifier: MIT
#include "workspace/ui/CellColours.h"

#include "workspace/GridPre.h"

namespace workspace {

std::optional<QColor> CellColour(const QModelIndex& index)
{
    const QVariant colour = index.data(GridPre::ColourRole);
    return colour.isValid() ? std::optional(QColor(colour.toUInt())) : std::nullopt;
}

QColor TextColourOn(const QColor& background)
{
    // The weights of the three colours in how bright a surface looks (ITU-R BT.601).
    const int brightness =
        (299 * background.red() + 587 * background.green() + 114 * background.blue()) / 1000;
    return brightness > 70 ? Qt::black : Qt::white;
}

void ColourDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (const auto colour = CellColour(index)) {
        option->backgroundBrush = *colour;
        option->palette.setColor(QPalette::Text, TextColourOn(*colour));
    }
}

} // namespace workspace

// SPDX-License-Identifier: MIT
#include "workspace/ui/CellColours.h"

#include "workspace/GridPre.h"

#include <QPainter>

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
        option->state &= ~QStyle::State_Selected;
    }
}

void ColourDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    if ((option.state & QStyle::State_Selected) && CellColour(index)) {
        constexpr int width = 2;
        painter->save();
        painter->setPen(QPen(option.palette.highlight(), width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter->drawRect(option.rect.adjusted(width / 2, width / 2, -width / 2, -width / 2));
        painter->restore();
    }
}

} // namespace workspace

// SPDX-License-Identifier: MIT
//
// ColourDelegate: paints the cells of GridPre and RunLog in the colour that the row's state gives them. These
// colours are the same in light and dark, so the text on them is chosen by the colour and not by the palette.
// A coloured cell keeps its colour when it is selected, and gets a frame.
#pragma once

#include <QColor>
#include <QStyledItemDelegate>

#include <optional>

namespace workspace {

// The colour that a cell's model asks for, if any.
std::optional<QColor> CellColour(const QModelIndex& index);

// Black or white, whichever reads better on `background`.
QColor TextColourOn(const QColor& background);

class ColourDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace workspace

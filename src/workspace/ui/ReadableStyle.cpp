// SPDX-License-Identifier: MIT
#include "workspace/ui/ReadableStyle.h"

#include <QStyleOption>

namespace workspace {

void ReadableStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                  const QWidget* widget) const
{
    const bool isBox = element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton;
    if (!isBox || option->palette.color(QPalette::Window).lightness() > 127) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    QStyleOptionButton outlined;
    outlined.QStyleOption::operator=(*option);
    outlined.palette.setColor(QPalette::Window, Qt::lightGray); // the outline is darker than this
    QProxyStyle::drawPrimitive(element, &outlined, painter, widget);
}

} // namespace workspace

// SPDX-License-Identifier: MIT
#include "workspace/ui/ReadableStyle.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QStyleOption>

namespace workspace {
namespace {

// The option with a palette whose outlines can be seen. Outlines are darker than the window's colour.
template<class Option>
Option Outlined(const Option& option)
{
    Option outlined(option);
    if (option.palette.color(QPalette::Window).lightness() <= 127) {
        outlined.palette.setColor(QPalette::Window, Qt::lightGray);
    }
    return outlined;
}

} // namespace

void ReadableStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                  const QWidget* widget) const
{
    if (element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton) {
        QStyleOptionButton button;
        button.QStyleOption::operator=(*option);
        const QStyleOptionButton outlined = Outlined(button);
        QProxyStyle::drawPrimitive(element, &outlined, painter, widget);
    } else if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
               frame && (element == PE_FrameLineEdit || element == PE_PanelLineEdit)) {
        const QStyleOptionFrame outlined = Outlined(*frame);
        QProxyStyle::drawPrimitive(element, &outlined, painter, widget);
    } else {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void ReadableStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const
{
    if (const auto* bar = qstyleoption_cast<const QStyleOptionProgressBar*>(option);
        bar && element == CE_ProgressBarGroove) {
        const QStyleOptionProgressBar outlined = Outlined(*bar);
        QProxyStyle::drawControl(element, &outlined, painter, widget);
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_ShapedFrame && (option->state & State_HasFocus) &&
        qobject_cast<const QAbstractItemView*>(widget)) {
        painter->setPen(option->palette.color(QPalette::Highlight));
        painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    }
}

void ReadableStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                       QPainter* painter, const QWidget* widget) const
{
    if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        combo && control == CC_ComboBox) {
        const QStyleOptionComboBox outlined = Outlined(*combo);
        QProxyStyle::drawComplexControl(control, &outlined, painter, widget);
    } else {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

} // namespace workspace

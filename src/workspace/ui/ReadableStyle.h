// SPDX-License-Identifier: MIT
//
// ReadableStyle: a style like its base, with two differences. Boxes, buttons and bars keep a visible outline
// on dark backgrounds; the base derives that outline by darkening the background, which leaves an empty box
// on black without any edge. And a list or table that has the keyboard's focus shows it by its frame. The
// application sets it once, before its first window.
#pragma once

#include <QProxyStyle>

namespace workspace {

class ReadableStyle final : public QProxyStyle
{
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
};

} // namespace workspace

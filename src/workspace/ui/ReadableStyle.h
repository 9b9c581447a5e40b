// SPDX-License-Identifier: MIT
//
// ReadableStyle: a style like its base, in which check boxes and option buttons keep a visible outline on
// dark backgrounds. The base derives that outline by darkening the background, which leaves an empty box on
// black without any edge. The application sets it once, before its first window.
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
};

} // namespace workspace

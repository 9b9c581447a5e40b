// SPDX-License-Identifier: MIT
//
// Resize: scales the controls of a window in proportion when the window is resized. Controls are the widgets
// in the window and in its plain frames and group boxes, as long as no layout places them; the insides of a
// control are its own business.
//
// Ratios are whole percents and positions are rounded towards zero, always from where a control stood in the
// design, so that nothing drifts however often the window is resized.
#pragma once

#include <QPointer>
#include <QRect>
#include <QSize>

#include <vector>

class QWidget;

namespace windowing {

class Resize
{
public:
    // For one window, which outlives it.
    explicit Resize(QWidget& window) : window_(window) {}

    // To be called at every resize of the window. The first call takes sizes and places as the design; every
    // other one scales the controls that were there then. A window that is parked far below all screens,
    // 2,000 pixels down or more, isn't scaled.
    void FormResize();

private:
    struct Control
    {
        QPointer<QWidget> widget;
        QRect design; // with what a tab container took off the left edge added
        bool isParked = false;
    };

    void Register();
    void RegisterIn(const QWidget& container);

    QWidget& window_;
    QSize design_;
    std::vector<Control> controls_;
    bool isRegistered_ = false;
};

} // namespace windowing

// SPDX-License-Identifier: MIT
#include "windowing/SetTopMost.h"

#include <QWidget>
#include <QWindow>

namespace windowing {

void SetTopMost(QWidget& window, bool onTop)
{
    // QWidget::setWindowFlag would make the window anew, hidden and at a place of the window system's choice.
    Qt::WindowFlags flags = window.windowFlags();
    flags.setFlag(Qt::WindowStaysOnTopHint, onTop);
    window.overrideWindowFlags(flags);
    if (QWindow* const handle = window.windowHandle()) {
        handle->setFlag(Qt::WindowStaysOnTopHint, onTop);
    }
}

} // namespace windowing

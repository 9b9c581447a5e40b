// SPDX-License-Identifier: MIT
//
// What the "On Top" boxes of the windows do.
#pragma once

#include <QWidget>

namespace workspace {

// Keeps a window above all others, or no longer. It stays on show or hidden as it was.
inline void KeepOnTop(QWidget& window, bool onTop)
{
    const bool wasVisible = window.isVisible();
    window.setWindowFlag(Qt::WindowStaysOnTopHint, onTop); // which hides the window
    window.setVisible(wasVisible);
}

} // namespace workspace

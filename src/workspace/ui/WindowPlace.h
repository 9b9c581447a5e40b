// SPDX-License-Identifier: MIT
//
// Where windows stand: in front, above all others, in the middle of the window that they belong to.
#pragma once

#include <QWidget>

namespace workspace {

// Puts a window on show in front of the others, with the focus. The first time it comes up in the middle of
// its owner; afterwards it stays where a person has put it.
inline void BringUp(QWidget& window)
{
    if (!window.testAttribute(Qt::WA_Moved) && window.parentWidget()) {
        window.move(window.parentWidget()->window()->geometry().center() - window.rect().center());
    }
    window.show();
    window.raise();
    window.activateWindow();
}

// Keeps a window above all others, or no longer. It stays on show or hidden as it was.
inline void KeepOnTop(QWidget& window, bool onTop)
{
    const bool wasVisible = window.isVisible();
    window.setWindowFlag(Qt::WindowStaysOnTopHint, onTop); // which hides the window
    window.setVisible(wasVisible);
}

} // namespace workspace

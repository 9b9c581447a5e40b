// SPDX-License-Identifier: MIT
//
// Where windows come up: in front, in the middle of the window that they belong to or of the screen.
#pragma once

#include <QScreen>
#include <QWidget>

namespace workspace {

// Puts a window on show in front of the others, with the focus. The first time it comes up in the middle of
// its owner; afterwards it stays where a person has put it. A minimised one gets its size back.
inline void BringUp(QWidget& window)
{
    if (!window.testAttribute(Qt::WA_Moved) && window.parentWidget()) {
        window.move(window.parentWidget()->window()->geometry().center() - window.rect().center());
    }
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

// Moves a window to the middle of its screen; one that is larger begins at the screen's upper left corner.
inline void CentreOnScreen(QWidget& window)
{
    const QRect screen = window.screen()->availableGeometry();
    const QPoint centred = screen.center() - window.rect().center();
    window.move(qMax(screen.left(), centred.x()), qMax(screen.top(), centred.y()));
}

} // namespace workspace

// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace windowing {

// Keeps a window above all others, or no longer. Its place and size stay, and whether it is on show, has the
// focus, or is maximised. Where the window system doesn't let programs do that, nothing happens.
void SetTopMost(QWidget& window, bool onTop);

} // namespace windowing

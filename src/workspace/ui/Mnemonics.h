// SPDX-License-Identifier: MIT
//
// Gives every caption of a window a letter to be reached by. Captions that bring a letter of their own
// ("&Preview") keep it; the others get the first letter that is still free, as long as there is one. Parts
// that stand in for each other, such as the panels of the actions, are never on show together and share their
// letters; they are marked by MarkAsAlternative.
#pragma once

class QWidget;

namespace workspace {

void MarkAsAlternative(QWidget& part);

// To be called once, when the window is complete.
void AssignMnemonics(QWidget& window);

} // namespace workspace

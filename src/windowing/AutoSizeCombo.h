// SPDX-License-Identifier: MIT
#pragma once

class QComboBox;

namespace windowing {

// Makes the drop-down list of a combo as wide as its longest entry and 30 pixels, however narrow the combo
// is, but never wider than the screen. A combo without entries gets 30. To be called when its entries have
// changed.
void AutoSizeCombo(QComboBox& combo);

} // namespace windowing

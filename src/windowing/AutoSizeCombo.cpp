// SPDX-License-Identifier: MIT
#include "windowing/AutoSizeCombo.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QScreen>

namespace windowing {

void AutoSizeCombo(QComboBox& combo)
{
    constexpr int room = 30; // for frame and scroll bar
    int widest = 0;
    for (int index = 0; index < combo.count(); ++index) {
        widest = qMax(widest, combo.view()->fontMetrics().horizontalAdvance(combo.itemText(index)));
    }
    combo.view()->setMinimumWidth(qMin(widest + room, combo.screen()->availableSize().width()));
}

} // namespace windowing

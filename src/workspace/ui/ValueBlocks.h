// SPDX-License-Identifier: MIT
//
// ValueBlocks: the value of an action on screen: the combo into which a text or a token goes, and the three
// blocks that feed its tokens, of which those are on show that the last pick asked for. A panel places the
// combo where its wording needs it and the blocks below.
#pragma once

#include "workspace/ui/CounterBlocks.h"

#include <QStringList>

class QComboBox;

namespace workspace {

// Makes `combo` a box for free text with `entries` as its list, which says textActivated for a pick from the
// list and for an entry typed and confirmed by Enter, but not for one that was typed or loaded and then left.
void SetUpValueCombo(QComboBox& combo, const QStringList& entries);

struct ValueParts
{
    QComboBox* combo;
    QWidget* blocks;
};

// Both parts without a parent yet. `entries` is the combo's list.
ValueParts NewValue(const ActionControls& names, actions::ValueControls& value, const QStringList& entries,
                    MaskBlockWidget::Help help, const PanelTools& tools);

} // namespace workspace

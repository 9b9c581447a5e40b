// SPDX-License-Identifier: MIT
//
// The three blocks that feed the tokens of a value: running numbers, running letters and random strings. One
// of each stands in the panel of every action that counts.
#pragma once

#include "actions/RenameOptions.h"
#include "model/Ports.h"
#include "workspace/ui/ActionControls.h"
#include "workspace/ui/Binding.h"

#include <QWidget>

namespace workspace {

// What the parts of a window share while they are built and used.
struct PanelTools
{
    Binder& binder;
    model::RandomSource& random; // for the samples of a mask
};

class CounterBlockWidget final : public QWidget
{
    Q_OBJECT

public:
    CounterBlockWidget(const ActionControls& names, actions::CounterBlock& block, const PanelTools& tools);
};

class AlphaCounterBlockWidget final : public QWidget
{
    Q_OBJECT

public:
    AlphaCounterBlockWidget(const ActionControls& names, actions::AlphaCounterBlock& block,
                            const PanelTools& tools);
};

// While its "Test" button is held down, the mask box shows a sample. The mask itself never changes by that.
class MaskBlockWidget final : public QWidget
{
    Q_OBJECT

public:
    enum class Help { Long, Short };

    MaskBlockWidget(const ActionControls& names, QString& mask, Help help, const PanelTools& tools);
};

} // namespace workspace

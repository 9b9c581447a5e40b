// SPDX-License-Identifier: MIT
//
// The three blocks that feed the tokens of a value: running numbers, running letters and random strings. One
// of each stands in the panel of every action that counts.
#pragma once

#include "actions/RenameOptions.h"
#include "model/Ports.h"
#include "workspace/ui/ActionControls.h"
#include "workspace/ui/Binding.h"
#include "workspace/ui/Pickers.h"

#include <QWidget>

#include <functional>

namespace workspace {

// What the parts of a window share while they are built and used.
struct PanelTools
{
    Binder& binder;
    model::RandomSource& random; // for the samples of a mask
    Pickers& pickers;
    std::function<void()> editReplaceList;   // opens the list of the action Replace
    std::function<void()> editExtensionList; // opens the list of the action Extension
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

    // The names are those of the box and the button. The references outlive the widget.
    MaskBlockWidget(QLatin1String boxName, QLatin1String testName, QString& mask, Help help, Binder& binder,
                    model::RandomSource& random);
};

} // namespace workspace

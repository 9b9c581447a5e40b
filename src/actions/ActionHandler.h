// SPDX-License-Identifier: MIT
//
// ActionHandler: one rename action, compiled from its options for one run. It is a function from a row's data
// to the row's new name. All options are converted when it is made, so that a row costs no parsing; what
// can't be converted still fails at each row, at the point where it is due.
#pragma once

#include "actions/CounterStates.h"
#include "actions/RenameOptions.h"
#include "model/ActionKind.h"
#include "model/NameContext.h"
#include "model/Ports.h"

#include <QString>

#include <memory>

namespace actions {

// What the handlers of a run share. All of it outlives them.
struct RunState
{
    CounterStates& counters;
    const model::Clock& clock;
    model::RandomSource& random;
};

class ActionHandler
{
public:
    virtual ~ActionHandler() = default;

    // The new name with its extension. Never fails outward: where a text or number function fails, or the
    // result is empty, it is the name as it came in, and no message appears.
    QString NewName(const model::NameContext& row);

private:
    // The handler's own work; throws ActionError where it fails.
    virtual QString Work(const model::NameContext& row) = 0;
};

// Makes the handler of a kind; empty for a kind that has none, which a run passes over.
std::unique_ptr<ActionHandler> CompileAction(model::ActionKind kind, const RenameOptions& options,
                                             const RunState& run);

} // namespace actions

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
#include "model/RunHost.h"

#include <QString>

#include <memory>

namespace actions {

// The longest and shortest base names of a grid's rows, in characters. "Modified" ones are those of the
// preview before this one; a row without one counts as 0.
struct LengthMeasures
{
    int longestOriginal = 0;
    int shortestOriginal = 0;
    int longestModified = 0;
    int shortestModified = 0;
};

// What the handlers of a run share. All of it outlives them.
struct RunState
{
    CounterStates& counters;
    const model::Clock& clock;
    model::RandomSource& random;
    model::RunHost& host;
    const LengthMeasures& lengths;
};

class ActionHandler
{
public:
    virtual ~ActionHandler() = default;

    // The new name with its extension. Never fails outward: where a text or number function fails, or the
    // result is empty or longer than model::LongestText, it is the name as it came in.
    QString NewName(const model::NameContext& row);

private:
    // The handler's own work; throws ActionError where it fails.
    virtual QString Work(const model::NameContext& row) = 0;

    // The work failed, or its result was empty and so is the description. Most actions say nothing.
    virtual void Failed(const QString& /*description*/) {}
};

// Makes the handler of a kind.
std::unique_ptr<ActionHandler> CompileAction(model::ActionKind kind, const RenameOptions& options,
                                             const RunState& run);

} // namespace actions

// SPDX-License-Identifier: MIT
//
// ActionControls: the names of the controls that feed the value of an action: the value combo, the three
// blocks for running numbers, running letters and random strings, and the frames around them. The names
// differ from action to action and are part of the program's documents, so they stand in one table.
#pragma once

#include "model/ActionKind.h"

#include <QLatin1String>

namespace workspace {

struct ActionControls
{
    QLatin1String counterBoxes; // control array of six
    QLatin1String letterBoxes;  // control array of six
    QLatin1String letterCase;   // control array of two: upper and lower case

    // Empty for the two actions whose values stand in a list of their own.
    QLatin1String combo;
    QLatin1String counterFrame;
    QLatin1String letterFrame;
    QLatin1String maskFrame;
    QLatin1String mask;
    QLatin1String test;
};

// REQUIRES: `kind` is one of the ten actions that count: none of Length, Change Case and Clean.
const ActionControls& ControlsOf(model::ActionKind kind);

} // namespace workspace

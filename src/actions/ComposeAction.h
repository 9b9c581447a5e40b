// SPDX-License-Identifier: MIT
//
// The action Compose: builds a new base name from a list of elements, each a literal or a token, and drops
// the old one. The extension stays.
#pragma once

#include "actions/ActionHandler.h"
#include "actions/TokenExpander.h"

#include <vector>

namespace actions {

// All elements share one counter of each kind, which steps at each use. An element that fails ends the
// action; the counters of the elements before it have stepped by then.
class Compose final : public ActionHandler
{
public:
    Compose(const ComposeOptions& options, const RunState& run);

private:
    QString Work(const model::NameContext& row) override;

    std::vector<TokenExpander> elements_;
};

} // namespace actions

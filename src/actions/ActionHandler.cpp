// SPDX-License-Identifier: MIT
#include "actions/ActionHandler.h"

#include "actions/OverwriteActions.h"
#include "model/ActionError.h"

namespace actions {

QString ActionHandler::NewName(const model::NameContext& row)
{
    try {
        const QString result = Work(row);
        return result.isEmpty() ? row.name : result;
    } catch (const model::ActionError&) {
        return row.name;
    }
}

std::unique_ptr<ActionHandler> CompileAction(model::ActionKind kind, const RenameOptions& options,
                                             const RunState& run)
{
    using model::ActionKind;
    switch (kind) {
    case ActionKind::ReplaceFirst:
        return std::make_unique<ReplaceFirst>(options.replaceFirst, run);
    case ActionKind::ReplaceMid:
        return std::make_unique<ReplaceMid>(options.replaceMid, run);
    case ActionKind::ReplaceLast:
        return std::make_unique<ReplaceLast>(options.replaceLast, run);
    case ActionKind::ReplaceAll:
        return std::make_unique<ReplaceAll>(options.replaceAll, run);
    default:
        return nullptr;
    }
}

} // namespace actions

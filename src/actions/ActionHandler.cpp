// SPDX-License-Identifier: MIT
#include "actions/ActionHandler.h"

#include "actions/AdditionActions.h"
#include "actions/CaseAction.h"
#include "actions/CleanAction.h"
#include "actions/ComposeAction.h"
#include "actions/LengthAction.h"
#include "actions/ListActions.h"
#include "actions/OverwriteActions.h"
#include "model/ActionError.h"
#include "model/Text.h"

namespace actions {

QString ActionHandler::NewName(const model::NameContext& row)
{
    QString description;
    try {
        const QString result = Work(row);
        model::CheckLength(result.size());
        if (!result.isEmpty()) {
            return result;
        }
    } catch (const model::ActionError& error) {
        description = error.Description();
    }
    Failed(description);
    return row.name;
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
    case ActionKind::Insert:
        return std::make_unique<Insert>(options.insert, run);
    case ActionKind::Suffix:
        return std::make_unique<Suffix>(options.suffix, run);
    case ActionKind::Prefix:
        return std::make_unique<Prefix>(options.prefix, run);
    case ActionKind::ChangeCase:
        return std::make_unique<ChangeCase>(options.changeCase);
    case ActionKind::Clean:
        return std::make_unique<Clean>(options.clean);
    case ActionKind::Length:
        return std::make_unique<Length>(options.length, run.lengths);
    case ActionKind::Replace:
        return std::make_unique<Replace>(options.replace, run);
    case ActionKind::Extension:
        return std::make_unique<Extension>(options.extension, run);
    case ActionKind::Compose:
        return std::make_unique<Compose>(options.compose, run);
    }
    return nullptr;
}

} // namespace actions

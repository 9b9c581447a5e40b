// SPDX-License-Identifier: MIT
//
// The two actions that run a list of from-to pairs over a part of the name: Replace over the base, Extension
// over the extension. Rows run in sequence on the running text, so a later row sees what earlier ones wrote.
// A row's value is expanded once a file, and only where the row hits; its counter so counts hits. What fails
// is told in a message box, once for each file.
#pragma once

#include "actions/ActionHandler.h"
#include "actions/CaseAction.h"
#include "actions/TokenExpander.h"

#include <optional>
#include <vector>

namespace actions {

// A row of a list, made ready for a run.
struct CompiledRow
{
    QString from;
    Qt::CaseSensitivity comparison;
    TokenExpander to;
};

class Replace final : public ActionHandler
{
public:
    Replace(const ReplaceOptions& options, const RunState& run);

private:
    QString Work(const model::NameContext& row) override;
    void Failed(const QString& description) override;

    model::RunHost& host_;
    std::vector<CompiledRow> rows_; // without those whose from is empty: they never hit
};

// The only action that touches the extension. A file without one stays as it is, and no counter steps.
class Extension final : public ActionHandler
{
public:
    Extension(const ExtensionOptions& options, const RunState& run);

private:
    QString Work(const model::NameContext& row) override;
    void Failed(const QString& description) override;

    // The new extension, without its dot; nothing leaves the name.
    std::optional<QString> Changed(const QString& extension, const model::NameContext& row);

    model::RunHost& host_;
    std::optional<CaseChange> caseChange_; // Option42, Option41, Option40
    bool replaces_;                        // Option43
    std::optional<TokenExpander> all_;     // the one value for all, if that is chosen
    std::vector<CompiledRow>
        rows_; // an empty from hits every file: its value is expanded and nothing changes
};

} // namespace actions

// SPDX-License-Identifier: MIT
//
// Upper, lower and inverted case: of a base name by the action Change Case, of an extension by the action
// Extension.
#pragma once

#include "actions/ActionHandler.h"

#include <optional>

namespace actions {

enum class CaseChange { Upper, Lower, Invert };

// Upper and lower case by the rules of Unicode; inverting swaps ASCII letters only.
QString WithCase(const QString& text, CaseChange change);

// Changes the base name and leaves the extension. With no button on it leaves the name.
class ChangeCase final : public ActionHandler
{
public:
    explicit ChangeCase(const ChangeCaseOptions& options);

private:
    QString Work(const model::NameContext& row) override;

    std::optional<CaseChange> change_;
};

} // namespace actions

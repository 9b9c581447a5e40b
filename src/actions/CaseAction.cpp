// SPDX-License-Identifier: MIT
#include "actions/CaseAction.h"

#include "model/GetFName.h"
#include "model/Text.h"

namespace actions {

QString WithCase(const QString& text, CaseChange change)
{
    switch (change) {
    case CaseChange::Upper:
        return model::UpperCase(text);
    case CaseChange::Lower:
        return model::LowerCase(text);
    case CaseChange::Invert:
        return model::InvertCase(text);
    }
    return text;
}

ChangeCase::ChangeCase(const ChangeCaseOptions& options)
{
    switch (options.change.Chosen()) {
    case ChangeCaseOptions::Option37:
        change_ = CaseChange::Upper;
        break;
    case ChangeCaseOptions::Option38:
        change_ = CaseChange::Lower;
        break;
    case ChangeCaseOptions::Option39:
        change_ = CaseChange::Invert;
        break;
    default:
        break;
    }
}

QString ChangeCase::Work(const model::NameContext& row)
{
    if (!change_) {
        return row.name;
    }
    return WithCase(model::GetFName(row.name, row.type, false), *change_) +
           model::GetFName(row.name, row.type, true);
}

} // namespace actions

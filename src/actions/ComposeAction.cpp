// SPDX-License-Identifier: MIT
#include "actions/ComposeAction.h"

#include "model/GetFName.h"
#include "model/Text.h"

namespace actions {

Compose::Compose(const ComposeOptions& options, const RunState& run)
{
    const ValueControls& value = options.cmbCompose;
    elements_.reserve(static_cast<std::size_t>(options.lstCompose.size()));
    for (const QString& element : options.lstCompose) {
        elements_.emplace_back(element, model::ActionKind::Compose,
                               TokenBlocks{value.counter, value.letters, QString()}, run);
    }
}

QString Compose::Work(const model::NameContext& row)
{
    QString base;
    QString value;
    for (TokenExpander& element : elements_) {
        const auto expanded = element.Expand(row, QString(), value);
        if (!expanded) {
            return row.name;
        }
        value = *expanded;
        base += value;
        model::CheckLength(base.size());
    }
    return base + model::GetFName(row.name, row.type, true);
}

} // namespace actions

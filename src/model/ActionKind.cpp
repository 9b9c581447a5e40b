// SPDX-License-Identifier: MIT
#include "model/ActionKind.h"

#include <algorithm>

namespace model {

namespace {

const std::array<QString, ActionKindCount>& Names()
{
    static const std::array<QString, ActionKindCount> names{
        QStringLiteral("Replace"),      QStringLiteral("Replace First"), QStringLiteral("Replace Mid"),
        QStringLiteral("Replace Last"), QStringLiteral("Replace All"),   QStringLiteral("Insert"),
        QStringLiteral("Suffix"),       QStringLiteral("Prefix"),        QStringLiteral("Length"),
        QStringLiteral("Change Case"),  QStringLiteral("Extension"),     QStringLiteral("Clean"),
        QStringLiteral("Compose")};
    return names;
}

} // namespace

const QString& NameOf(ActionKind kind)
{
    return Names()[static_cast<std::size_t>(kind)];
}

std::optional<ActionKind> ActionKindOf(const QString& name)
{
    const auto& names = Names();
    const auto found = std::find(names.begin(), names.end(), name);
    if (found == names.end()) {
        return std::nullopt;
    }
    return AllActionKinds[static_cast<std::size_t>(found - names.begin())];
}

} // namespace model

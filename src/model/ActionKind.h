// SPDX-License-Identifier: MIT
//
// The thirteen rename actions and their names. The names are what the action list shows, what recipes store
// and what the dispatch compares, letter by letter.
#pragma once

#include <QString>

#include <array>
#include <optional>

namespace model {

enum class ActionKind {
    Replace,
    ReplaceFirst,
    ReplaceMid,
    ReplaceLast,
    ReplaceAll,
    Insert,
    Suffix,
    Prefix,
    Length,
    ChangeCase,
    Extension,
    Clean,
    Compose,
};

inline constexpr int ActionKindCount = 13;

// All kinds in the first order of the action list.
inline constexpr std::array<ActionKind, ActionKindCount> AllActionKinds{
    ActionKind::Replace,    ActionKind::ReplaceFirst, ActionKind::ReplaceMid, ActionKind::ReplaceLast,
    ActionKind::ReplaceAll, ActionKind::Insert,       ActionKind::Suffix,     ActionKind::Prefix,
    ActionKind::Length,     ActionKind::ChangeCase,   ActionKind::Extension,  ActionKind::Clean,
    ActionKind::Compose};

// "Replace First" for ActionKind::ReplaceFirst.
const QString& NameOf(ActionKind kind);

// The kind of exactly this name, if any.
std::optional<ActionKind> ActionKindOf(const QString& name);

} // namespace model

// SPDX-License-Identifier: MIT
//
// The four actions that lay a value over a stretch of the base name: its first characters, characters at a
// position, its last characters, all of it. The extension stays. Counts and positions are in characters,
// 1-based, and regard the base as the action before left it.
#pragma once

#include "actions/ActionHandler.h"
#include "actions/TokenExpander.h"

namespace actions {

// What the four have in common: the base is cut into head, stretch and tail, and the value takes the
// stretch's place. An empty stretch receives nothing, so the value vanishes; the token is expanded all the
// same, so a counter steps.
class OverwriteAction : public ActionHandler
{
protected:
    OverwriteAction(const ValueControls& value, model::ActionKind kind, const RunState& run);

    // A stretch of `length` characters from `start` on, `tail` characters behind it. Values out of range make
    // the text functions fail, after the token was expanded.
    struct Stretch
    {
        int start;  // 1-based
        int length; // characters
        int tail;   // characters
    };

private:
    // The stretch in a base of `baseLength` characters. Throws ActionError if a box doesn't convert.
    virtual Stretch StretchIn(int baseLength) const = 0;

    QString Work(const model::NameContext& row) final;

    TokenExpander value_;
};

class ReplaceFirst final : public OverwriteAction
{
public:
    ReplaceFirst(const ReplaceFirstOptions& options, const RunState& run);

private:
    Stretch StretchIn(int baseLength) const override;

    NumberBox count_;
};

class ReplaceMid final : public OverwriteAction
{
public:
    ReplaceMid(const ReplaceMidOptions& options, const RunState& run);

private:
    Stretch StretchIn(int baseLength) const override;

    NumberBox count_;
    NumberBox position_;
};

class ReplaceLast final : public OverwriteAction
{
public:
    ReplaceLast(const ReplaceLastOptions& options, const RunState& run);

private:
    Stretch StretchIn(int baseLength) const override;

    NumberBox count_;
};

class ReplaceAll final : public OverwriteAction
{
public:
    ReplaceAll(const ReplaceAllOptions& options, const RunState& run);

private:
    Stretch StretchIn(int baseLength) const override;
};

} // namespace actions

// SPDX-License-Identifier: MIT
//
// The three actions that add a value to the base name and overwrite nothing: in front of it, behind it, or at
// a place that is found by position or by a text that stands there. The extension stays. Positions are in
// characters, 1-based.
#pragma once

#include "actions/ActionHandler.h"
#include "actions/TokenExpander.h"

#include <optional>

namespace actions {

// What the three have in common. The token is expanded for every file, also for one in which no place is
// found, so a counter steps.
class AdditionAction : public ActionHandler
{
protected:
    AdditionAction(const ValueControls& value, model::ActionKind kind, const RunState& run);

private:
    // The base with the value in it; empty leaves the name. Throws ActionError where a text function fails.
    virtual QString WithValue(const QString& base, const QString& value) const = 0;

    // Called before the token is expanded. Throws ActionError if a box doesn't convert.
    virtual void CheckBoxes() const {}

    QString Work(const model::NameContext& row) final;

    TokenExpander value_;
};

class Prefix final : public AdditionAction
{
public:
    Prefix(const PrefixOptions& options, const RunState& run);

private:
    QString WithValue(const QString& base, const QString& value) const override;
};

class Suffix final : public AdditionAction
{
public:
    Suffix(const SuffixOptions& options, const RunState& run);

private:
    QString WithValue(const QString& base, const QString& value) const override;
};

// The position box must convert in every mode, also where it isn't on show.
class Insert final : public AdditionAction
{
public:
    Insert(const InsertOptions& options, const RunState& run);

private:
    // Where the value goes: behind the first `head` characters and in front of the last `tail` ones. The two
    // need not add up to the length of the base.
    struct Place
    {
        int head;
        int tail;
    };

    void CheckBoxes() const override { static_cast<void>(position_.Value()); }
    QString WithValue(const QString& base, const QString& value) const override;
    std::optional<Place> PlaceIn(const QString& base) const;

    int mode_;
    NumberBox position_;
    QString sought_; // modes 2 and 3
    QString first_;  // mode 4
    QString second_; // mode 4
    Qt::CaseSensitivity comparison_;
};

} // namespace actions

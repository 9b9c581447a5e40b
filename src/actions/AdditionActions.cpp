// SPDX-License-Identifier: MIT
#include "actions/AdditionActions.h"

#include "model/GetFName.h"
#include "model/Text.h"

#include <algorithm>

namespace actions {

AdditionAction::AdditionAction(const ValueControls& value, model::ActionKind kind, const RunState& run)
    : value_(value.combo, kind, {value.counter, value.letters, value.mask}, run)
{}

QString AdditionAction::Work(const model::NameContext& row)
{
    CheckBoxes();
    const auto value = value_.Expand(row, QString());
    if (!value) {
        return row.name;
    }
    const QString base = WithValue(model::GetFName(row.name, row.type, false), *value);
    return base.isNull() ? row.name : base + model::GetFName(row.name, row.type, true);
}

Prefix::Prefix(const PrefixOptions& options, const RunState& run)
    : AdditionAction(options.cmbPrefix, model::ActionKind::Prefix, run)
{}

QString Prefix::WithValue(const QString& base, const QString& value) const
{
    return value + base;
}

Suffix::Suffix(const SuffixOptions& options, const RunState& run)
    : AdditionAction(options.cmbSuffix, model::ActionKind::Suffix, run)
{}

QString Suffix::WithValue(const QString& base, const QString& value) const
{
    return base + value;
}

Insert::Insert(const InsertOptions& options, const RunState& run)
    : AdditionAction(options.cmbInsertS, model::ActionKind::Insert, run),
      mode_(options.Mode()),
      position_(options.Text38),
      sought_(options.Text43),
      first_(options.Text44),
      second_(options.Text45),
      comparison_((mode_ == 4 ? options.Check1 : options.Check2) ? Qt::CaseSensitive : Qt::CaseInsensitive)
{}

std::optional<Insert::Place> Insert::PlaceIn(const QString& base) const
{
    const int length = model::Length(base);
    const int position = std::min(position_.Value(), length + 1);
    const auto behind = [length](int characters) {
        return Place{characters, length - characters};
    };
    switch (mode_) {
    case 0:
        return Place{position - 1, length - position + 1};
    case 1:
        return Place{length - position + 1, position - 1};
    case 2: {
        // A text that opens the name has no place in front of it: the name stays.
        const int before = model::Find(base, sought_, comparison_) - 1;
        return before > 0 ? std::optional(behind(before)) : std::nullopt;
    }
    case 3: {
        const int found = model::Find(base, sought_, comparison_);
        const int upTo = found > 0 ? found + model::Length(sought_) - 1 : 0;
        return upTo > 0 ? std::optional(behind(upTo)) : std::nullopt;
    }
    case 4: {
        // The two texts must stand side by side. The tail takes one character back of the second one however
        // long that is: a longer one loses its beginning, an empty one repeats the first text's end.
        const int found = model::Find(base, first_ + second_, comparison_);
        const int before = found + model::Length(first_) - 1;
        return found > 0 ? std::optional(Place{before, length - before - model::Length(second_) + 1})
                         : std::nullopt;
    }
    default:
        return std::nullopt;
    }
}

QString Insert::WithValue(const QString& base, const QString& value) const
{
    const auto place = PlaceIn(base);
    return place ? model::Left(base, place->head) + value + model::Right(base, place->tail) : QString();
}

} // namespace actions

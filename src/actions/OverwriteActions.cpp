// SPDX-License-Identifier: MIT
#include "actions/OverwriteActions.h"

#include "model/GetFName.h"
#include "model/Text.h"

#include <algorithm>

namespace actions {

OverwriteAction::OverwriteAction(const ValueControls& value, model::ActionKind kind, const RunState& run)
    : value_(value.combo, kind, {value.counter, value.letters, value.mask}, run)
{}

QString OverwriteAction::Work(const model::NameContext& row)
{
    const QString base = model::GetFName(row.name, row.type, false);
    const Stretch stretch = StretchIn(model::Length(base));
    // The token is expanded before a stretch out of range fails, so that a counter steps for every file.
    const bool isInRange = stretch.start >= 1 && stretch.length >= 0;
    const QString piece = isInRange ? model::Mid(base, stretch.start, stretch.length) : QString();
    const auto value = value_.Expand(row, piece);
    if (!value) {
        return row.name;
    }
    const QString head = model::Left(base, stretch.start - 1);
    const QString tail = model::Right(base, stretch.tail);
    static_cast<void>(model::Mid(base, stretch.start, stretch.length)); // fails out of range
    return head + (piece.isEmpty() ? QString() : *value) + tail + model::GetFName(row.name, row.type, true);
}

ReplaceFirst::ReplaceFirst(const ReplaceFirstOptions& options, const RunState& run)
    : OverwriteAction(options.cmbFirst, model::ActionKind::ReplaceFirst, run), count_(options.Text1)
{}

OverwriteAction::Stretch ReplaceFirst::StretchIn(int baseLength) const
{
    const int count = std::min(count_.Value(), baseLength);
    return {1, count, baseLength - count};
}

ReplaceMid::ReplaceMid(const ReplaceMidOptions& options, const RunState& run)
    : OverwriteAction(options.cmbMid, model::ActionKind::ReplaceMid, run),
      count_(options.Text12),
      position_(options.Text13)
{}

OverwriteAction::Stretch ReplaceMid::StretchIn(int baseLength) const
{
    const int position = position_.Value();
    const int count = count_.Value();
    const auto stretch = [baseLength](int start, int length) {
        return Stretch{start, length, baseLength - start - length + 1};
    };
    if (position + count - 1 <= baseLength) {
        return stretch(position, count);
    }
    if (position > baseLength) {
        return stretch(baseLength, 0);
    }
    return stretch(position, baseLength - position + 1);
}

ReplaceLast::ReplaceLast(const ReplaceLastOptions& options, const RunState& run)
    : OverwriteAction(options.cmbLast, model::ActionKind::ReplaceLast, run), count_(options.Text14)
{}

OverwriteAction::Stretch ReplaceLast::StretchIn(int baseLength) const
{
    const int count = std::min(count_.Value(), baseLength);
    return {baseLength - count + 1, count, 0};
}

ReplaceAll::ReplaceAll(const ReplaceAllOptions& options, const RunState& run)
    : OverwriteAction(options.cmbAll, model::ActionKind::ReplaceAll, run)
{}

OverwriteAction::Stretch ReplaceAll::StretchIn(int baseLength) const
{
    return {1, baseLength, 0};
}

} // namespace actions

// SPDX-License-Identifier: MIT
#include "actions/LengthAction.h"

#include "model/GetFName.h"
#include "model/Text.h"

#include <algorithm>

namespace actions {

Length::Length(const LengthOptions& options, const LengthMeasures& measures)
    : options_(options),
      measures_(measures),
      measure_(LengthOptions::Measures().indexOf(options.cmbLength)),
      number_(platform::ToInt16(options.cmbLength).value),
      position_(options.Text37)
{}

QString Length::Work(const model::NameContext& row)
{
    const QString base = model::GetFName(row.name, row.type, false);
    const QString extension = model::GetFName(row.name, row.type, true);
    switch (measure_) {
    case LengthOptions::LongestOriginal:
        return Longest(base, measures_.longestOriginal) + extension;
    case LengthOptions::ShortestOriginal:
        return Shortest(base, measures_.shortestOriginal) + extension;
    case LengthOptions::LongestModified:
        return Longest(base, measures_.longestModified) + extension;
    case LengthOptions::ShortestModified:
        return Shortest(base, measures_.shortestModified) + extension;
    default:
        return number_ ? Exactly(base, *number_) + extension : row.name;
    }
}

QString Length::Longest(const QString& base, int target) const
{
    return Padded(base, target - model::Length(base), options_.Text19);
}

QString Length::Shortest(const QString& base, int target) const
{
    const QString taken = Taken(base, target);
    return options_.take.IsOn(LengthOptions::Option3)
               ? Padded(taken, target - model::Length(taken), options_.Text18)
               : taken;
}

QString Length::Exactly(const QString& base, int target) const
{
    const QString taken = Taken(base, target);
    return Padded(taken, std::max(0, target - model::Length(taken)), options_.Text19);
}

QString Length::Taken(const QString& base, int target) const
{
    switch (options_.take.Chosen()) {
    case LengthOptions::Option1:
        return model::Left(base, target);
    case LengthOptions::Option2:
        return model::Right(base, target);
    case LengthOptions::Option3:
        return model::Mid(base, position_.Value(), target);
    default:
        return base;
    }
}

QString Length::Padded(const QString& text, int count, const QString& behind) const
{
    return options_.pad.IsOn(LengthOptions::Option19) ? model::Repeat(count, options_.Text18) + text
                                                      : text + model::Repeat(count, behind);
}

} // namespace actions

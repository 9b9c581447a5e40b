// SPDX-License-Identifier: MIT
//
// The action Clean: takes characters out of the base name and leaves the extension.
#pragma once

#include "actions/ActionHandler.h"

#include <bitset>
#include <vector>

namespace actions {

// A set of characters for many look-ups.
class CharacterSet
{
public:
    explicit CharacterSet(const QString& characters);

    // REQUIRES: `character` is one character.
    bool Contains(QStringView character) const;

private:
    std::bitset<128> ascii_;
    std::vector<char32_t> others_; // sorted
};

// What Clean takes out, and what its second pass leaves in. Both texts may name a character twice.
struct CleanSets
{
    QString RemoveSet;
    QString KeepSet;
};

// A block of letters is taken out of KeepSet as a whole, so a vowel whose block stays is kept by that.
CleanSets CleanSetsOf(const CleanOptions& options);

class Clean final : public ActionHandler
{
public:
    explicit Clean(const CleanOptions& options);

private:
    Clean(const CleanOptions& options, const CleanSets& sets);

    QString Work(const model::NameContext& row) override;

    // Replaces the characters that are in `set` (or are not in it) by the filler. A scan begins again after
    // each character replaced; where the filler is itself one to replace, it would never get past the filler
    // and so ends with the text as far as it got.
    QString Pass(const QString& text, const CharacterSet& set, bool isInSet) const;

    CharacterSet remove_;
    CharacterSet keep_;
    bool removesUnkept_;
    QString filler_; // one character, or empty: deletes
};

} // namespace actions

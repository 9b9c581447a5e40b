// SPDX-License-Identifier: MIT
//
// The action Length: cuts and pads the base name to one length, a number or a measure of all names of the
// run. The extension stays.
#pragma once

#include "actions/ActionHandler.h"

#include <optional>

namespace actions {

class Length final : public ActionHandler
{
public:
    // The measures outlive the action.
    Length(const LengthOptions& options, const LengthMeasures& measures);

private:
    QString Work(const model::NameContext& row) override;

    // The base at the length of a measure. "Longest" only pads and takes no characters, so it fails for a
    // base that earlier actions made longer. "Shortest" pads only what was taken from a position, and with
    // the character of Text18 at either end.
    QString Longest(const QString& base, int target) const;
    QString Shortest(const QString& base, int target) const;
    QString Exactly(const QString& base, int target) const;

    // The characters that the choice takes, at most `target`.
    QString Taken(const QString& base, int target) const;

    // `text` with `count` pad characters, of Text18 in front or of `behind` at the end. Throws ActionError
    // for a negative count, and for an empty pad box when padding is due.
    QString Padded(const QString& text, int count, const QString& behind) const;

    LengthOptions options_;
    const LengthMeasures& measures_;
    qsizetype measure_;         // of LengthOptions::Measures(), or -1
    std::optional<int> number_; // of cmbLength, if it holds one
    NumberBox position_;
};

} // namespace actions

// SPDX-License-Identifier: MIT
#include "actions/CleanAction.h"

#include "model/GetFName.h"
#include "model/Text.h"

#include <algorithm>
#include <utility>

namespace actions {

namespace {

const QString UpperLetters = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ");
const QString LowerLetters = QStringLiteral("abcdefghijklmnopqrstuvwxyz");
const QString VowelLetters = QStringLiteral("aeiouAEIOU");
const QString DigitLetters = QStringLiteral("0123456789");

} // namespace

CharacterSet::CharacterSet(const QString& characters)
{
    for (qsizetype at = 0; at < characters.size();) {
        const QStringView character = model::CharacterAt(characters, at);
        const char32_t code = model::CodePoint(character);
        if (code < ascii_.size()) {
            ascii_.set(code);
        } else {
            others_.push_back(code);
        }
        at += character.size();
    }
    std::sort(others_.begin(), others_.end());
}

bool CharacterSet::Contains(QStringView character) const
{
    const char32_t code = model::CodePoint(character);
    return code < ascii_.size() ? ascii_.test(code)
                                : std::binary_search(others_.begin(), others_.end(), code);
}

CleanSets CleanSetsOf(const CleanOptions& options)
{
    CleanSets sets{QString(), UpperLetters + LowerLetters + VowelLetters + DigitLetters};
    const std::pair<bool, QString> blocks[] = {{options.chkCAlpha, UpperLetters},
                                               {options.chkSAlpha, LowerLetters},
                                               {options.chkVowel, VowelLetters},
                                               {options.chkDigit, DigitLetters}};
    for (const auto& [isRemoved, block] : blocks) {
        if (isRemoved) {
            sets.RemoveSet += block;
            sets.KeepSet.remove(block);
        }
    }
    const std::pair<bool, QChar> signs[] = {
        {options.Check3, u'_'}, {options.Check4, u'-'},  {options.Check5, u'('},
        {options.Check6, u')'}, {options.Check7, u'$'},  {options.Check8, u','},
        {options.Check9, u'#'}, {options.Check10, u' '}, {options.Check11, u'.'}};
    for (const auto& [isKept, sign] : signs) {
        if (isKept) {
            sets.KeepSet += sign;
        }
    }
    // A text that opens with a comma is one item, its commas included.
    sets.KeepSet += options.Text48.startsWith(u',') ? options.Text48 : QString(options.Text48).remove(u',');
    return sets;
}

Clean::Clean(const CleanOptions& options) : Clean(options, CleanSetsOf(options)) {}

Clean::Clean(const CleanOptions& options, const CleanSets& sets)
    : remove_(sets.RemoveSet),
      keep_(sets.KeepSet),
      removesUnkept_(options.Check12),
      filler_(options.filler.IsOn(CleanOptions::Option5) ? model::Left(options.Text49, 1)
                                                         : QStringLiteral(" "))
{}

QString Clean::Pass(const QString& text, const CharacterSet& set, bool isInSet) const
{
    const bool isStuck = !filler_.isEmpty() && set.Contains(filler_) == isInSet;
    QString result;
    result.reserve(text.size());
    for (qsizetype at = 0; at < text.size();) {
        const QStringView character = model::CharacterAt(text, at);
        const bool isReplaced = set.Contains(character) == isInSet;
        if (isReplaced && isStuck) {
            return model::Replace(text, character.toString(), filler_);
        }
        result += isReplaced ? QStringView(filler_) : character;
        at += character.size();
    }
    return result;
}

QString Clean::Work(const model::NameContext& row)
{
    QString base = Pass(model::GetFName(row.name, row.type, false), remove_, true);
    if (removesUnkept_) {
        base = Pass(base, keep_, false);
    }
    return base + model::GetFName(row.name, row.type, true);
}

} // namespace actions

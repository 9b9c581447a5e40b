// SPDX-License-Identifier: MIT
#include "actions/CounterStates.h"

#include "model/ActionError.h"
#include "model/Text.h"

#include <algorithm>
#include <limits>
#include <string_view>

namespace actions {

namespace {

bool IsAsciiLetter(QChar unit)
{
    return (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z');
}

// What a mask's placeholder is drawn from; empty for a character that stands for itself.
std::u16string_view DrawnFrom(QChar placeholder)
{
    switch (placeholder.unicode()) {
    case u'#':
        return u"0123456789";
    case u'A':
        return u"ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    case u'a':
        return u"abcdefghijklmnopqrstuvwxyz";
    case u'N':
        return u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";
    case u'H':
        return u"0123456789ABCDEF";
    default:
        return {};
    }
}

void ResetOne(const CounterBlock& numbers, const AlphaCounterBlock& letters, CounterState& state)
{
    if (const auto start = platform::ToInt16(numbers.text[CounterBlock::StartFrom]).value) {
        state.number = *start;
    }
    QString first = letters.text[AlphaCounterBlock::StartFrom];
    if (!IsAllLetters(first)) {
        first = QString(model::Length(first), u'A');
    }
    const bool isLower = letters.letterCase.IsOn(AlphaCounterBlock::Lowercase);
    state.limit = isLower ? u'z' : u'Z';
    state.letters = isLower ? first.toLower() : first.toUpper();
}

} // namespace

bool IsAllLetters(const QString& text)
{
    return std::all_of(text.cbegin(), text.cend(), IsAsciiLetter);
}

QString NextAlphaValue(QString value, char16_t limit, int step)
{
    const QChar first = limit == u'Z' ? u'A' : u'a';
    const qsizetype width = value.size();
    const QString wrapped(width, first);
    for (int i = 0; i < step; ++i) {
        qsizetype at = width - 1;
        for (; at >= 0 && value.at(at).unicode() >= limit; --at) {
            value[at] = first;
        }
        if (at >= 0) {
            value[at] = QChar(static_cast<char16_t>(value.at(at).unicode() + 1));
            // The rest is as wide as the width at entry: letters that a carry has put in since are lost here.
            value.truncate(width);
        }
        if (value == wrapped) {
            value.prepend(first);
        }
    }
    return value;
}

QString RandomString(const QString& mask, model::RandomSource& random)
{
    random.Reseed();
    QString result = mask;
    for (QChar& unit : result) {
        const std::u16string_view set = DrawnFrom(unit);
        if (!set.empty()) {
            unit = set[static_cast<std::size_t>(random.Next() * static_cast<double>(set.size()))];
        }
    }
    return result;
}

void CounterStates::Reset(const RenameOptions& options)
{
    using model::ActionKind;
    const auto reset = [this](ActionKind kind, const ValueControls& value) {
        ResetOne(value.counter, value.letters, Of(kind));
    };
    reset(ActionKind::ReplaceFirst, options.replaceFirst.cmbFirst);
    reset(ActionKind::ReplaceMid, options.replaceMid.cmbMid);
    reset(ActionKind::ReplaceLast, options.replaceLast.cmbLast);
    reset(ActionKind::ReplaceAll, options.replaceAll.cmbAll);
    reset(ActionKind::Suffix, options.suffix.cmbSuffix);
    reset(ActionKind::Prefix, options.prefix.cmbPrefix);
    reset(ActionKind::Insert, options.insert.cmbInsertS);
    reset(ActionKind::Compose, options.compose.cmbCompose);
    ResetOne(options.extension.txtExtC, options.extension.txtExtA, Of(ActionKind::Extension));
    ResetOne(options.replace.txtReplaceC, options.replace.txtReplaceA, Of(ActionKind::Replace));
}

int NumberBox::Value() const
{
    if (!result_.value) {
        throw model::ActionError(platform::DescriptionOf(result_.fault));
    }
    return *result_.value;
}

CounterFormat::CounterFormat(const CounterBlock& block)
    : step_(block.text[CounterBlock::WithStep]),
      padTo_(block.text[CounterBlock::PadTo]),
      padCharacter_(block.text[CounterBlock::PadCharacter]),
      prefix_(block.text[CounterBlock::Prefix]),
      suffix_(block.text[CounterBlock::Suffix])
{}

CounterFormat::CounterFormat(const AlphaCounterBlock& block)
    : step_(block.text[AlphaCounterBlock::WithStep]),
      padTo_(block.text[AlphaCounterBlock::PadTo]),
      padCharacter_(block.text[AlphaCounterBlock::PadCharacter]),
      prefix_(block.text[AlphaCounterBlock::Prefix]),
      suffix_(block.text[AlphaCounterBlock::Suffix])
{}

QString CounterFormat::Dressed(const QString& value) const
{
    const int missing = padTo_.Value() - static_cast<int>(value.size());
    return prefix_ + model::Repeat(std::max(0, missing), padCharacter_) + value + suffix_;
}

QString CounterFormat::NextNumber(CounterState& state) const
{
    const QString value = Dressed(QString::number(state.number));
    const qint64 next = qint64{state.number} + step_.Value();
    if (next < std::numeric_limits<qint32>::min() || next > std::numeric_limits<qint32>::max()) {
        throw model::ActionError(platform::DescriptionOf(platform::ConversionFault::Overflow));
    }
    state.number = static_cast<qint32>(next);
    return value;
}

QString CounterFormat::NextLetters(CounterState& state) const
{
    const QString value = Dressed(state.letters);
    state.letters = NextAlphaValue(state.letters, state.limit, step_.Value());
    return value;
}

} // namespace actions

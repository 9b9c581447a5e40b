// SPDX-License-Identifier: MIT
#include "actions/CounterStates.h"
#include "model/ActionError.h"
#include "support/FixedPorts.h"
#include "support/Printers.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

using namespace actions;
using model::ActionKind;
using testing_support::FixedRandom;

const QString Smile = u"\U0001F600"_qs;

// Runs a value often enough to compare with `expected`: the values with blanks between, "!" where it fails.
template<typename Next>
QString Values(const QString& expected, Next next)
{
    QStringList values;
    for (qsizetype i = 0; i <= expected.count(u' '); ++i) {
        try {
            values.append(next());
        } catch (const model::ActionError&) {
            values.append(u"!"_qs);
        }
    }
    return values.join(u' ');
}

// Boxes as a text: those of index 0, 1 and so on, parted by "|". An empty text leaves the defaults.
void SetBoxes(std::array<QString, 6>& boxes, const QString& texts)
{
    for (int i = 0; !texts.isEmpty() && i < 6; ++i) {
        boxes[static_cast<std::size_t>(i)] = texts.section(u'|', i, i);
    }
}

TEST(Counters, NumbersRunOnAsTheirBoxesSay)
{
    const struct
    {
        const char* name;
        QString boxes; // start, step, pad to, pad character, prefix, suffix
        QString values;
        int after; // where the number stands in the end
    } rows[] = {
        {"defaults", u""_qs, u"001 002 003"_qs, 4},
        {"a carry into a new digit", u"9|1|1|0"_qs, u"9 10 11"_qs, 12},
        {"padding never shortens", u"999|1|3|0"_qs, u"999 1000"_qs, 1001},
        {"a minus counts as width", u"3|-2|3|0"_qs, u"003 001 0-1 0-3"_qs, -5},
        {"a step of nothing", u"5|0|2|0"_qs, u"05 05"_qs, 5},
        {"only the first pad character", u"7|1|3|xy|p|s"_qs, u"pxx7s"_qs, 8},
        {"a pad character of two code units", u"7|1|3|\U0001F600x"_qs, Smile + Smile + u"7"_qs, 8},
        {"all forms of numbers", u" 2.5 |1e1|&H4|0"_qs, u"0002 0012"_qs, 22},
        {"past 16 bits", u"32767|32767|1|0"_qs, u"32767 65534"_qs, 98301},
        {"a negative width", u"1|1|-3|0"_qs, u"1 2"_qs, 3},
        {"no pad character, none due", u"1|1|1|"_qs, u"1 2"_qs, 3},
        {"no pad character, one due", u"9|1|2|"_qs, u"! !"_qs, 9},
        {"no width", u"4|1||0"_qs, u"! !"_qs, 4},
        {"a width that is no number", u"4|1|3a|0"_qs, u"! !"_qs, 4},
        {"no step", u"4||3|0"_qs, u"! !"_qs, 4},
        {"a step past 16 bits", u"4|32768|3|0"_qs, u"! !"_qs, 4},
    };
    for (const auto& row : rows) {
        CounterStates states;
        RenameOptions options;
        SetBoxes(options.prefix.cmbPrefix.counter.text, row.boxes);
        states.Reset(options);
        const CounterFormat format(options.prefix.cmbPrefix.counter);
        CounterState& state = states.Of(ActionKind::Prefix);
        EXPECT_EQ(Values(row.values, [&] { return format.NextNumber(state); }), row.values) << row.name;
        EXPECT_EQ(state.number, row.after) << row.name;
    }
}

TEST(Counters, NumbersStayWithin32Bits)
{
    constexpr qint32 most = std::numeric_limits<qint32>::max();
    constexpr qint32 least = std::numeric_limits<qint32>::min();
    for (const auto& [start, step, stands] :
         {std::tuple(most - 1, u"1"_qs, most), std::tuple(most, u"1"_qs, most),
          std::tuple(least, u"-1"_qs, least)}) {
        CounterBlock block;
        block.text[CounterBlock::WithStep] = step;
        CounterState state{start, {}, u'Z'};
        const CounterFormat format(block);
        const QString expected = start == stands ? u"!"_qs : QString::number(start);
        EXPECT_EQ(Values(expected, [&] { return format.NextNumber(state); }), expected);
        EXPECT_EQ(state.number, stands);
    }
}

TEST(Counters, LettersRunOnAsTheirBoxesSay)
{
    using Boxes = AlphaCounterBlock;
    const struct
    {
        const char* name;
        QString boxes; // start, step, prefix, suffix, pad to, pad character
        int letterCase;
        QString values;
    } rows[] = {
        {"defaults", u""_qs, Boxes::Uppercase, u"00A 00B 00C"_qs},
        {"a carry into a new letter", u"Y|1|||3|0"_qs, Boxes::Uppercase, u"00Y 00Z 0AA"_qs},
        {"no start", u"|1|||3|0"_qs, Boxes::Uppercase, u"000 00A 00B"_qs},
        {"small letters made capitals", u"ab|1|||0|"_qs, Boxes::Uppercase, u"AB AC"_qs},
        {"capitals by default", u"ab|1|||0|"_qs, OptionGroup::None, u"AB AC"_qs},
        {"capitals made small", u"AZ|1|||0|"_qs, Boxes::Lowercase, u"az ba"_qs},
        {"no letter, small", u"a1|1|||0|"_qs, Boxes::Lowercase, u"aa ab"_qs},
        {"no letter, capital", u"A1|1|||0|"_qs, Boxes::Uppercase, u"AA AB"_qs},
        {"no letters, in characters", u"\U0001F600\u00e9|1|||0|"_qs, Boxes::Uppercase, u"AA AB"_qs},
        {"dressed", u"C|2|p|s|2|-x"_qs, Boxes::Uppercase, u"p-Cs p-Es"_qs},
        {"a step of nothing", u"C|0|||0|"_qs, Boxes::Uppercase, u"C C"_qs},
        {"a step back", u"C|-1|||0|"_qs, Boxes::Uppercase, u"C C"_qs},
        {"no step", u"C||||0|"_qs, Boxes::Uppercase, u"! !"_qs},
        {"no pad character, one due", u"C|1|||2|"_qs, Boxes::Uppercase, u"! !"_qs},
    };
    for (const auto& row : rows) {
        CounterStates states;
        RenameOptions options;
        SetBoxes(options.replace.txtReplaceA.text, row.boxes);
        options.replace.txtReplaceA.letterCase = OptionGroup(row.letterCase);
        states.Reset(options);
        const CounterFormat format(options.replace.txtReplaceA);
        CounterState& state = states.Of(ActionKind::Replace);
        EXPECT_EQ(Values(row.values, [&] { return format.NextLetters(state); }), row.values) << row.name;
    }
}

TEST(Counters, LongStepsLoseLettersAtACarry)
{
    const struct
    {
        QString from;
        int step;
        QString to;
    } rows[] = {
        {u"Z"_qs, 1, u"AA"_qs},     {u"ZZ"_qs, 1, u"AAA"_qs}, {u"AZ"_qs, 1, u"BA"_qs},
        {u"ZZZ"_qs, 1, u"AAAA"_qs}, {u"Z"_qs, 2, u"B"_qs},    {u"ZZ"_qs, 2, u"AB"_qs},
        {u"Y"_qs, 3, u"B"_qs},      {u"Y"_qs, 2, u"AA"_qs},   {u"ZY"_qs, 2, u"AAA"_qs},
        {u"ZY"_qs, 4, u"AC"_qs},    {u"AZ"_qs, 27, u"CA"_qs}, {u""_qs, 2, u"A"_qs},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(NextAlphaValue(row.from, u'Z', row.step), row.to) << row.from.toStdString() << row.step;
        EXPECT_EQ(NextAlphaValue(row.from.toLower(), u'z', row.step), row.to.toLower())
            << row.from.toStdString();
    }
}

TEST(Counters, AStartThatDoesNotConvertKeepsTheNumber)
{
    CounterStates states;
    RenameOptions options;
    options.suffix.cmbSuffix.counter.text[CounterBlock::StartFrom] = u"7"_qs;
    states.Reset(options);
    for (const QString& unread : {u"x"_qs, u""_qs, u"32768"_qs}) {
        options.suffix.cmbSuffix.counter.text[CounterBlock::StartFrom] = unread;
        options.compose.cmbCompose.counter.text[CounterBlock::StartFrom] = u"&H10"_qs;
        states.Reset(options);
        EXPECT_EQ(states.Of(ActionKind::Suffix).number, 7) << unread.toStdString();
        EXPECT_EQ(states.Of(ActionKind::Compose).number, 16) << "the others are set all the same";
    }
}

TEST(Counters, MasksDrawFromTheirSets)
{
    const struct
    {
        const char* name;
        QString mask;
        std::vector<double> chance;
        QString result;
    } rows[] = {
        {"the first of each set", u"#AaNH"_qs, {0}, u"0AaA0"_qs},
        {"the last of each set", u"#AaNH"_qs, {0.9999999}, u"9Zz9F"_qs},
        {"N is capitals, small letters, digits",
         u"NNNN"_qs,
         {25.5 / 62, 26.5 / 62, 51.5 / 62, 52.5 / 62},
         u"Zaz0"_qs},
        {"H is digits, then capitals", u"HH"_qs, {9.5 / 16, 10.5 / 16}, u"9A"_qs},
        {"other characters draw nothing", u"h#n-#"_qs, {0.15, 0.25}, u"h1n-2"_qs},
        {"a pair stays whole", Smile + u"#"_qs, {0}, Smile + u"0"_qs},
        {"no placeholder", u"xyz"_qs, {0}, u"xyz"_qs},
        {"nothing", u""_qs, {0}, u""_qs},
    };
    for (const auto& row : rows) {
        FixedRandom random(row.chance);
        EXPECT_EQ(RandomString(row.mask, random), row.result) << row.name;
        EXPECT_EQ(random.reseeds, 1) << row.name;
    }
}

} // namespace

// SPDX-License-Identifier: MIT
#include "actions/CounterStates.h"
#include "model/ActionError.h"
#include "support/FixedPorts.h"
#include "support/Words.h"

namespace {

using namespace actions;
using model::ActionKind;
using testing_support::Rows;

// Boxes as a text: those of index 0, 1 and so on, parted by "|".
std::array<QString, 6> Boxes(const QString& texts)
{
    const QStringList box = texts.split(u'|');
    return {box[0], box.value(1), box.value(2), box.value(3), box.value(4), box.value(5)};
}

// As many values as `expected` tells, parted by commas, "!" where one fails.
template<typename Next>
QString Values(const QString& expected, Next next)
{
    QStringList values;
    while (values.size() <= expected.count(u',')) {
        try {
            values.append(next());
        } catch (const model::ActionError&) {
            values.append(u"!"_qs);
        }
    }
    return values.join(u',');
}

TEST(Counters, NumbersRunOnAndStayWhereABoxFails)
{
    // Where the number stands; step, pad to, pad character, prefix, suffix; values; where it stands then.
    const auto rows = Rows(
        4,
        u"9 |1|1|0 9,10,11 12   999 |1|3|0 999,1000 1001   3 |-2|3|0 003,001,0-1,0-3 -5   5 |0|2|0 05,05 5 "
        u"7 |1|3|xy|p|s pxx7s 8   7 |1|3|\U0001F600x \U0001F600\U0001F6007 8   1 |1|-3|0 1,2 3 "
        u"2 |1e1|&H4|0 0002,0012 22   32767 |~32767.4~|1|0 32767,65534 98301   1 |1|1| 1,2 3 "
        u"9 |1|2| !,! 9   4 |1||0 !,! 4   4 |1|3a|0 !,! 4   4 ||3|0 !,! 4   4 |32768|3|0 !,! 4 "
        u"2147483646 |1|1|0 2147483646,!,! 2147483647   -2147483648 |-1|1|0 !,! -2147483648"_qs);
    for (const QStringList& row : rows) {
        const CounterFormat format(CounterBlock{Boxes(row[1])});
        CounterState state{row[0].toInt(), {}, u'Z'};
        EXPECT_EQ(Values(row[2], [&] { return format.NextNumber(state); }), row[2]);
        EXPECT_EQ(QString::number(state.number), row[3]) << row[1].toStdString();
    }
}

TEST(Counters, LettersRunOnAndStayWhereABoxFails)
{
    // Start, step, prefix, suffix, pad to, pad character; capitals (0), small letters (1) or neither (-1).
    const auto rows = Rows(
        3,
        u"Y|1|||3|0 0 00Y,00Z,0AA   |1|||3|0 0 000,00A,00B   ab|1|||0| 0 AB,AC   ab|1|||0| -1 AB,AC "
        u"AZ|1|||0| 1 az,ba   a1|1|||0| 1 aa,ab   A1|1|||0| 0 AA,AB   \U0001F600\u00e9|1|||0| 0 AA,AB "
        u"C|2|p|s|2|-x 0 p-Cs,p-Es   C|0|||0| 0 C,C   C|-1|||0| 0 C,C   C||||0| 0 !,!   C|1|||2| 0 !,!"_qs);
    for (const QStringList& row : rows) {
        CounterStates states;
        RenameOptions options;
        options.replace.txtReplaceA = {Boxes(row[0]), OptionGroup(row[1].toInt())};
        states.Reset(options);
        const CounterFormat format(options.replace.txtReplaceA);
        CounterState& state = states.Of(ActionKind::Replace);
        const QString before = state.letters;
        EXPECT_EQ(Values(row[2], [&] { return format.NextLetters(state); }), row[2]);
        EXPECT_TRUE(!row[2].contains(u'!') || state.letters == before) << row[0].toStdString();
    }
}

TEST(Counters, LongStepsLoseLettersAtACarry)
{
    // Letters, step, the next ones.
    for (const QStringList& row : Rows(3, u"Z 1 AA   ZZ 1 AAA   AZ 1 BA   Z 2 B   ZZ 2 AB   Y 3 B   Y 2 AA "
                                          u"ZY 2 AAA   ZY 4 AC   AZ 27 CA"_qs)) {
        EXPECT_EQ(NextAlphaValue(row[0], u'Z', row[1].toInt()), row[2]);
        EXPECT_EQ(NextAlphaValue(row[0].toLower(), u'z', row[1].toInt()), row[2].toLower());
    }
    EXPECT_EQ(NextAlphaValue({}, u'Z', 2), u"A"_qs);
}

TEST(Counters, AStartThatDoesNotConvertKeepsTheNumber)
{
    CounterStates states;
    RenameOptions options;
    options.compose.cmbCompose.counter.text[CounterBlock::StartFrom] = u"&H10"_qs;
    for (const QString& start : {u" 6.6 "_qs, u"x"_qs, u""_qs, u"32768"_qs}) {
        options.suffix.cmbSuffix.counter.text[CounterBlock::StartFrom] = start;
        states.Reset(options);
        EXPECT_EQ(states.Of(ActionKind::Suffix).number, 7) << start.toStdString();
    }
    EXPECT_EQ(states.Of(ActionKind::Compose).number, 16) << "the others are set all the same";
}

TEST(Counters, MasksDrawFromTheirSets)
{
    const std::tuple<QString, std::vector<double>, QString> rows[] = {
        {u"#AaNH\U0001F600"_qs, {0}, u"0AaA0\U0001F600"_qs},
        {u"#AaNH"_qs, {0.9999999}, u"9Zz9F"_qs},
        {u"NNNNHH"_qs, {25.5 / 62, 26.5 / 62, 51.5 / 62, 52.5 / 62, 9.5 / 16, 10.5 / 16}, u"Zaz09A"_qs},
        {u"h#n-#"_qs, {0.15, 0.25}, u"h1n-2"_qs}};
    for (const auto& [mask, chance, result] : rows) {
        testing_support::FixedRandom random(chance);
        EXPECT_EQ(RandomString(mask, random), result);
        EXPECT_EQ(random.reseeds, 1);
    }
}

} // namespace

// SPDX-License-Identifier: MIT
#include "actions/ActionHandler.h"
#include "support/FixedPorts.h"
#include "support/Printers.h"

#include <gtest/gtest.h>

namespace {

using namespace actions;
using model::ActionKind;

enum Action { First, Mid, Last, All };

struct Case
{
    Action action;
    QString count, position, value, name, newName;
    QString type;
};

// Sets the boxes of the case's action and runs it on the case's name; the counters stand where `states` says.
QString NewName(const Case& row, CounterStates& states)
{
    constexpr std::array kinds{ActionKind::ReplaceFirst, ActionKind::ReplaceMid, ActionKind::ReplaceLast,
                               ActionKind::ReplaceAll};
    RenameOptions options;
    options.replaceFirst.Text1 = options.replaceMid.Text12 = options.replaceLast.Text14 = row.count;
    options.replaceMid.Text13 = row.position;
    options.replaceFirst.cmbFirst.combo = options.replaceMid.cmbMid.combo = row.value;
    options.replaceLast.cmbLast.combo = options.replaceAll.cmbAll.combo = row.value;
    states.Reset(options);
    testing_support::FixedClock clock;
    testing_support::FixedRandom random;
    const auto handler = CompileAction(kinds[row.action], options, {states, clock, random});
    model::NameContext context;
    context.name = row.name;
    context.type = row.type;
    return handler->NewName(context);
}

TEST(OverwriteActions, LayAValueOverAStretchOfTheBase)
{
    const QString smile = u"\U0001F600"_qs;
    const QString folder = u"File Folder"_qs;
    const QString letters = u"abcdefgh.txt"_qs;
    const Case rows[] = {
        {First, u"3"_qs, {}, u"X"_qs, letters, u"Xdefgh.txt"_qs, {}},
        {First, u"3"_qs, {}, u"abc"_qs, u"ab.txt"_qs, u"abc.txt"_qs, {}},
        {First, u"2.5"_qs, {}, u"X"_qs, letters, u"Xcdefgh.txt"_qs, {}},
        {First, u"3"_qs, {}, u""_qs, u"abcd.txt"_qs, u"d.txt"_qs, {}},
        {First, u"3"_qs, {}, u""_qs, u"abc.txt"_qs, u".txt"_qs, {}},
        {First, u"3"_qs, {}, u""_qs, u"abc"_qs, u"abc"_qs, {}}, // nothing would be left
        {First, u"2"_qs, {}, u"X"_qs, u"a.b.txt"_qs, u"Xb.txt"_qs, {}},
        {First, u"3"_qs, {}, u"x"_qs, u".ini"_qs, u".ini"_qs, {}},
        {First, u"3"_qs, {}, u"x"_qs, u"my.dir"_qs, u"xdir"_qs, folder},
        {First, u"2"_qs, {}, u"x"_qs, smile + smile + u"b.txt"_qs, u"xb.txt"_qs, {}},
        {First, u"1"_qs, {}, u"x"_qs, u"e\u0301a.txt"_qs, u"x\u0301a.txt"_qs, {}},
        {First, u"1"_qs, {}, u"x"_qs, QChar(0xDC80) + u"b.txt"_qs, u"xb.txt"_qs, {}},
        {First, u"0"_qs, {}, u"X"_qs, letters, letters, {}},
        {First, u"-1"_qs, {}, u"X"_qs, letters, letters, {}},
        {First, u""_qs, {}, u"X"_qs, letters, letters, {}},
        {First, u"32768"_qs, {}, u"X"_qs, letters, letters, {}},

        {Last, u"2"_qs, {}, u"$Upper_Case$"_qs, u"report.txt"_qs, u"repoRT.txt"_qs, {}},
        {Last, u"9"_qs, {}, u"X"_qs, letters, u"X.txt"_qs, {}},
        {Last, u"1"_qs, {}, u"X"_qs, u"a"_qs + smile, u"aX"_qs, {}},
        {Last, u"3"_qs, {}, u"X"_qs, u"my.dir"_qs, u"my.X"_qs, folder},
        {Last, u"0"_qs, {}, u"X"_qs, letters, letters, {}},
        {Last, u"-2"_qs, {}, u"X"_qs, letters, letters, {}},
        {Last, u"x"_qs, {}, u"X"_qs, letters, letters, {}},

        {Mid, u"3"_qs, u"3"_qs, u"X"_qs, letters, u"abXfgh.txt"_qs, {}},
        {Mid, u"6"_qs, u"3"_qs, u"X"_qs, letters, u"abX.txt"_qs, {}},     // just to the end
        {Mid, u"3"_qs, u"7"_qs, u"X"_qs, letters, u"abcdefX.txt"_qs, {}}, // cut to 2
        {Mid, u"3"_qs, u"8"_qs, u"X"_qs, letters, u"abcdefgX.txt"_qs, {}},
        {Mid, u"1"_qs, u"8"_qs, u"X"_qs, letters, u"abcdefgX.txt"_qs, {}},
        {Mid, u"8"_qs, u"1"_qs, u"X"_qs, letters, u"X.txt"_qs, {}},
        {Mid, u"2"_qs, u"2"_qs, u"$Invert_Case$"_qs, u"aBc.txt"_qs, u"abC.txt"_qs, {}},
        {Mid, u"1"_qs, u"2"_qs, u"X"_qs, u"a"_qs + smile + u"c.txt"_qs, u"aXc.txt"_qs, {}},
        {Mid, u"3"_qs, u"20"_qs, u"X"_qs, letters, letters, {}},
        {Mid, u"1"_qs, u"9"_qs, u"X"_qs, letters, letters, {}},
        {Mid, u"0"_qs, u"9"_qs, u"X"_qs, letters, letters, {}},
        {Mid, u"0"_qs, u"3"_qs, u"X"_qs, letters, letters, {}},
        {Mid, u"3"_qs, u"0"_qs, u"X"_qs, letters, letters, {}},
        {Mid, u"3"_qs, u"-1"_qs, u"X"_qs, letters, letters, {}},
        {Mid, u"-1"_qs, u"3"_qs, u"X"_qs, letters, letters, {}},
        {Mid, u"-20"_qs, u"20"_qs, u"X"_qs, letters, letters, {}},
        {Mid, u"3"_qs, u"3"_qs, u"X"_qs, u".ini"_qs, u".ini"_qs, {}},
        {Mid, u""_qs, u"3"_qs, u"X"_qs, letters, letters, {}},
        {Mid, u"3"_qs, u"a"_qs, u"X"_qs, letters, letters, {}},

        {All, {}, {}, u"$Counter$"_qs, u"a.b.txt"_qs, u"001.txt"_qs, {}},
        {All, {}, {}, u"x"_qs, u"my.dir"_qs, u"x"_qs, folder},
        {All, {}, {}, u"x"_qs, u"plain"_qs, u"x"_qs, {}},
        {All, {}, {}, u"x"_qs, u"a."_qs, u"x."_qs, {}},
        {All, {}, {}, u"x"_qs, u".ini"_qs, u".ini"_qs, {}},
        {All, {}, {}, u""_qs, letters, u".txt"_qs, {}},
        {All, {}, {}, u""_qs, u"plain"_qs, u"plain"_qs, {}},
        {All, {}, {}, u"$Invert_Case$"_qs, u"aBc.TxT"_qs, u"AbC.TxT"_qs, {}},
        {All, {}, {}, u"$mod_yyyy$"_qs, letters, letters, {}}, // it has no date
    };
    for (const Case& row : rows) {
        CounterStates states;
        EXPECT_EQ(NewName(row, states), row.newName)
            << "row " << &row - rows << ": " << row.count.toStdString() << " at "
            << row.position.toStdString();
    }
}

TEST(OverwriteActions, CountersStepOnceTheBoxesHaveConverted)
{
    const QString counter = u"$Counter$"_qs;
    const struct
    {
        Case row;
        int numberAfter; // it starts at 1
    } rows[] = {
        {{First, u"0"_qs, {}, counter, u"abc.txt"_qs, {}, {}}, 2},
        {{First, u"-1"_qs, {}, counter, u"abc.txt"_qs, {}, {}}, 2},
        {{First, u""_qs, {}, counter, u"abc.txt"_qs, {}, {}}, 1},
        {{Last, u"0"_qs, {}, counter, u"abc.txt"_qs, {}, {}}, 2},
        {{Last, u"-1"_qs, {}, counter, u"abc.txt"_qs, {}, {}}, 2},
        {{Last, u"40000"_qs, {}, counter, u"abc.txt"_qs, {}, {}}, 1},
        {{Mid, u"3"_qs, u"20"_qs, counter, u"abc.txt"_qs, {}, {}}, 2},
        {{Mid, u"3"_qs, u"0"_qs, counter, u"abc.txt"_qs, {}, {}}, 2},
        {{Mid, u"-1"_qs, u"1"_qs, counter, u"abc.txt"_qs, {}, {}}, 2},
        {{Mid, u"3"_qs, u""_qs, counter, u"abc.txt"_qs, {}, {}}, 1},
        {{Mid, u"x"_qs, u"1"_qs, counter, u"abc.txt"_qs, {}, {}}, 1},
        {{Mid, u"3"_qs, u"3"_qs, counter, u".ini"_qs, {}, {}}, 2},
        {{All, {}, {}, counter, u".ini"_qs, {}, {}}, 2},
    };
    constexpr std::array kinds{ActionKind::ReplaceFirst, ActionKind::ReplaceMid, ActionKind::ReplaceLast,
                               ActionKind::ReplaceAll};
    for (const auto& [row, numberAfter] : rows) {
        CounterStates states;
        EXPECT_EQ(NewName(row, states), row.name);
        EXPECT_EQ(states.Of(kinds[row.action]).number, numberAfter)
            << row.action << ": " << row.count.toStdString() << " at " << row.position.toStdString();
    }
}

} // namespace

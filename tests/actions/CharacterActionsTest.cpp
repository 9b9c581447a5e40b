// SPDX-License-Identifier: MIT
#include "actions/CleanAction.h"
#include "actions/OneAction.h"

namespace {

using CharacterActions = actions_tests::OneAction;
using actions::CleanOptions;
using actions::LengthOptions;
using model::ActionKind;

TEST_F(CharacterActions, ChangeCaseLeavesTheExtension)
{
    const QString expected[] = {u"READ M\u00c9.Txt"_qs, u"read m\u00e9.Txt"_qs, u"rEAD m\u00e9.Txt"_qs,
                                u"Read M\u00e9.Txt"_qs};
    for (const int button : {0, 1, 2, actions::OptionGroup::None}) {
        options.changeCase.change = actions::OptionGroup(button);
        EXPECT_EQ(NewName(ActionKind::ChangeCase, u"Read M\u00e9.Txt"_qs), expected[button < 0 ? 3 : button]);
    }
}

TEST_F(CharacterActions, CleanTakesCharactersOut)
{
    using O = CleanOptions;
    const struct
    {
        const char* what;
        std::vector<bool O::*> boxes;
        QString kept;                  // Text48
        std::optional<QString> filler; // Text49; none: a space
        QString before, after;
    } rows[] = {
        {"a space stands for what went", {&O::chkDigit}, {}, {}, u"a1b2.t1"_qs, u"a b .t1"_qs},
        {"an empty filler deletes", {&O::chkDigit}, {}, u""_qs, u"a1b2.txt"_qs, u"ab.txt"_qs},
        {"vowels and capitals", {&O::chkCAlpha, &O::chkVowel}, {}, {}, u"Aero"_qs, u"  r "_qs},
        {"the extension alone is left", {&O::chkSAlpha}, {}, u""_qs, u"abc.txt"_qs, u".txt"_qs},
        {"nothing left: the name stays", {&O::chkSAlpha}, {}, u""_qs, u"abc"_qs, u"abc"_qs},
        {"special characters", {&O::Check12}, {}, u""_qs, u"a-b_(c)\u00e9\U0001F600\xDC80.x"_qs, u"abc.x"_qs},
        {"kept signs", {&O::Check3, &O::Check6, &O::Check12}, {}, u""_qs, u"a-b_(c)"_qs, u"ab_c)"_qs},
        {"kept items", {&O::Check12}, u"\U0001F600,-"_qs, u""_qs, u"a,-\U0001F600"_qs, u"a-\U0001F600"_qs},
        {"a list opening with a comma", {&O::Check12}, u",-"_qs, u""_qs, u"a,-+"_qs, u"a,-"_qs},
        {"vowels", {&O::chkVowel, &O::Check12}, u"\u00e9"_qs, u"e"_qs, u"b\u00e9E"_qs, u"b\u00e9e"_qs},
        {"a stuck first pass", {&O::chkSAlpha}, {}, u"xy"_qs, u"abab.c"_qs, u"xbxb.c"_qs},
        {"a stuck second pass", {&O::Check12}, {}, {}, u"-a+-"_qs, u" a+ "_qs},
    };
    for (const auto& row : rows) {
        options.clean = {};
        for (const auto box : row.boxes) {
            options.clean.*box = true;
        }
        options.clean.Text48 = row.kept;
        options.clean.Text49 = row.filler.value_or(QString());
        options.clean.filler.Set(O::Option5, row.filler.has_value());
        EXPECT_EQ(NewName(ActionKind::Clean, row.before), row.after) << row.what;
    }
    options.clean = {};
    options.clean.chkCAlpha = true;
    EXPECT_TRUE(actions::CleanSetsOf(options.clean).KeepSet.contains(u'A')) << "kept by the block of vowels";
}

TEST_F(CharacterActions, LengthCutsAndPads)
{
    lengths = {.longestOriginal = 6, .shortestOriginal = 3, .longestModified = 8, .shortestModified = 2};
    const QString longest = u"=Longest Original Filename Length"_qs;
    const QString shortest = u"=Shortest Original Filename Length"_qs;
    const QString longestModified = u"=Longest Modified Filename Length"_qs;
    const QString shortestModified = u"=Shortest Modified Filename Length"_qs;
    enum Take { First, Last, From };
    enum Pad { Front, End };
    const struct
    {
        const char* what;
        QString target;
        Take take;
        Pad pad;
        QString before, after;
    } rows[] = {
        {"a number pads in front", u"5"_qs, First, Front, u"abc.x"_qs, u"<<abc.x"_qs},
        {"a number takes the first", u"5"_qs, First, Front, u"abcdefg.x"_qs, u"abcde.x"_qs},
        {"a number takes the last", u" 5 "_qs, Last, Front, u"abcdefg.x"_qs, u"cdefg.x"_qs},
        {"a number takes from a position", u"3"_qs, From, Front, u"abcdefg"_qs, u"bcd"_qs},
        {"and pads what it took", u"5"_qs, From, End, u"abc.x"_qs, u"bc>>>.x"_qs},
        {"whole ones from there", u"2"_qs, From, End, u"\U0001F600\U0001F601bc"_qs, u"\U0001F601b"_qs},
        {"whole characters", u"2"_qs, Last, End, u"a\U0001F600\u00e9"_qs, u"\U0001F600\u00e9"_qs},
        {"longest only pads", longest, Last, Front, u"abc.x"_qs, u"<<<abc.x"_qs},
        {"longest can't cut", longest, First, Front, u"abcdefg.x"_qs, u"abcdefg.x"_qs},
        {"longest of the preview", longestModified, First, End, u"abcdefg"_qs, u"abcdefg>"_qs},
        {"shortest takes", shortest, Last, Front, u"abcdefg.x"_qs, u"efg.x"_qs},
        {"shortest pads none of that", shortest, First, Front, u"ab.x"_qs, u"ab.x"_qs},
        {"shortest from a position pads", shortest, From, Front, u"abc.x"_qs, u"<bc.x"_qs},
        {"behind with the front's character", shortest, From, End, u"abc.x"_qs, u"bc<.x"_qs},
        {"shortest of the preview", shortestModified, First, End, u"abc"_qs, u"ab"_qs},
        {"the first text", u"Enter File Length"_qs, First, Front, u"abc.x"_qs, u"abc.x"_qs},
        {"a negative number", u"-1"_qs, First, Front, u"abc.x"_qs, u"abc.x"_qs},
        {"none", u"0"_qs, First, Front, u"abc.x"_qs, u".x"_qs},
    };
    LengthOptions& length = options.length;
    for (const auto& row : rows) {
        length.cmbLength = row.target;
        length.take = actions::OptionGroup(row.take);
        length.pad = actions::OptionGroup(row.pad);
        length.Text37 = u"2"_qs;
        length.Text18 = u"<"_qs;
        length.Text19 = u">"_qs;
        EXPECT_EQ(NewName(ActionKind::Length, row.before), row.after) << row.what;
    }
    length.cmbLength = u"5"_qs;
    length.pad = actions::OptionGroup(Front);
    length.Text18.clear();
    EXPECT_EQ(NewNames(ActionKind::Length, {u"abc"_qs, u"abcdef"_qs}), (QStringList{u"abc"_qs, u"abcde"_qs}))
        << "an empty pad box fails where padding is due";
    length.take = actions::OptionGroup(From);
    length.Text18 = u"<"_qs;
    for (const QString& position : {u"0"_qs, u"x"_qs}) {
        length.Text37 = position;
        EXPECT_EQ(NewName(ActionKind::Length, u"abcdefgh"_qs), u"abcdefgh"_qs);
    }
}

} // namespace

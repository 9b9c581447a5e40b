// SPDX-License-Identifier: MIT
#include "actions/OneAction.h"

namespace {

using AdditionActions = actions_tests::OneAction;
using model::ActionKind;

TEST_F(AdditionActions, PrefixAndSuffixKeepTheExtension)
{
    const struct
    {
        const char* what;
        QString value, before, prefixed, suffixed;
    } rows[] = {
        {"a value", u"X"_qs, u"a.b.txt"_qs, u"Xa.b.txt"_qs, u"a.bX.txt"_qs},
        {"a name without extension", u"X"_qs, u"README"_qs, u"XREADME"_qs, u"READMEX"_qs},
        {"an empty base", u"X"_qs, u".ini"_qs, u"X.ini"_qs, u"X.ini"_qs},
        {"an empty value", QString(), u"a.txt"_qs, u"a.txt"_qs, u"a.txt"_qs},
        {"a folder, which has no extension", u"X"_qs, u"my.dir/"_qs, u"Xmy.dir"_qs, u"my.dirX"_qs},
        {"a case token, not honoured here", u"$Upper_Case$"_qs, u"a"_qs, u"$Upper_Case$a"_qs,
         u"a$Upper_Case$"_qs},
        {"a file's own data", u"$foldername$"_qs, u"a.b"_qs, u"holidaya.b"_qs, u"aholiday.b"_qs},
        {"a date that can't be read", u"$mod_yyyy$"_qs, u"a.b"_qs, u"a.b"_qs, u"a.b"_qs},
    };
    for (const auto& row : rows) {
        options.prefix.cmbPrefix.combo = options.suffix.cmbSuffix.combo = row.value;
        EXPECT_EQ(NewName(ActionKind::Prefix, row.before), row.prefixed) << row.what;
        EXPECT_EQ(NewName(ActionKind::Suffix, row.before), row.suffixed) << row.what;
    }
    actions::ValueControls& suffix = options.suffix.cmbSuffix;
    suffix.combo = u"$Counter$"_qs;
    suffix.counter.text[actions::CounterBlock::Prefix] = u"_"_qs;
    EXPECT_EQ(NewNames(ActionKind::Suffix, {u"a.txt"_qs, u"b"_qs}),
              (QStringList{u"a_001.txt"_qs, u"b_002"_qs}));
}

TEST_F(AdditionActions, InsertFindsItsPlaceInFiveModes)
{
    const struct
    {
        int mode;
        QString position, sought, second;
        bool matchCase;
        QString before, after;
    } rows[] = {
        {0, u"1"_qs, {}, {}, false, u"abc.txt"_qs, u"Xabc.txt"_qs},
        {0, u"3"_qs, {}, {}, false, u"abc.txt"_qs, u"abXc.txt"_qs},
        {0, u"100"_qs, {}, {}, false, u"abc.txt"_qs, u"abcX.txt"_qs},
        {0, u"2"_qs, {}, {}, false, u"\U0001F600\U0001F600b"_qs, u"\U0001F600X\U0001F600b"_qs},
        {0, u"0"_qs, {}, {}, false, u"abc.txt"_qs, u"abc.txt"_qs},
        {0, u"-1"_qs, {}, {}, false, u"abc.txt"_qs, u"abc.txt"_qs},
        {1, u"1"_qs, {}, {}, false, u"abc.txt"_qs, u"abcX.txt"_qs},
        {1, u"2"_qs, {}, {}, false, u"abc.txt"_qs, u"abXc.txt"_qs},
        {1, u"100"_qs, {}, {}, false, u"abc.txt"_qs, u"Xabc.txt"_qs},
        {1, u"0"_qs, {}, {}, false, u"abc.txt"_qs, u"abc.txt"_qs},
        {2, u"1"_qs, u"B"_qs, {}, false, u"abcb"_qs, u"aXbcb"_qs},
        {2, u"1"_qs, u"B"_qs, {}, true, u"abc"_qs, u"abc"_qs},
        {2, u"1"_qs, u"\u00c9"_qs, {}, false, u"\U0001F600a\u00e9"_qs, u"\U0001F600aX\u00e9"_qs},
        {2, u"1"_qs, u"a"_qs, {}, false, u"abca"_qs, u"abca"_qs}, // opens the name: no place before it
        {2, u"1"_qs, {}, {}, false, u"abc"_qs, u"abc"_qs},
        {3, u"1"_qs, u"c"_qs, {}, false, u"abc.c"_qs, u"abcX.c"_qs},
        {3, u"1"_qs, u"AB"_qs, {}, false, u"abc"_qs, u"abXc"_qs},
        {3, u"1"_qs, u"AB"_qs, {}, true, u"abc"_qs, u"abc"_qs},
        {3, u"1"_qs, {}, {}, false, u"abc"_qs, u"abc"_qs},
        {4, u"1"_qs, u"a"_qs, u"b"_qs, false, u"abc.txt"_qs, u"aXbc.txt"_qs},
        {4, u"1"_qs, u"A"_qs, u"b"_qs, true, u"abc"_qs, u"abc"_qs},
        {4, u"1"_qs, u"a"_qs, u"c"_qs, false, u"abc"_qs, u"abc"_qs},      // not side by side
        {4, u"1"_qs, u"a"_qs, u"XY"_qs, false, u"aXYb"_qs, u"aXYb"_qs},   // "X" is lost and added
        {4, u"1"_qs, u"a"_qs, u"bcd"_qs, false, u"abcde"_qs, u"aXde"_qs}, // the tail's first two are lost
        {4, u"1"_qs, u"b"_qs, {}, false, u"abc"_qs, u"abXbc"_qs},         // the first string's end twice
        {4, u"x"_qs, u"a"_qs, u"b"_qs, false, u"abc"_qs, u"abc"_qs},      // the hidden position must convert
    };
    for (const auto& row : rows) {
        auto& insert = options.insert;
        insert.cmbInsert = actions::InsertOptions::Modes().at(row.mode);
        insert.Text38 = row.position;
        insert.Text43 = insert.Text44 = row.sought;
        insert.Text45 = row.second;
        insert.Check1 = row.mode == 4 && row.matchCase;
        insert.Check2 = row.mode != 4 && row.matchCase;
        insert.cmbInsertS.combo = u"X"_qs;
        EXPECT_EQ(NewName(ActionKind::Insert, row.before), row.after)
            << row.mode << " with " << row.sought.toStdString() << " in " << row.before.toStdString();
    }
}

TEST_F(AdditionActions, InsertsCounterStepsAlsoWhereNoPlaceIsFound)
{
    options.insert.cmbInsert = u"Before Existing String"_qs;
    options.insert.cmbInsertS.combo = u"$Counter$"_qs;
    const QStringList names{u"xa"_qs, u"x"_qs, u"ba"_qs};
    EXPECT_EQ(NewNames(ActionKind::Insert, names), (QStringList{u"x001a"_qs, u"x"_qs, u"b003a"_qs}));
    options.insert.cmbInsert = u"Anywhere"_qs;
    EXPECT_EQ(NewNames(ActionKind::Insert, names), names);
    EXPECT_EQ(Number(ActionKind::Insert), 4);
    options.insert.Text38 = u"x"_qs;
    NewNames(ActionKind::Insert, names);
    EXPECT_EQ(Number(ActionKind::Insert), 1);
}

} // namespace

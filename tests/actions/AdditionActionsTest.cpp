// SPDX-License-Identifier: MIT
#include "actions/OneAction.h"
#include "support/Words.h"

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
    // Per mode: position or string sought, second string, match case, name, new name.
    const QString tables[] = {
        u"1 ~ n abc.txt Xabc.txt   3 ~ n abc.txt abXc.txt   100 ~ n abc.txt abcX.txt   0 ~ n abc.txt abc.txt "
        u"-1 ~ n abc.txt abc.txt   2 ~ n \U0001F600\U0001F600b \U0001F600X\U0001F600b"_qs,
        u"1 ~ n abc.txt abcX.txt   2 ~ n abc.txt abXc.txt   100 ~ n abc.txt Xabc.txt   0 ~ n abc.txt abc.txt "
        u"3 ~ n \U0001F600\U0001F600b \U0001F600X\U0001F600b"_qs,
        // What opens the name has no place before it.
        u"B ~ n abcb aXbcb   B ~ y abc abc   \u00c9 ~ n \U0001F600a\u00e9 \U0001F600aX\u00e9 "
        u"a ~ n abca abca   ~ ~ n abc abc"_qs,
        u"c ~ n abc.c abcX.c   AB ~ n abc abXc   AB ~ y abc abc   ~ ~ n abc abc"_qs,
        // The two must stand side by side. A second string of n characters costs the tail its first n - 1; an
        // empty one doubles the first string's end.
        u"A b y abc abc   a c n abc abc   a XY n aXYb aXYb   a bcd n abcde aXde   b ~ n abc abXbc "
        u"a b n abc.txt aXbc.txt"_qs};
    auto& insert = options.insert;
    insert.cmbInsertS.combo = u"X"_qs;
    for (int mode = 0; mode < 5; ++mode) {
        for (const QStringList& row : testing_support::Rows(5, tables[mode])) {
            insert.cmbInsert = actions::InsertOptions::Modes().at(mode);
            insert.Text38 = mode < 2 ? row[0] : u"1"_qs;
            insert.Text43 = insert.Text44 = row[0];
            insert.Text45 = row[1];
            insert.Check1 = mode == 4 && row[2] == u"y";
            insert.Check2 = mode != 4 && row[2] == u"y";
            EXPECT_EQ(NewName(ActionKind::Insert, row[3]), row[4]) << mode << row.join(u' ').toStdString();
        }
    }
    insert.Text38 = u"x"_qs;
    EXPECT_EQ(NewName(ActionKind::Insert, u"abc.txt"_qs), u"abc.txt"_qs)
        << "the hidden position must convert";
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

// SPDX-License-Identifier: MIT
#include "actions/OneAction.h"
#include "support/Words.h"

namespace {

using ListActions = actions_tests::OneAction;
using actions::ReplaceRows;
using model::ActionKind;
using testing_support::Words;

// "n a b, y c d": two rows of match flag, from and to.
ReplaceRows ListOf(const QString& table)
{
    ReplaceRows rows;
    for (const QStringList& row : testing_support::Rows(3, QString(table).remove(u','))) {
        rows.push_back({row[0], row[1], row[2]});
    }
    return rows;
}

TEST_F(ListActions, ReplaceRunsItsRowsInSequence)
{
    const struct
    {
        const char* what;
        QString list, before, after;
    } rows[] = {
        {"later rows see what earlier ones wrote", u"n a b, n b c"_qs, u"aa"_qs, u"cc"_qs},
        {"any case unless the flag is y", u"~ AB\u00c9 -"_qs, u"ab\u00e9.ab\u00e9"_qs, u"-.ab\u00e9"_qs},
        {"a capital Y is no y", u"Y AB -"_qs, u"abAB"_qs, u"--"_qs},
        {"y matches case", u"y AB -"_qs, u"abAB"_qs, u"ab-"_qs},
        {"case tokens take the row's text", u"n abc $Upper_Case$"_qs, u"abcAbc"_qs, u"ABCABC"_qs},
        {"counters count hits", u"n x $Counter$"_qs, u"xax a x"_qs, u"001a001 a 002"_qs},
        {"an empty text is nowhere", u"n ~ $Counter$, n a $Counter$"_qs, u"a"_qs, u"001"_qs},
        {"missing data undoes earlier rows", u"n a b, n c $Exif_Make"_qs, u"ac a"_qs, u"ac b"_qs},
        {"no value of its own: the last row's", u"n a x, n b $mod_yymmdd$"_qs, u"ab b.c"_qs, u"xx .c"_qs},
        {"whole characters", u"n \xDE00 x, n \xDC80 y"_qs, u"\U0001F600\xDC80"_qs, u"\U0001F600y"_qs},
        {"a folder's dot", u"n . -"_qs, u"my.dir/ a.b.c"_qs, u"my-dir a-b.c"_qs},
    };
    for (const auto& row : rows) {
        options.replace.ReplaceList = ListOf(row.list);
        EXPECT_EQ(NewNames(ActionKind::Replace, Words(row.before)), Words(row.after)) << row.what;
    }
}

TEST_F(ListActions, ReplaceTellsWhatFailedForEachFile)
{
    options.replace.ReplaceList = ListOf(u"n a ~"_qs);
    host.Announce(u"error"_qs, QString());
    EXPECT_EQ(NewNames(ActionKind::Replace, Words(u"aa a.c"_qs)), Words(u"aa .c"_qs));

    options.replace.ReplaceList = ListOf(u"n a $Counter$"_qs);
    options.replace.txtReplaceC.text[actions::CounterBlock::WithStep] = u"x"_qs;
    for (int file = 0; file < 2; ++file) {
        host.Announce(u"error"_qs, u"Type mismatch"_qs);
    }
    EXPECT_EQ(NewNames(ActionKind::Replace, Words(u"a b aa"_qs)), Words(u"a b aa"_qs));

    options.replace.ReplaceList.assign(500, {u"n"_qs, u"b"_qs, u"bb"_qs}); // doubles each time
    host.Announce(u"error"_qs, u"Out of string space"_qs);
    EXPECT_EQ(NewName(ActionKind::Replace, u"abc"_qs), u"abc"_qs);
    options.compose.cmbCompose.counter.text[actions::CounterBlock::PadTo] = u"32767"_qs;
    options.compose.lstCompose = QStringList(1000, u"$Counter$"_qs);
    EXPECT_EQ(NewName(ActionKind::Compose, u"abc"_qs), u"abc"_qs);
}

TEST_F(ListActions, ExtensionChangesOneExtension)
{
    using E = actions::ExtensionOptions;
    const struct
    {
        const char* what;
        E::Change change;
        QString values; // those of the list, or "=" and the one for all
        QString before, after;
    } rows[] = {
        {"upper case of the last one", E::Option42, u""_qs, u"a.tar.gz"_qs, u"a.tar.GZ"_qs},
        {"lower case", E::Option41, u""_qs, u"A.TXT"_qs, u"A.txt"_qs},
        {"inverted case", E::Option40, u""_qs, u"a.Tx\u00e9"_qs, u"a.tX\u00e9"_qs},
        {"one value for all", E::Option43, u"=bak"_qs, u"a.txt .ini"_qs, u"a.bak .bak"_qs},
        {"an empty value leaves a dot", E::Option43, u"="_qs, u"a.txt"_qs, u"a."_qs},
        {"nothing to change, no step", E::Option43, u"=$Counter$"_qs, u"A a. my.dir/ a.b"_qs,
         u"A a. my.dir a.001"_qs},
        {"missing data", E::Option43, u"=$Exif_Make"_qs, u"a.txt"_qs, u"a.txt"_qs},
        {"a list on the running text", E::Option43, u"n HTM x, n xl $Rand$_#"_qs, u"a.html b.c"_qs,
         u"a.0 b.c"_qs},
        {"missing data in a list", E::Option43, u"n t $Exif_Make"_qs, u"a.txt"_qs, u"a.txt"_qs},
        {"an emptied extension", E::Option43, u"y txt ~"_qs, u"a.txt a.TXT"_qs, u"a. a.TXT"_qs},
        {"an empty from steps", E::Option43, u"n ~ $Counter$, n b $Counter$"_qs, u"a.c a.b"_qs,
         u"a.c a.003"_qs},
    };
    for (const auto& row : rows) {
        const bool isForAll = row.values.startsWith(u'=');
        options.extension.change = actions::OptionGroup(row.change);
        options.extension.ReplaceAllExtensions = isForAll;
        options.extension.ExtensionAllValue = isForAll ? row.values.mid(1) : u"unused"_qs;
        options.extension.ExtReplaceList = isForAll ? ReplaceRows() : ListOf(row.values);
        EXPECT_EQ(NewNames(ActionKind::Extension, Words(row.before)), Words(row.after)) << row.what;
    }
    options.extension.txtExtC.text[actions::CounterBlock::PadTo] = u"40000"_qs;
    host.Announce(u"error"_qs, u"Overflow"_qs);
    EXPECT_EQ(NewName(ActionKind::Extension, u"a.b"_qs), u"a.b"_qs);
}

TEST_F(ListActions, ComposeBuildsANewBase)
{
    const struct
    {
        const char* what;
        QString elements, before, after;
    } rows[] = {
        {"literals and tokens", u"IMG_ $Counter$"_qs, u"a.jpg b.c.jpg"_qs, u"IMG_001.jpg IMG_002.jpg"_qs},
        {"two counters are one", u"$Counter$ - $Counter$"_qs, u"a b"_qs, u"001-002 003-004"_qs},
        {"no elements", {}, u"a.jpg a"_qs, u".jpg a"_qs},
        {"missing data adds nothing", u"x $MP3_ID3_Title $Exif_Make"_qs, u"a.txt"_qs, u"x.txt"_qs},
        {"two draws", u"$Random$_## $Random$_AA"_qs, u"a"_qs, u"09AZ"_qs},
        {"an element without a value of its own", u"x $mod_yymmdd$"_qs, u"a"_qs, u"xx"_qs},
    };
    for (const auto& row : rows) {
        options.compose.lstCompose = Words(row.elements);
        EXPECT_EQ(NewNames(ActionKind::Compose, Words(row.before)), Words(row.after)) << row.what;
    }
    options.compose.lstCompose = Words(u"$Counter$ $AlphaCounter$"_qs);
    options.compose.cmbCompose.letters.text[actions::AlphaCounterBlock::PadTo] = u"x"_qs;
    EXPECT_EQ(NewNames(ActionKind::Compose, Words(u"a b"_qs)), Words(u"a b"_qs));
    EXPECT_EQ(Number(ActionKind::Compose), 3) << "the elements before a failing one have stepped";
}

} // namespace

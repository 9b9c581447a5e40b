// SPDX-License-Identifier: MIT
#include "actions/TokenExpander.h"

#include "actions/OneAction.h"
#include "model/ActionError.h"
#include "support/Words.h"

#include <QLocale>

namespace {

using namespace actions;
using model::ActionKind;
using testing_support::Rows;

const QDateTime Modified(QDate(2009, 5, 4), QTime(7, 8, 9)); // a Monday; the clock stands on a Saturday

// One file, and what a value makes of it.
class Tokens : public actions_tests::OneAction
{
protected:
    Tokens()
    {
        states.Reset({});
        random.sequence = {0};
    }

    QString Value(const QString& text, ActionKind kind = ActionKind::ReplaceAll, const QString& previous = {})
    {
        TokenExpander expander(text, kind, {counter, letters, u"x#"_qs},
                               {states, clock, random, host, lengths});
        return expander.Expand(file, u"a\u00c9"_qs, previous).value_or(u"(leaves the name)"_qs);
    }

    model::NameContext file{{}, Modified.toSecsSinceEpoch(), 1536, u"holiday"_qs, {}, {}, {}, nullptr};
    CounterBlock counter;
    AlphaCounterBlock letters;
};

// Day `number` of the system's week.
QString DayName(int number)
{
    const QLocale system = QLocale::system();
    return system.standaloneDayName((system.firstDayOfWeek() + number - 2) % 7 + 1);
}

TEST_F(Tokens, DatesAndTimes)
{
    // Words, and what they write of the clock's moment and of the file's.
    auto rows =
        Rows(3, u"hour 23 7   min 22 8   sec 59 9   yyyy 2026 2009   yy 26 09   mm 11 5   dd 14 4 "
                u"weekday 7 2   hhmmss 232259 070809   hh_mm_ss 23_22_59 07_08_09 "
                u"date 14.11.2026 04.05.2009   mmddyy 111426 050409   ddmmyy 141126 040509 "
                u"mmddyyyy 11142026 05042009   ddmmyyyy 14112026 04052009   yyyymmdd 20261114 20090504 "
                u"mm_dd_yy 11_14_26 05_04_09   dd_mm_yy 14_11_26 04_05_09   yy_mm_dd 26_11_14 09_05_04 "
                u"mm_dd_yyyy 11_14_2026 05_04_2009   dd_mm_yyyy 14_11_2026 04_05_2009 "
                u"yyyy_mm_dd 2026_11_14 2009_05_04   yymmdd 261114 (before)"_qs);
    const QLocale system = QLocale::system();
    rows.push_back({u"month"_qs, system.standaloneMonthName(11), system.standaloneMonthName(5)});
    rows.push_back({u"weekday_name"_qs, DayName(7), DayName(2)});
    rows.push_back({u"date_long"_qs, platform::FormatMoment(clock.now, u"long date"_qs),
                    platform::FormatMoment(Modified, u"long date"_qs)});
    rows.push_back({u"time_12hrs"_qs, u"112259_PM"_qs, platform::DefaultTimeText(Modified)});
    rows.push_back(
        {u"time_24hrs"_qs, u"2322"_qs, u"07"_qs + platform::FormatMoment(Modified, u":"_qs) + u"08"_qs});
    for (const QStringList& row : rows) {
        const QString modified = u"$mod_"_qs + row[0] + u'$';
        EXPECT_EQ(Value(u'$' + row[0] + u'$'), row[1]) << row[0].toStdString();
        EXPECT_EQ(Value(modified, ActionKind::Compose, u"(before)"_qs), row[2]) << modified.toStdString();
        EXPECT_EQ(Value(modified, ActionKind::Extension), modified) << "no token in an extension";
    }
    EXPECT_EQ(Value(u"$date$"_qs, ActionKind::Replace), u"141126"_qs);
    EXPECT_EQ(Value(u"$mod_date$"_qs, ActionKind::Replace), u"04.05.2009"_qs);
    clock.now = clock.now.addDays(1);
    EXPECT_EQ(Value(u"$dd$"_qs), u"15"_qs) << "the moment is read anew";
    EXPECT_EQ(Value(u"$weekday$"_qs), u"1"_qs) << "a Sunday";
}

TEST_F(Tokens, AFileWithoutADateFailsWhereTheDateIsDue)
{
    file.modified.reset();
    EXPECT_THROW(Value(u"$mod_yyyy$"_qs), model::ActionError);
    EXPECT_THROW(Value(u"$mod_time_12hrs$"_qs), model::ActionError);
    EXPECT_THROW(Value(u"$date_modified$"_qs, ActionKind::Replace), model::ActionError);
    EXPECT_EQ(Value(u"$mod_yymmdd$"_qs, ActionKind::Replace, u"before"_qs), u"before"_qs);
    EXPECT_EQ(Value(u"$mod_yymmdd$"_qs), QString());
}

TEST_F(Tokens, Sizes)
{
    for (const QStringList& size :
         Rows(3, u"0 B 0B   9999999 B 9999999B   12345678 B 1.234568E+07B "
                 u"0 KB 0KB   1280 KB 1.2KB   1792 KB 1.8KB   1310720 MB 1.2MB"_qs)) {
        file.size = size[0].toFloat();
        EXPECT_EQ(Value(u"$filesize"_qs + size[1] + u'$'), size[2]);
    }
}

TEST_F(Tokens, EachActionHonoursItsOwn)
{
    // Tokens, their values, and the groups of actions that honour them; "~" is a blank.
    const auto rows =
        Rows(3, u"$yyyy$ 2026 OACL   $filesizeB$ 1536B OACL   $foldername$ holiday OACL "
                u"$Upper_Case$ A\u00c9 OL   $Lower_Case$ a\u00e9 OL   $Invert_Case$ A\u00c9 OL "
                u"$Counter$ 001 OACLE   $AlphaCounter$ 00A OACLE   $Random~String$ x0 OA "
                u"$Random$_## 00 C   <$Random$_#> <0> C   $Rand$_## 00 LE   <$Rand$_#> <0> LE "
                u"$date_modified$ 05042009 L   $time_modified$ 070809 L   My~$Counter$ 1 - "
                u"$Counter$~ 1 -   $counter$ 1 -   $YYYY$ 1 -   $random$_# 1 -   $mod_date_modified$ 1 - "
                u"$current_date$ 1 -   $modified_time$ 1 -   $Exif~Data$ 1 -   $MP3~Data$ 1 -   $ 1 -"_qs);
    const std::pair<ActionKind, QChar> kinds[] = {
        {ActionKind::ReplaceFirst, u'O'}, {ActionKind::ReplaceMid, u'O'}, {ActionKind::ReplaceLast, u'O'},
        {ActionKind::ReplaceAll, u'O'},   {ActionKind::Insert, u'A'},     {ActionKind::Suffix, u'A'},
        {ActionKind::Prefix, u'A'},       {ActionKind::Compose, u'C'},    {ActionKind::Replace, u'L'},
        {ActionKind::Extension, u'E'}};
    for (const auto& [kind, group] : kinds) {
        for (const QStringList& row : rows) {
            EXPECT_EQ(Value(row[0], kind), row[2].contains(group) ? row[1] : row[0])
                << row[0].toStdString() << " in " << NameOf(kind).toStdString();
        }
        EXPECT_EQ(Value({}, kind), QString());
        EXPECT_EQ(Value(u"$Counter$"_qs, kind), u"002"_qs) << "each action counts for itself";
        EXPECT_EQ(Value(u"$AlphaCounter$"_qs, kind), u"00B"_qs);
    }
}

} // namespace

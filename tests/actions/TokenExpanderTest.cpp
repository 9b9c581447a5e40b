// SPDX-License-Identifier: MIT
#include "actions/TokenExpander.h"

#include "model/ActionError.h"
#include "support/FixedPorts.h"
#include "support/Printers.h"

#include <QLocale>

#include <gtest/gtest.h>

namespace {

using namespace actions;
using model::ActionKind;

const QDateTime Modified(QDate(2009, 5, 4), QTime(7, 8, 9)); // a Monday; the clock stands on a Saturday

// One file, and what a value makes of it.
class Tokens : public testing::Test
{
protected:
    Tokens()
    {
        row.modified = Modified.toSecsSinceEpoch();
        row.size = 1536;
        row.folder = u"holiday"_qs;
        states.Reset({});
    }

    QString Value(const QString& text, ActionKind kind = ActionKind::ReplaceAll, const QString& previous = {})
    {
        TokenExpander expander(text, kind, {counter, letters, u"x#"_qs}, {states, clock, random});
        return expander.Expand(row, u"a\u00c9"_qs, previous).value_or(u"(leaves the name)"_qs);
    }

    model::NameContext row;
    CounterBlock counter;
    AlphaCounterBlock letters;
    CounterStates states;
    testing_support::FixedClock clock;
    testing_support::FixedRandom random;
};

// Day `number` of the system's week.
QString DayName(int number)
{
    const QLocale system = QLocale::system();
    return system.standaloneDayName((system.firstDayOfWeek() + number - 2) % 7 + 1);
}

TEST_F(Tokens, DatesAndTimes)
{
    const QString colon = platform::FormatMoment(Modified, u":"_qs);
    const struct
    {
        QString word, current, modified;
    } rows[] = {
        {u"hour"_qs, u"23"_qs, u"7"_qs},
        {u"min"_qs, u"22"_qs, u"8"_qs},
        {u"sec"_qs, u"59"_qs, u"9"_qs},
        {u"yyyy"_qs, u"2026"_qs, u"2009"_qs},
        {u"yy"_qs, u"26"_qs, u"09"_qs},
        {u"mm"_qs, u"11"_qs, u"5"_qs},
        {u"month"_qs, QLocale::system().standaloneMonthName(11), QLocale::system().standaloneMonthName(5)},
        {u"dd"_qs, u"14"_qs, u"4"_qs},
        {u"weekday"_qs, u"7"_qs, u"2"_qs},
        {u"weekday_name"_qs, DayName(7), DayName(2)},
        {u"hhmmss"_qs, u"232259"_qs, u"070809"_qs},
        {u"hh_mm_ss"_qs, u"23_22_59"_qs, u"07_08_09"_qs},
        {u"time_12hrs"_qs, u"112259_PM"_qs, platform::DefaultTimeText(Modified)},
        {u"time_24hrs"_qs, u"2322"_qs, u"07"_qs + colon + u"08"_qs},
        {u"date"_qs, u"14.11.2026"_qs, u"04.05.2009"_qs},
        {u"date_long"_qs, platform::FormatMoment(clock.now, u"long date"_qs),
         platform::FormatMoment(Modified, u"long date"_qs)},
        {u"mmddyy"_qs, u"111426"_qs, u"050409"_qs},
        {u"ddmmyy"_qs, u"141126"_qs, u"040509"_qs},
        {u"yymmdd"_qs, u"261114"_qs, u"(before)"_qs}, // the modified form sets no value
        {u"mmddyyyy"_qs, u"11142026"_qs, u"05042009"_qs},
        {u"ddmmyyyy"_qs, u"14112026"_qs, u"04052009"_qs},
        {u"yyyymmdd"_qs, u"20261114"_qs, u"20090504"_qs},
        {u"mm_dd_yy"_qs, u"11_14_26"_qs, u"05_04_09"_qs},
        {u"dd_mm_yy"_qs, u"14_11_26"_qs, u"04_05_09"_qs},
        {u"yy_mm_dd"_qs, u"26_11_14"_qs, u"09_05_04"_qs},
        {u"mm_dd_yyyy"_qs, u"11_14_2026"_qs, u"05_04_2009"_qs},
        {u"dd_mm_yyyy"_qs, u"14_11_2026"_qs, u"04_05_2009"_qs},
        {u"yyyy_mm_dd"_qs, u"2026_11_14"_qs, u"2009_05_04"_qs},
    };
    for (const auto& token : rows) {
        const QString current = u'$' + token.word + u'$';
        const QString modified = u"$mod_"_qs + token.word + u'$';
        EXPECT_EQ(Value(current), token.current) << current.toStdString();
        EXPECT_EQ(Value(modified, ActionKind::Compose, u"(before)"_qs), token.modified)
            << modified.toStdString();
        EXPECT_EQ(Value(modified, ActionKind::Extension), modified) << "no token in an extension";
    }
    EXPECT_EQ(Value(u"$date$"_qs, ActionKind::Replace), u"141126"_qs);
    EXPECT_EQ(Value(u"$mod_date$"_qs, ActionKind::Replace), u"04.05.2009"_qs);
    clock.now = clock.now.addDays(1);
    EXPECT_EQ(Value(u"$dd$"_qs), u"15"_qs) << "the moment is read anew";
}

TEST_F(Tokens, AFileWithoutADateFailsWhereTheDateIsDue)
{
    row.modified.reset();
    EXPECT_THROW(Value(u"$mod_yyyy$"_qs), model::ActionError);
    EXPECT_THROW(Value(u"$mod_time_12hrs$"_qs), model::ActionError);
    EXPECT_THROW(Value(u"$date_modified$"_qs, ActionKind::Replace), model::ActionError);
    EXPECT_EQ(Value(u"$mod_yymmdd$"_qs, ActionKind::Replace, u"before"_qs), u"before"_qs);
    EXPECT_EQ(Value(u"$mod_yymmdd$"_qs), QString());
}

TEST_F(Tokens, Sizes)
{
    const struct
    {
        float size;
        QString token, value;
    } rows[] = {
        {0, u"$filesizeB$"_qs, u"0B"_qs},           {9999999, u"$filesizeB$"_qs, u"9999999B"_qs},
        {1e7F, u"$filesizeB$"_qs, u"1E+07B"_qs},    {12345678, u"$filesizeB$"_qs, u"1.234568E+07B"_qs},
        {0, u"$filesizeKB$"_qs, u"0KB"_qs},         {1024, u"$filesizeKB$"_qs, u"1KB"_qs},
        {1280, u"$filesizeKB$"_qs, u"1.2KB"_qs},    {1792, u"$filesizeKB$"_qs, u"1.8KB"_qs},
        {1536, u"$filesizeKB$"_qs, u"1.5KB"_qs},    {1310720, u"$filesizeMB$"_qs, u"1.2MB"_qs},
        {1572864, u"$filesizeMB$"_qs, u"1.5MB"_qs},
    };
    for (const auto& file : rows) {
        row.size = file.size;
        EXPECT_EQ(Value(file.token), file.value);
    }
}

TEST_F(Tokens, EachActionHonoursItsOwn)
{
    enum Honours { Overwrites = 1, Additions = 2, Composed = 4, Lists = 8, Extensions = 16 };
    constexpr int all = Overwrites | Additions | Composed | Lists | Extensions;
    constexpr int allNames = all & ~Extensions;
    const struct
    {
        QString text, value;
        int by;
    } rows[] = {
        {u"$yyyy$"_qs, u"2026"_qs, allNames},
        {u"$filesizeB$"_qs, u"1536B"_qs, allNames},
        {u"$foldername$"_qs, u"holiday"_qs, allNames},
        {u"$Upper_Case$"_qs, u"A\u00c9"_qs, Overwrites | Lists},
        {u"$Lower_Case$"_qs, u"a\u00e9"_qs, Overwrites | Lists},
        {u"$Invert_Case$"_qs, u"A\u00c9"_qs, Overwrites | Lists},
        {u"$Counter$"_qs, u"001"_qs, all},
        {u"$AlphaCounter$"_qs, u"00A"_qs, all},
        {u"$Random String$"_qs, u"x0"_qs, Overwrites | Additions},
        {u"$Random$_##"_qs, u"00"_qs, Composed},
        {u"<$Random$_#>"_qs, u"<0>"_qs, Composed},
        {u"$Rand$_##"_qs, u"00"_qs, Lists | Extensions},
        {u"<$Rand$_#>"_qs, u"<0>"_qs, Lists | Extensions},
        {u"$date_modified$"_qs, u"05042009"_qs, Lists},
        {u"$time_modified$"_qs, u"070809"_qs, Lists},
        // What only looks like a token.
        {u"My $Counter$"_qs, {}, 0},
        {u"$Counter$ "_qs, {}, 0},
        {u"$counter$"_qs, {}, 0},
        {u"$YYYY$"_qs, {}, 0},
        {u"$random$_#"_qs, {}, 0},
        {u"$mod_date_modified$"_qs, {}, 0},
        {u"$current_date$"_qs, {}, 0},
        {u"$modified_time$"_qs, {}, 0},
        {u"$Exif Data$"_qs, {}, 0},
        {u"$MP3 Data$"_qs, {}, 0},
        {u"$"_qs, {}, 0},
        {u""_qs, {}, 0},
    };
    const std::pair<ActionKind, Honours> kinds[] = {
        {ActionKind::ReplaceFirst, Overwrites}, {ActionKind::ReplaceMid, Overwrites},
        {ActionKind::ReplaceLast, Overwrites},  {ActionKind::ReplaceAll, Overwrites},
        {ActionKind::Insert, Additions},        {ActionKind::Suffix, Additions},
        {ActionKind::Prefix, Additions},        {ActionKind::Compose, Composed},
        {ActionKind::Replace, Lists},           {ActionKind::Extension, Extensions},
    };
    for (const auto& token : rows) {
        for (const auto& [kind, honours] : kinds) {
            states.Reset({});
            EXPECT_EQ(Value(token.text, kind), token.by & honours ? token.value : token.text)
                << token.text.toStdString() << " in " << NameOf(kind).toStdString();
        }
    }
}

TEST_F(Tokens, CountersStepOnceAFile)
{
    EXPECT_EQ(Value(u"$Counter$"_qs), u"001"_qs);
    EXPECT_EQ(Value(u"$Counter$"_qs), u"002"_qs);
    EXPECT_EQ(Value(u"$Counter$"_qs, ActionKind::Insert), u"001"_qs) << "each action counts for itself";
    EXPECT_EQ(Value(u"$AlphaCounter$"_qs), u"00A"_qs);
    EXPECT_EQ(Value(u"$AlphaCounter$"_qs), u"00B"_qs);
}

} // namespace

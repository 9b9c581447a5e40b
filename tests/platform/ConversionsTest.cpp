// SPDX-License-Identifier: MIT
#include "platform/Conversions.h"

#include "support/Printers.h"

#include <QLocale>

#include <ctime>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace platform;

namespace {

QString Int16(const QString& text)
{
    const auto result = ToInt16(text);
    return result.value ? QString::number(*result.value) : DescriptionOf(result.fault);
}

QString Boolean(const QString& text)
{
    const auto value = ToBoolean(text);
    return value ? BooleanText(*value) : QString();
}

QString Single(const QString& text)
{
    return SingleText(text.toFloat());
}

QString Kilobytes(const QString& text)
{
    return RoundedQuotientText(text.toFloat(), 1024);
}

// A moment read and written where the clock skips 02:00 to 03:00 on 2024/03/10, and midnight on 2018/11/04.
QString Moment(const QString& text)
{
    const QByteArray before = qgetenv("TZ");
    qputenv("TZ", text.startsWith(u"2018") ? "ABC3DEF,M11.1.0/0,M2.3.0/0" : "EST5EDT,M3.2.0,M11.1.0");
    ::tzset();
    const auto moment = ToMoment(text);
    const QString shown = moment ? FormatMoment(*moment, u"yyyy/mm/dd hh_mm_ss"_s) : QString();
    before.isNull() ? qunsetenv("TZ") : qputenv("TZ", before);
    ::tzset();
    return shown;
}

TEST(Conversions, ReadTextsOrRefuseThem)
{
    const QString many(100'000, u'9');
    // A conversion, and "result = text|text; result = text".
    const std::pair<QString (*)(const QString&), QString> rows[] = {
        {Int16, u"7 = 7| 7 |+7|007; 5 = 5.|5.0|5.4|4.6; 0 = -0|-.5|5E-1|1e-400; 100 = 1e2|1E+2|.1e3"_s},
        {Int16, u"0 = .5|0.5; 2 = 1.5|2.5; -4 = -3.5|-4.5"_s}, // halves go to the even neighbour
        {Int16, u"255 = &HFF| &hff |&H00fF; 32767 = 32767|32767.4|&H7FFF; -32768 = -32768|-32768.5"_s},
        {Int16, u"Overflow = 32767.5|-32769|&HFFFF|1e400|-1e400|"_s + many + u"|&H"_s + many},
        {Int16, u"Type mismatch = |  |.|+|1e|e5|&H|&HG|-&H1|0x1|1 2|- 1|--1|1,000|1,5|1x|nan|inf"_s},
        {Int16, u"Type mismatch = 7\0|\t7|7\n|\u0663|\uFF17|7\xDCFF|"_s + many + u'x'},
        {Boolean, u"True = True| tRUE |1|-1|.5|1e400|70000|&H1; False = False| FALSE|0|-0.0| 0 |&H0"_s},
        {Boolean, u" = | |Yes|True1|Tru|True\n|\t0|1,0"_s},
        {Single, u"0 = 0; -12.5 = -12.5; 0.3333333 = 0.33333334; 0.0001 = 1e-4; 1E-05 = 1e-5"_s},
        {Single, u"9999999 = 9999999; 1E+07 = 1e7; 1.234568E-05 = 1.23456781e-5; 1.401298E-45 = 1e-45"_s},
        {Single, u"1000001 = 1000000.5; -1000003 = -1000002.5"_s}, // halves go away from zero
        {Kilobytes, u"0 = 0|51; 0.1 = 52; 1024 = 1048575; 9.765625E+08 = 1e12"_s},
        {Kilobytes, u"1.2 = 1280; 1.5 = 1536; 1.8 = 1792"_s}, // halves go to the even neighbour
        {Moment, u"2024/02/09 05_03_04 = 2024/02/09 05:03:04|2024/2/9 5:03:04"_s},
        {Moment, u"2024/02/29 00_00_00 = 2024/02/29; 2018/11/04 01_00_00 = 2018/11/04"_s},
        {Moment, u"2024/03/10 03_30_00 = 2024/03/10 02:30:00|2024/03/10 03:30:00"_s},
        {Moment, u" = |2023/02/29|2024/13/01|2024/00/10|2024-02-29|24/02/29|0000/01/01|2024/02/29 "_s},
        {Moment, u" = 2024/02/29 24:00:00|2024/02/29 12:60:00|2024/02/29 12:00|2024/02/29T12:00:00"_s},
    };
    for (const auto& [convert, results] : rows) {
        for (const QString& result : results.split(u"; "_s)) {
            for (const QString& text : result.section(u" = "_s, 1).split(u'|')) {
                EXPECT_EQ(convert(text), result.section(u" = "_s, 0, 0)) << qPrintable(text.left(20));
            }
        }
    }
}

TEST(Conversions, WriteMomentsInTheLanguageOfTheSystem)
{
    const QLocale locale = QLocale::system();
    const QDate day(2005, 3, 9);
    EXPECT_EQ(ModifiedText(QDateTime(day, {3, 4, 5}).toSecsSinceEpoch()), u"2005/03/09 03:04:05"_s);
    const std::tuple<int, QString, QString> rows[] = {
        {23, u"hhmmss_AM/PM"_s, u"110507_PM"_s},
        {0, u"hh-AM/PM"_s, u"12-AM"_s},
        {12, u"AM/PM hh"_s, u"PM 12"_s},
        {13, u"mm_dd_yyyy hh yy-mm-ddhhmm"_s, u"03_09_2005 13 05-03-091305"_s},
        {0, u"hh_mm_ss hh mm"_s, u"00_05_07 00 03"_s}, // not directly behind the hours: the month
        {13, u"Y d \U0001F600 (long date)"_s, u"Y d \U0001F600 (%1)"_s.arg(locale.toString(day))},
    };
    for (const auto& [hour, format, text] : rows) {
        EXPECT_EQ(FormatMoment(QDateTime(day, {hour, 5, 7}), format), text) << qPrintable(format);
    }
    const QDateTime moment(day, {4, 5, 6}, Qt::UTC);
    const QString time = DefaultTimeText(moment), separated = FormatMoment(moment, u"hh:mm"_s);
    for (const int part : {4, 5, 6}) {
        EXPECT_TRUE(time.contains(locale.toString(part))) << qPrintable(time);
    }
    EXPECT_FALSE(time.contains(u"UTC") || time.contains(u'[') || time.contains(u'(') || time.contains(u','));
    EXPECT_TRUE(separated.startsWith(u"04"_s) && separated.endsWith(u"05"_s) && separated.size() > 4);
}

} // namespace

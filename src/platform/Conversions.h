// SPDX-License-Identifier: MIT
//
// The runtime's conversions between text and numbers, booleans and moments. Number boxes, document lines and
// name tokens all convert here, so that they agree on what a number or a date looks like. Pure functions;
// those that depend on the locale use QLocale::system().
#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

namespace platform {

// Why a text gave no number. The describing texts are "Type mismatch" and "Overflow".
enum class ConversionFault { TypeMismatch, Overflow };

QString DescriptionOf(ConversionFault fault);

// A 16-bit integer, or why there is none.
struct Int16Result
{
    std::optional<qint16> value;
    ConversionFault fault = ConversionFault::TypeMismatch; // meaningful only without a value
};

// Reads a 16-bit integer: blanks around, a sign, decimal digits with a fraction ("." always; rounded, halves
// to the even neighbour: "2.5" is 2), an exponent ("1e2"), or hexadecimal digits behind "&H". Anything else
// and an empty text are a type mismatch; values outside -32768 to 32767 overflow.
Int16Result ToInt16(const QString& text);

// Reads a boolean: "True" or "False" in any case with blanks around, or a number in ToInt16's notation but of
// any size, where 0 is false and the rest true. Empty optional for anything else.
std::optional<bool> ToBoolean(const QString& text);

// "True" or "False".
QString BooleanText(bool value);

// The number that a whole text holds, in ToInt16's notation but of any size, rounded nowhere; a hexadecimal
// one without its sign. Empty optional if it isn't numeric.
std::optional<double> ToNumber(const QString& text);

// The longest number at a text's start, blanks before it passed over: a sign, digits with a fraction, an
// exponent. 0 if there is none. LeadingNumber("12KB") is 12.
double LeadingNumber(const QString& text);

// Default text of a single-precision number: up to seven significant digits (halves away from zero), no
// trailing zeros, "." as separator; from 10,000,000 on, and below 0.0001, scientific like "1.234568E+07" or
// "1E-05".
QString SingleText(float value);

// The same of a double-precision number: up to fifteen significant digits, scientific from 1E+15 on.
QString DoubleText(double value);

// A number with that many digits behind its point, rounded with halves away from zero after its fifteenth
// digit: FixedText(0.25, 1) is "0.3". At least one digit stands in front of the point.
QString FixedText(double value, int decimals);

// The shortest text that reads back as the same single-precision number: "799.9371", "1e+20".
QString ShortestSingleText(float value);

// `value` divided by `divisor`, a power of two, rounded to one decimal with ties to even, as SingleText
// writes it. RoundedQuotientText(1536, 1024) is "1.5".
QString RoundedQuotientText(float value, int divisor);

// A file's time in the local zone, as it is set when the program starts. Its fields are those of the local
// clock; unlike QDateTime's own conversion it asks the disk for nothing, which a long list would feel.
QDateTime LocalMoment(qint64 secondsSinceEpoch);

// The text of a file's time in the local zone: "yyyy/MM/dd hh:mm:ss". What ToMoment reads back.
QString ModifiedText(qint64 secondsSinceEpoch);

// A moment on a clock without a zone.
struct ClockReading
{
    QDate date;
    QTime time;
};

// Reads "yyyy/MM/dd", alone (midnight) or followed by a blank and "hh:mm:ss"; one-digit months, days and
// hours are taken too. Empty optional for anything else and for dates that don't exist.
std::optional<ClockReading> ToClockReading(const QString& text);

// The same in the local zone; a time that the change to summer time skips is moved on by as much.
std::optional<QDateTime> ToMoment(const QString& text);

// Writes a moment by a format of these words; any other character stands for itself:
//   yyyy yy       year in four digits, the last two of it
//   mm            month in two digits; minutes if it directly follows "hh", "hh_" or "hh:"
//   dd hh ss      day, hour (00 to 23), second, two digits each
//   AM/PM         AM or PM, and the hours count on the 12-hour clock, where 0 and 12 read 12
//   :             the system's separator of hours and minutes
//   long date     the system's long date
// FormatMoment(23:22:59 of some day, "hhmmss_AM/PM") is "112259_PM".
QString FormatMoment(const QDateTime& moment, const QString& format);

// The system's default text of the time of day: hours, minutes and seconds, without a zone.
QString DefaultTimeText(const QDateTime& moment);

// Full name of the month, 1 to 12, in the form that stands alone.
QString MonthName(int month);

// Number of the day in a week that begins with Sunday: 1 to 7.
int SundayBasedWeekday(const QDate& date);

// Full name of day `number`, 1 to 7, of the system's week, whose first day is the system's setting. So where
// the week begins with Monday, number 1 is Monday's name, although SundayBasedWeekday counts Sunday as 1.
// Names built from both have always come out that way.
QString WeekdayNameOfSystemWeek(int number);

} // namespace platform

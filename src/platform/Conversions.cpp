// SPDX-License-Identifier: MIT
#include "platform/Conversions.h"

#include <QLocale>
#include <QRegularExpression>

#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <ctime>
#include <limits>
#include <string>
#include <string_view>

namespace platform {

namespace {

// The system's separator of hours and minutes.
QString TimeSeparator()
{
    static const QRegularExpression between(QStringLiteral("[hH]+((?:'[^']*'|[^hHm'])+)m"));
    const auto match = between.match(QLocale::system().timeFormat(QLocale::ShortFormat));
    return match.hasMatch() ? match.captured(1).remove(u'\'') : QStringLiteral(":");
}

QString TwoDigits(int number)
{
    return QString::number(number).rightJustified(2, u'0');
}

int HourOnTheClock(int hour, bool isTwelveHourClock)
{
    if (!isTwelveHourClock) {
        return hour;
    }
    return hour % 12 == 0 ? 12 : hour % 12;
}

// One word of a format at `rest`, and what it writes.
struct FormatWord
{
    qsizetype length = 1;
    QString value;
};

FormatWord WordAt(const QString& format, qsizetype at, const QDateTime& moment, bool isTwelveHourClock)
{
    const QStringView rest = QStringView(format).sliced(at);
    const QStringView before = QStringView(format).first(at);
    const QDate date = moment.date();
    const QTime time = moment.time();
    if (rest.startsWith(u"long date")) {
        return {9, QLocale::system().toString(date, QLocale::LongFormat)};
    }
    if (rest.startsWith(u"AM/PM")) {
        return {5, time.hour() < 12 ? QStringLiteral("AM") : QStringLiteral("PM")};
    }
    if (rest.startsWith(u"yyyy")) {
        return {4, QString::number(date.year()).rightJustified(4, u'0')};
    }
    if (rest.startsWith(u"yy")) {
        return {2, TwoDigits(date.year() % 100)};
    }
    if (rest.startsWith(u"mm")) {
        const bool isMinute = before.endsWith(u"hh") || before.endsWith(u"hh_") || before.endsWith(u"hh:");
        return {2, TwoDigits(isMinute ? time.minute() : date.month())};
    }
    if (rest.startsWith(u"dd")) {
        return {2, TwoDigits(date.day())};
    }
    if (rest.startsWith(u"hh")) {
        return {2, TwoDigits(HourOnTheClock(time.hour(), isTwelveHourClock))};
    }
    if (rest.startsWith(u"ss")) {
        return {2, TwoDigits(time.second())};
    }
    if (rest.startsWith(u':')) {
        return {1, TimeSeparator()};
    }
    return {1, rest.first(1).toString()};
}

constexpr int SingleDigits = 7;
constexpr int DoubleDigits = 15;

// A positive number as its first digits and its decimal exponent: 1.25 is "125", 0.
struct Scientific
{
    std::string digits;
    int exponent;
};

// Leaves the first `count` digits, rounded with halves away from zero. With a count below 0 nothing is left.
void Round(Scientific& number, int count)
{
    if (count >= static_cast<int>(number.digits.size())) {
        return;
    }
    const bool isUp = count >= 0 && number.digits[static_cast<std::size_t>(count)] >= '5';
    number.digits.resize(static_cast<std::size_t>(std::max(count, 0)));
    int at = count - 1;
    while (isUp && at >= 0 && number.digits[static_cast<std::size_t>(at)] == '9') {
        number.digits[static_cast<std::size_t>(at--)] = '0';
    }
    if (isUp && at >= 0) {
        ++number.digits[static_cast<std::size_t>(at)];
    } else if (isUp) { // all nines, or none
        number.digits.insert(0, 1, '1');
        ++number.exponent;
    }
}

Scientific ToScientific(double value, int digits)
{
    // A float has at most 112 significant decimal digits, so this is its exact value; of a double it is
    // enough to round 15 digits.
    std::array<char, 160> text{};
    const auto end = std::to_chars(text.begin(), text.end(), value, std::chars_format::scientific, 120).ptr;
    const std::string_view exact(text.begin(), static_cast<std::size_t>(end - text.begin()));
    const std::size_t e = exact.find('e');
    Scientific result{std::string(exact.substr(0, e)), std::stoi(std::string(exact.substr(e + 1)))};
    result.digits.erase(1, 1); // the point
    Round(result, digits);
    result.digits.resize(static_cast<std::size_t>(digits)); // all nines have become one more
    return result;
}

// A number's default text with that many significant digits.
QString DefaultText(double value, int significantDigits)
{
    if (value == 0.0) {
        return QStringLiteral("0");
    }
    if (!std::isfinite(value)) {
        return QString::number(value); // no file size comes to that
    }
    constexpr double shortWhole = 1'000'000; // which every number of digits tells
    if (std::fabs(value) < shortWhole && value == std::trunc(value)) {
        return QString::number(static_cast<int>(value));
    }
    const Scientific number = ToScientific(std::fabs(value), significantDigits);
    QString digits = QString::fromStdString(number.digits);
    while (digits.size() > 1 && digits.endsWith(u'0')) {
        digits.chop(1);
    }
    const int exponent = number.exponent;
    QString text;
    if (exponent >= significantDigits || exponent < -4) {
        text = digits.first(1) + (digits.size() > 1 ? u'.' + digits.mid(1) : QString()) +
               (exponent < 0 ? QStringLiteral("E-") : QStringLiteral("E+")) + TwoDigits(std::abs(exponent));
    } else if (exponent < 0) {
        text = QStringLiteral("0.") + QString(-exponent - 1, u'0') + digits;
    } else {
        text = digits.leftJustified(exponent + 1, u'0');
        if (text.size() > exponent + 1) {
            text.insert(exponent + 1, u'.');
        }
    }
    return value < 0 ? u'-' + text : text;
}

} // namespace

QString DescriptionOf(ConversionFault fault)
{
    return fault == ConversionFault::Overflow ? QStringLiteral("Overflow") : QStringLiteral("Type mismatch");
}

Int16Result ToInt16(const QString& text)
{
    const auto number = ToNumber(text);
    if (!number) {
        return {std::nullopt, ConversionFault::TypeMismatch};
    }
    const double rounded = std::nearbyint(*number); // halves to even
    if (rounded < std::numeric_limits<qint16>::min() || rounded > std::numeric_limits<qint16>::max()) {
        return {std::nullopt, ConversionFault::Overflow};
    }
    return {static_cast<qint16>(rounded), {}};
}

std::optional<bool> ToBoolean(const QString& text)
{
    static const QRegularExpression word(
        QRegularExpression::anchoredPattern(QStringLiteral(" *(?:(true)|false) *")),
        QRegularExpression::CaseInsensitiveOption);
    if (const auto match = word.match(text); match.hasMatch()) {
        return match.hasCaptured(1);
    }
    const auto number = ToNumber(text);
    return number ? std::optional(*number != 0.0) : std::nullopt;
}

QString BooleanText(bool value)
{
    return value ? QStringLiteral("True") : QStringLiteral("False");
}

std::optional<double> ToNumber(const QString& text)
{
    static const QRegularExpression decimal(QRegularExpression::anchoredPattern(
        QStringLiteral(R"( *([+-]?(?:[0-9]+(?:\.[0-9]*)?|\.[0-9]+)(?:[eE][+-]?[0-9]+)?) *)")));
    static const QRegularExpression hexadecimal(
        QRegularExpression::anchoredPattern(QStringLiteral(R"( *&[hH]([0-9a-fA-F]+) *)")));
    if (const auto match = decimal.match(text); match.hasMatch()) {
        // A number too big for a double comes back as infinity, one too small as 0.
        return QLocale::c().toDouble(match.capturedView(1));
    }
    if (const auto match = hexadecimal.match(text); match.hasMatch()) {
        double number = 0;
        for (const QChar digit : match.captured(1)) {
            number = number * 16 + QString(digit).toInt(nullptr, 16);
        }
        return number;
    }
    return std::nullopt;
}

double LeadingNumber(const QString& text)
{
    static const QRegularExpression number(
        QStringLiteral(R"(^[ \t]*([+-]?(?:[0-9]+(?:\.[0-9]*)?|\.[0-9]+)(?:[eE][+-]?[0-9]+)?))"));
    return QLocale::c().toDouble(number.match(text).capturedView(1));
}

QString ShortestSingleText(float value)
{
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.begin(), text.end(), value).ptr;
    return QString::fromLatin1(text.data(), end - text.data());
}

QString SingleText(float value)
{
    return DefaultText(static_cast<double>(value), SingleDigits);
}

QString DoubleText(double value)
{
    return DefaultText(value, DoubleDigits);
}

QString FixedText(double value, int decimals)
{
    if (value == 0.0 || !std::isfinite(value)) {
        return QString::number(value, 'f', decimals);
    }
    Scientific number = ToScientific(std::fabs(value), DoubleDigits);
    Round(number, number.exponent + 1 + decimals);
    if (number.digits.empty()) {
        return FixedText(0.0, decimals);
    }
    // The digits from the units on, whether the number has them or not.
    QString digits = QString::fromStdString(number.digits);
    digits = QString(std::max(-number.exponent, 0), u'0') + digits;
    const int units = std::max(number.exponent, 0) + 1;
    digits = digits.leftJustified(units + decimals, u'0', true);
    if (decimals > 0) {
        digits.insert(units, u'.');
    }
    return value < 0 ? u'-' + digits : digits;
}

QString RoundedQuotientText(float value, int divisor)
{
    // Exact: the quotient has the float's 24 bits, ten times it has 28.
    const double tenths = std::nearbyint(static_cast<double>(value) / divisor * 10.0);
    return SingleText(static_cast<float>(tenths / 10.0));
}

QDateTime LocalMoment(qint64 secondsSinceEpoch)
{
    [[maybe_unused]] static const bool isZoneRead = (tzset(), true);
    const auto seconds = static_cast<std::time_t>(secondsSinceEpoch);
    std::tm local{};
    if (!localtime_r(&seconds, &local)) {
        return QDateTime::fromSecsSinceEpoch(secondsSinceEpoch); // a year past all clocks
    }
    return QDateTime::fromSecsSinceEpoch(secondsSinceEpoch, Qt::OffsetFromUTC,
                                         static_cast<int>(local.tm_gmtoff));
}

QString ModifiedText(qint64 secondsSinceEpoch)
{
    return LocalMoment(secondsSinceEpoch).toString(QStringLiteral("yyyy/MM/dd HH:mm:ss"));
}

std::optional<ClockReading> ToClockReading(const QString& text)
{
    static const QRegularExpression form(QRegularExpression::anchoredPattern(
        QStringLiteral(R"(([0-9]{3,4})/([0-9]{1,2})/([0-9]{1,2})(?: ([0-9]{1,2}):([0-9]{2}):([0-9]{2}))?)")));
    const auto match = form.match(text);
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    const auto part = [&match](int group) {
        return match.captured(group).toInt();
    };
    const QDate date(part(1), part(2), part(3));
    const QTime time(part(4), part(5), part(6)); // groups that took no part read 0
    const bool isReal = date.isValid() && time.isValid() && date.year() >= 100;
    return isReal ? std::optional(ClockReading{date, time}) : std::nullopt;
}

std::optional<QDateTime> ToMoment(const QString& text)
{
    const auto reading = ToClockReading(text);
    if (!reading) {
        return std::nullopt;
    }
    const auto& [date, time] = *reading;
    const QDateTime moment(date, time);
    // A time that summer time skips: a whole day after the same time of the day before, which exists.
    return moment.isValid() ? moment : QDateTime(date.addDays(-1), time).addDuration(std::chrono::hours(24));
}

QString FormatMoment(const QDateTime& moment, const QString& format)
{
    const bool isTwelveHourClock = format.contains(QStringLiteral("AM/PM"));
    QString text;
    for (qsizetype at = 0; at < format.size();) {
        const FormatWord word = WordAt(format, at, moment, isTwelveHourClock);
        text += word.value;
        at += word.length;
    }
    return text;
}

QString DefaultTimeText(const QDateTime& moment)
{
    // With what sets it off from the time: "t", "(t)", "[t]", ", t". A "t" between quotes is a plain letter.
    static const QRegularExpression zone(
        QStringLiteral(R"([\s,]*[(\[]?t+[)\]]?\s*(?=(?:[^']*'[^']*')*[^']*$))"));
    QString pattern = QLocale::system().timeFormat(QLocale::LongFormat);
    return QLocale::system().toString(moment.time(), pattern.remove(zone));
}

QString MonthName(int month)
{
    return QLocale::system().standaloneMonthName(month, QLocale::LongFormat);
}

int SundayBasedWeekday(const QDate& date)
{
    return date.dayOfWeek() % 7 + 1;
}

QString WeekdayNameOfSystemWeek(int number)
{
    const int first = QLocale::system().firstDayOfWeek(); // Monday is 1
    return QLocale::system().standaloneDayName((first + number - 2) % 7 + 1, QLocale::LongFormat);
}

} // namespace platform

// SPDX-License-Identifier: MIT
#include "fileview/SortKeys.h"

#include "fileview/ColHeader.h"
#include "model/Text.h"
#include "platform/Conversions.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <numeric>

namespace fileview {

namespace {

constexpr int WholeDigits = 10;
constexpr int Decimals = 20;
constexpr int AssumedExtension = 4; // a dot and three letters

bool IsDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

// At least ten digits, a point, twenty digits; a "-" before a negative number.
QString NumberByMask(double number)
{
    std::array<char, 400> text{}; // the greatest double has 309 digits before the point
    const auto end =
        std::to_chars(text.begin(), text.end(), std::fabs(number), std::chars_format::fixed, Decimals).ptr;
    const QString digits = QString::fromLatin1(text.data(), end - text.data());
    return (number < 0 ? QStringLiteral("-") : QString()) +
           digits.rightJustified(WholeDigits + 1 + Decimals, u'0');
}

// Turns the order of digits round: the greater a number, the smaller its complement.
QString Complement(QString digits)
{
    for (QChar& c : digits) {
        if (IsDigit(c)) {
            c = QChar(u'0' + u'9' - c.unicode());
        }
    }
    return digits;
}

QString NumberKey(QString text)
{
    if (const auto number = platform::ToNumber(text)) {
        // "&" sorts before the digits.
        return *number >= 0 ? NumberByMask(*number) : u'&' + Complement(NumberByMask(-*number));
    }
    return NumberByMask(platform::LeadingNumber(text.remove(u',')));
}

QString DateKey(const platform::ClockReading& reading)
{
    return reading.date.toString(QStringLiteral("yyyyMMdd")) +
           reading.time.toString(QStringLiteral("HHmmss"));
}

// A name without its last four characters, taken apart.
struct NumberedName
{
    QString text;
    QString digits;      // the number at its end, without leading zeros
    qsizetype width = 0; // digits that the name has there
};

NumberedName TakeApart(const QString& name)
{
    const QString base = model::Left(name, model::Length(name) - AssumedExtension);
    qsizetype at = base.size();
    while (at > 0 && IsDigit(base.at(at - 1))) {
        --at;
    }
    QString digits = base.mid(at);
    while (digits.size() > 1 && digits.startsWith(u'0')) {
        digits.remove(0, 1);
    }
    return {base.left(at), digits, base.size() - at};
}

} // namespace

std::vector<QString> KeysOf(const std::vector<QString>& texts, int dataType)
{
    std::vector<QString> keys;
    keys.reserve(texts.size());
    platform::ClockReading last{QDate(1899, 12, 30), QTime(0, 0)}; // the date of number 0
    for (const QString& text : texts) {
        switch (dataType) {
        case ldtNumber:
            keys.push_back(NumberKey(text));
            break;
        case ldtDateTime:
            last = platform::ToClockReading(text).value_or(last);
            keys.push_back(DateKey(last));
            break;
        default:
            keys.push_back(model::LowerCase(text));
        }
    }
    return keys;
}

std::vector<QString> MagnitudeKeysOf(const std::vector<QString>& names)
{
    std::vector<NumberedName> parts(names.size());
    qsizetype width = 0;
    for (std::size_t row = 0; row < names.size(); ++row) {
        if (model::Length(names[row]) >= AssumedExtension) {
            parts[row] = TakeApart(names[row]);
            width = row == 0 ? 0 : std::max(width, parts[row].width);
        }
    }
    std::vector<QString> keys;
    keys.reserve(names.size());
    for (std::size_t row = 0; row < names.size(); ++row) {
        const auto& [text, digits, ownWidth] = parts[row];
        const bool isTooShort = model::Length(names[row]) < AssumedExtension;
        const QString number = digits.isEmpty() ? digits : digits.rightJustified(width, u'0');
        keys.push_back(model::LowerCase(isTooShort ? names[row] : text + number));
    }
    return keys;
}

std::vector<int> OrderOf(const std::vector<QString>& keys, bool ascending)
{
    std::vector<int> order(keys.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&keys, ascending](int left, int right) {
        const QString& leftKey = keys[static_cast<std::size_t>(left)];
        const QString& rightKey = keys[static_cast<std::size_t>(right)];
        return ascending ? leftKey < rightKey : rightKey < leftKey;
    });
    return order;
}

} // namespace fileview

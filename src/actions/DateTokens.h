// SPDX-License-Identifier: MIT
//
// The date and time tokens as data: $yyyy$, $mod_yyyy$ and their like.
#pragma once

#include "model/ActionKind.h"

#include <QDateTime>
#include <QString>

#include <optional>

namespace actions {

// How a date token writes its moment.
enum class DateForm {
    Hour, // this and the next ones: plain numbers, no leading zero
    Minute,
    Second,
    Year,
    Month,
    Day,
    Weekday,   // Sunday is 1
    YearOfTwo, // the last two digits of the year
    MonthName, // full names
    WeekdayName,
    DefaultTime, // the system's default text of the time
    Format,      // by a format
    None,        // recognised, and sets no value at all
};

struct DateToken
{
    enum class Base { CurrentMoment, Modified, Picture };

    Base base = Base::CurrentMoment;
    DateForm form = DateForm::Format;
    QString format; // for DateForm::Format, see platform::FormatMoment
};

// The date token that is exactly `text`, if actions of `kind` honour one.
std::optional<DateToken> DateTokenOf(const QString& text, model::ActionKind kind);

// The token that is exactly `word` where it counts from a picture's date: several write two digits there that
// are plain numbers elsewhere, and "$min$" is the month.
std::optional<DateToken> PictureDateTokenOf(const QString& word);

// The token's value for a moment. REQUIRES: the form isn't None.
QString DateText(const DateToken& token, const QDateTime& moment);

} // namespace actions

// SPDX-License-Identifier: MIT
#include "actions/DateTokens.h"

#include "platform/Conversions.h"

#include <QHash>

namespace actions {

namespace {

// One word of the date tokens: $word$ writes the current moment, $mod_word$ the file's date.
struct DateWord
{
    const char16_t* word;
    DateForm current;
    const char16_t* currentFormat;
    DateForm modified;
    const char16_t* modifiedFormat;
};

constexpr DateWord Plain(const char16_t* word, DateForm form)
{
    return {word, form, u"", form, u""};
}

constexpr DateWord Formatted(const char16_t* word, const char16_t* format)
{
    return {word, DateForm::Format, format, DateForm::Format, format};
}

constexpr DateWord Words[] = {
    Plain(u"hour", DateForm::Hour),
    Plain(u"min", DateForm::Minute),
    Plain(u"sec", DateForm::Second),
    Plain(u"yyyy", DateForm::Year),
    Plain(u"yy", DateForm::YearOfTwo),
    Plain(u"mm", DateForm::Month),
    Plain(u"month", DateForm::MonthName),
    Plain(u"dd", DateForm::Day),
    Plain(u"weekday", DateForm::Weekday),
    Plain(u"weekday_name", DateForm::WeekdayName),
    Formatted(u"hhmmss", u"hhmmss"),
    Formatted(u"hh_mm_ss", u"hh_mm_ss"),
    {u"time_12hrs", DateForm::Format, u"hhmmss_AM/PM", DateForm::DefaultTime, u""},
    {u"time_24hrs", DateForm::Format, u"hhmm", DateForm::Format, u"hh:mm"},
    Formatted(u"date", u"dd.mm.yyyy"),
    Formatted(u"date_long", u"long date"),
    Formatted(u"mmddyy", u"mmddyy"),
    Formatted(u"ddmmyy", u"ddmmyy"),
    // The modified form is known and sets no value: what stood there before remains.
    {u"yymmdd", DateForm::Format, u"yymmdd", DateForm::None, u""},
    Formatted(u"mmddyyyy", u"mmddyyyy"),
    Formatted(u"ddmmyyyy", u"ddmmyyyy"),
    Formatted(u"yyyymmdd", u"yyyymmdd"),
    Formatted(u"mm_dd_yy", u"mm_dd_yy"),
    Formatted(u"dd_mm_yy", u"dd_mm_yy"),
    Formatted(u"yy_mm_dd", u"yy_mm_dd"),
    Formatted(u"mm_dd_yyyy", u"mm_dd_yyyy"),
    Formatted(u"dd_mm_yyyy", u"dd_mm_yyyy"),
    Formatted(u"yyyy_mm_dd", u"yyyy_mm_dd"),
};

using Dictionary = QHash<QString, DateToken>;

Dictionary BuildDictionary()
{
    Dictionary dictionary;
    for (const DateWord& entry : Words) {
        const QString word = QString::fromUtf16(entry.word);
        dictionary.insert(u'$' + word + u'$', {DateToken::Base::CurrentMoment, entry.current,
                                               QString::fromUtf16(entry.currentFormat)});
        dictionary.insert(QStringLiteral("$mod_") + word + u'$', {DateToken::Base::Modified, entry.modified,
                                                                  QString::fromUtf16(entry.modifiedFormat)});
    }
    return dictionary;
}

// The Replace action writes $date$ in its own way and knows two more.
Dictionary BuildDictionaryOfReplace()
{
    Dictionary dictionary = BuildDictionary();
    const auto set = [&dictionary](const QString& token, DateToken::Base base, const QString& format) {
        dictionary.insert(token, {base, DateForm::Format, format});
    };
    set(QStringLiteral("$date$"), DateToken::Base::CurrentMoment, QStringLiteral("ddmmyy"));
    set(QStringLiteral("$date_modified$"), DateToken::Base::Modified, QStringLiteral("mmddyyyy"));
    set(QStringLiteral("$time_modified$"), DateToken::Base::Modified, QStringLiteral("hhmmss"));
    return dictionary;
}

Dictionary BuildDictionaryOfPictures()
{
    Dictionary dictionary;
    for (const DateWord& entry : Words) {
        dictionary.insert(u'$' + QString::fromUtf16(entry.word) + u'$',
                          {DateToken::Base::Picture, entry.current, QString::fromUtf16(entry.currentFormat)});
    }
    // "mm" standing alone is the month, also for "$min$".
    for (const auto& [word, format] :
         {std::pair(u"$hour$", u"hh"), std::pair(u"$min$", u"mm"), std::pair(u"$sec$", u"ss"),
          std::pair(u"$yyyy$", u"yyyy"), std::pair(u"$yy$", u"yy"), std::pair(u"$mm$", u"mm")}) {
        dictionary.insert(QString::fromUtf16(word),
                          {DateToken::Base::Picture, DateForm::Format, QString::fromUtf16(format)});
    }
    return dictionary;
}

} // namespace

std::optional<DateToken> PictureDateTokenOf(const QString& word)
{
    static const Dictionary dictionary = BuildDictionaryOfPictures();
    const auto found = dictionary.constFind(word);
    return found == dictionary.cend() ? std::nullopt : std::optional(*found);
}

std::optional<DateToken> DateTokenOf(const QString& text, model::ActionKind kind)
{
    static const Dictionary dictionary = BuildDictionary();
    static const Dictionary dictionaryOfReplace = BuildDictionaryOfReplace();
    if (kind == model::ActionKind::Extension) {
        return std::nullopt;
    }
    const Dictionary& known = kind == model::ActionKind::Replace ? dictionaryOfReplace : dictionary;
    const auto found = known.constFind(text);
    return found == known.cend() ? std::nullopt : std::optional(*found);
}

QString DateText(const DateToken& token, const QDateTime& moment)
{
    const QDate date = moment.date();
    const QTime time = moment.time();
    switch (token.form) {
    case DateForm::Hour:
        return QString::number(time.hour());
    case DateForm::Minute:
        return QString::number(time.minute());
    case DateForm::Second:
        return QString::number(time.second());
    case DateForm::Year:
        return QString::number(date.year());
    case DateForm::Month:
        return QString::number(date.month());
    case DateForm::Day:
        return QString::number(date.day());
    case DateForm::Weekday:
        return QString::number(platform::SundayBasedWeekday(date));
    case DateForm::YearOfTwo:
        return platform::FormatMoment(moment, QStringLiteral("yy"));
    case DateForm::MonthName:
        return platform::MonthName(date.month());
    case DateForm::WeekdayName:
        return platform::WeekdayNameOfSystemWeek(platform::SundayBasedWeekday(date));
    case DateForm::DefaultTime:
        return platform::DefaultTimeText(moment);
    case DateForm::Format:
        return platform::FormatMoment(moment, token.format);
    case DateForm::None:
        break;
    }
    return {};
}

} // namespace actions

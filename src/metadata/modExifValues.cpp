// SPDX-License-Identifier: MIT
//
// The inspector's texts of values.
#include "metadata/ModExifTables.h"
#include "metadata/modExif.h"
#include "platform/Conversions.h"
#include "platform/TextFile.h"

#include <QLocale>
#include <QRegularExpression>

#include <cmath>
#include <cstring>

namespace metadata {

namespace {

enum Format {
    Byte = 1,
    Ascii = 2,
    Short = 3,
    Long = 4,
    Rational = 5,
    SByte = 6,
    Undefined = 7,
    SShort = 8,
    SLong = 9,
    SRational = 10,
    Float = 11,
    Double = 12,
};

enum Tag {
    InteroperabilityIdentification = 0x0001,
    ComponentConfiguration = 0x9101,
    ManufacturerNotes = 0x927C,
    UserComments = 0x9286,
    CfaPattern = 0xA302,
};

constexpr double GreatestLong = 2'147'483'647;

// A number in the computer's own order; bytes that aren't there are 0.
template<class Number>
Number InMemoryOrder(QByteArrayView bytes)
{
    Number number = 0;
    std::memcpy(&number, bytes.data(),
                std::min<std::size_t>(sizeof number, static_cast<std::size_t>(bytes.size())));
    return number;
}

// A date in the system's short form, its year in four digits or two, which are those from 1930 to 2029.
QDate ShortDate(const QString& text)
{
    const QLocale system = QLocale::system();
    const QString form = system.dateFormat(QLocale::ShortFormat);
    const QString twoDigits = QString(form).replace(QStringLiteral("yyyy"), QStringLiteral("yy"));
    const QString fourDigits = QString(twoDigits).replace(QStringLiteral("yy"), QStringLiteral("yyyy"));
    if (const QDate date = system.toDate(text, fourDigits); date.isValid()) {
        return date;
    }
    constexpr int firstYear = 1930;
    const QDate date = system.toDate(text, twoDigits); // from 1900 to 1999
    return date.isValid() && date.year() < firstYear ? date.addYears(100) : date;
}

// A text that reads as a date is told as a long date, any other as it is.
QString LongDateOr(const QString& text)
{
    const auto reading = platform::ToClockReading(QString(text).replace(u'-', u'/'));
    const QDate date = reading ? reading->date : ShortDate(text);
    return date.isValid() ? QLocale::system().toString(date, QLocale::LongFormat) : text;
}

// Colours and brightness by their numbers, in this order whatever the value's is.
QString ComponentsText(const QString& text)
{
    static constexpr const char* names[] = {"Y ", "Cb ", "Cr ", "R ", "G ", "B "};
    QString found;
    for (int number = 1; number <= 6; ++number) {
        found += text.contains(QString::number(number)) ? QString::fromLatin1(names[number - 1]) : QString();
    }
    return found;
}

// Whatever blanks are around the name of the rules.
QString InteroperabilityText(const QString& text)
{
    static const QRegularExpression blanks(QStringLiteral("^ +| +$"));
    const QString name = QString(text).remove(blanks);
    return name == QStringLiteral("R98")   ? QStringLiteral("Conforming to R98 file specification")
           : name == QStringLiteral("THM") ? QStringLiteral("The file conforming to DCF thumbnail file")
                                           : QString();
}

// Behind the code of the characters, up to a zero.
QString CommentText(const QString& text)
{
    const qsizetype zero = text.indexOf(QChar::Null, 9);
    return text.mid(8, zero < 0 ? -1 : zero - 8);
}

} // namespace

// Negative numbers aren't read as two's complement: so the byte FF is -128.
std::optional<double> modExif::Signed(QByteArrayView bytes, double greatest)
{
    const double number = BytesToNumber(bytes);
    if (number <= greatest) {
        return number;
    }
    if (number > 2 * GreatestLong + 1) {
        return Fail(QStringLiteral("Overflow"));
    }
    return -static_cast<double>(static_cast<quint32>(number) ^ static_cast<quint32>(greatest));
}

std::optional<QString> modExif::Quotient(std::optional<double> numerator, std::optional<double> denominator)
{
    if (!numerator || !denominator) {
        return std::nullopt;
    }
    if (*denominator == 0) {
        return Fail(*numerator == 0 ? QStringLiteral("Overflow") : QStringLiteral("Division by zero"));
    }
    return platform::DoubleText(*numerator / *denominator);
}

std::optional<QString> modExif::FormatTagValue(int format, QByteArrayView bytes)
{
    const QByteArrayView first = bytes.first(std::min<qsizetype>(4, bytes.size()));
    const QByteArrayView second =
        bytes.sliced(first.size(), std::min<qsizetype>(4, bytes.size() - first.size()));
    const auto text = [](std::optional<double> number) {
        return number ? std::optional(platform::DoubleText(*number)) : std::nullopt;
    };
    switch (format) {
    case Byte:
    case Short:
    case Long: { // of several components all digits make one number
        const double number = BytesToNumber(bytes);
        return std::isfinite(number) ? text(number) : Fail(QStringLiteral("Overflow"));
    }
    case Ascii:
    case Undefined:
        return LongDateOr(platform::FromWindows1252(bytes));
    case Rational:
        return Quotient(BytesToNumber(SwapBytes(first)), BytesToNumber(SwapBytes(second)));
    case SByte:
        return text(Signed(bytes, 127));
    case SShort:
        return text(Signed(SwapBytes(bytes), 32'767));
    case SLong:
        return text(Signed(SwapBytes(bytes), GreatestLong));
    case SRational:
        return Quotient(Signed(SwapBytes(first), GreatestLong), Signed(SwapBytes(second), GreatestLong));
    case Float:
        return platform::SingleText(InMemoryOrder<float>(bytes));
    case Double:
        return platform::DoubleText(InMemoryOrder<double>(bytes));
    default:
        return QString();
    }
}

std::optional<QString> modExif::DecodeTagValue(int tag, const QString& text)
{
    QString meaning;
    switch (tag) {
    case InteroperabilityIdentification:
        meaning = InteroperabilityText(text);
        break;
    case ComponentConfiguration:
        meaning = ComponentsText(text);
        break;
    case ManufacturerNotes:
        meaning = text.mid(418, 54);
        break;
    case UserComments:
        meaning = CommentText(text);
        break;
    case CfaPattern:
        meaning = QStringLiteral("Sorry skipping this :(");
        break;
    default:
        if (HasExifMeanings(tag)) {
            const auto number = platform::ToNumber(text);
            if (!number) {
                return Fail(QStringLiteral("Type mismatch"));
            }
            meaning = ExifMeaning(tag, *number);
        }
        break;
    }
    return meaning.isEmpty() ? QStringLiteral("Undefined/Unknown") : meaning;
}

} // namespace metadata

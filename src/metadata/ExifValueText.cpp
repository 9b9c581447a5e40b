// SPDX-License-Identifier: MIT
#include "metadata/ExifValueText.h"

#include "platform/Conversions.h"
#include "platform/TextFile.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>

namespace metadata {

namespace {

enum Format { Ascii = 2, Rational = 5, SByte = 6, Undefined = 7, SShort = 8, SLong = 9, SRational = 10 };

enum Tag {
    XResolution = 282,
    YResolution = 283,
    ExposureTime = 33434,
    FNumber = 33437,
    ExifVersion = 36864,
    ComponentsConfiguration = 37121,
    ShutterSpeedValue = 37377,
    ApertureValue = 37378,
    ExposureBiasValue = 37380,
    MaxApertureValue = 37381,
    SubjectDistance = 37382,
    FocalLength = 37386,
    MakerNote = 37500,
    FlashPixVersion = 40960,
    FocalPlaneXResolution = 41486,
    FocalPlaneYResolution = 41487,
    FileSource = 41728,
    SceneType = 41729,
};

// As text where the bytes are UTF-8, else in the code page of the time.
QString TextOf(std::string_view bytes)
{
    const QByteArrayView view(bytes.data(), static_cast<qsizetype>(bytes.size()));
    QString text = QString::fromUtf8(view);
    return text.contains(QChar::ReplacementCharacter) ? platform::FromWindows1252(view) : text;
}

// The sum of the bytes times powers of 256, in double precision.
std::optional<double> ReadUnsigned(const ExifValue& value, std::size_t position, std::size_t count)
{
    if (count == 4) {
        return value.raw.UInt32(position, value.order);
    }
    const auto part = value.raw.Part(position, count);
    if (!part) {
        return std::nullopt;
    }
    double sum = 0;
    for (std::size_t at = 1; at <= count; ++at) {
        sum = sum * 256 + *part->Byte(value.order == ByteOrder::BigEndian ? at : count + 1 - at);
    }
    return sum;
}

// Negative numbers aren't read as two's complement: their bits below the sign are turned round, so that the
// byte FF is -128 and 80 is -1. Names in use depend on it.
std::optional<double> ReadSigned(const ExifValue& value, std::size_t position, std::size_t count)
{
    const auto number = ReadUnsigned(value, position, count);
    const double half = std::exp2(8.0 * static_cast<double>(count) - 1);
    return number && *number > half - 1 ? half - (*number - half) - half - 1 : number;
}

struct Fraction
{
    double numerator = 0;
    double denominator = 0;
};

std::optional<Fraction> ReadFraction(const ExifValue& value)
{
    const auto read = value.format == SRational ? ReadSigned : ReadUnsigned;
    const auto numerator = read(value, 1, 4);
    const auto denominator = read(value, 5, 4);
    return numerator && denominator ? std::optional(Fraction{*numerator, *denominator}) : std::nullopt;
}

// What a fraction means, with so many decimals.
struct Meaning
{
    double number = 0;
    int decimals = 0;
};

// Nothing for a tag that shows the fraction as it is.
std::optional<Meaning> MeaningOf(const ExifValue& value, double number)
{
    if (value.format == SRational) {
        switch (value.tag) {
        case ShutterSpeedValue:
            return Meaning{std::exp2(number), 0};
        case ExposureBiasValue:
            return Meaning{number, 1};
        default:
            return std::nullopt;
        }
    }
    switch (value.tag) {
    case ExposureTime: // 1/250 of a second is 250
        return Meaning{1 / number, 0};
    case ApertureValue:
    case MaxApertureValue:
        return Meaning{std::pow(std::sqrt(2.0), number), 1};
    case FNumber:
    case XResolution:
    case YResolution:
    case SubjectDistance:
    case FocalLength:
    case FocalPlaneXResolution:
    case FocalPlaneYResolution:
        return Meaning{number, 1};
    default:
        return std::nullopt;
    }
}

bool TakeFraction(const ExifValue& value, double& number)
{
    if (value.components >= 2 && !MeaningOf(value, 1)) {
        return false; // each would be read from four bytes only, which hold no denominator
    }
    const auto fraction = ReadFraction(value);
    if (fraction && fraction->denominator != 0) {
        number = fraction->numerator / fraction->denominator;
    }
    return fraction && std::isfinite(MeaningOf(value, number).value_or(Meaning()).number);
}

QString FractionText(const ExifValue& value, double number)
{
    if (const auto meaning = MeaningOf(value, number)) {
        return platform::FixedText(meaning->number, meaning->decimals);
    }
    const Fraction fraction = ReadFraction(value).value_or(Fraction());
    return platform::DoubleText(fraction.numerator) + u'/' + platform::DoubleText(fraction.denominator);
}

// The first component of a number, floating point numbers as whole ones.
std::optional<double> ReadFirst(const ExifValue& value)
{
    const bool isSigned = value.format == SByte || value.format == SShort || value.format == SLong;
    const auto size = ExifFormatSize(value.format);
    return size ? (isSigned ? ReadSigned : ReadUnsigned)(value, 1, *size) : std::nullopt;
}

QString KeepPrintable(std::string_view bytes)
{
    QString kept;
    for (const char byte : bytes) {
        if (const auto code = static_cast<unsigned char>(byte); code > 31 && code < 128) {
            kept += QLatin1Char(byte);
        }
    }
    return kept;
}

const QStringList& ComponentNames()
{
    static const QStringList names{
        QString(),           QStringLiteral("Y"), QStringLiteral("Cb"), QStringLiteral("Cr"),
        QStringLiteral("R"), QStringLiteral("G"), QStringLiteral("B")};
    return names;
}

QString ComponentsText(const ByteView& raw)
{
    QString text;
    for (std::size_t position = 1; position <= 4; ++position) {
        text += ComponentNames().value(raw.Byte(position).value_or(0));
    }
    return text;
}

// "0210" is "2.10". REQUIRES: there are four bytes or more.
QString VersionText(std::string_view bytes)
{
    return platform::DoubleText(platform::LeadingNumber(TextOf(bytes.substr(0, 2)))) + u'.' +
           TextOf(bytes.substr(bytes.size() - 2));
}

QString UndefinedText(const ExifValue& value)
{
    switch (value.tag) {
    case ExifVersion:
    case FlashPixVersion:
        return VersionText(value.raw.Bytes());
    case MakerNote:
        return KeepPrintable(value.raw.Bytes());
    case ComponentsConfiguration:
        return ComponentsText(value.raw);
    case FileSource:
    case SceneType:
        return QString::number(value.raw.Byte(1).value_or(0));
    default:
        return TextOf(value.raw.Bytes());
    }
}

} // namespace

bool TakeExifValue(const ExifValue& value, double& number)
{
    switch (value.format) {
    case Ascii:
        return true;
    case Rational:
    case SRational:
        return TakeFraction(value, number);
    case Undefined: {
        const std::string_view four = value.raw.Bytes().substr(0, 4);
        return value.tag != ComponentsConfiguration || std::all_of(four.begin(), four.end(), [](char index) {
                   return static_cast<unsigned char>(index) < ComponentNames().size();
               });
    }
    default: {
        const auto size = ExifFormatSize(value.format);
        return size && value.raw.Has(1, *size);
    }
    }
}

QString ExifValueText(const ExifValue& value, double number)
{
    switch (value.format) {
    case Ascii:
        return TextOf(value.raw.Bytes());
    case Rational:
    case SRational:
        return FractionText(value, number);
    case Undefined:
        return UndefinedText(value);
    default:
        return platform::DoubleText(ReadFirst(value).value_or(0));
    }
}

} // namespace metadata

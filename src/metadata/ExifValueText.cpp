// SPDX-License-Identifier: MIT
#include "metadata/ExifValueText.h"

#include "platform/Conversions.h"
#include "platform/TextFile.h"

#include <QStringList>

#include <array>
#include <cmath>

namespace metadata {

namespace {

using Text = std::optional<QString>;

enum Format { Ascii = 2, Rational = 5, SByte = 6, Undefined = 7, SShort = 8, SLong = 9, SRational = 10 };

constexpr std::array<std::uint32_t, 13> FormatSizes{0, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8};

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

// "numerator/denominator". `number` becomes the quotient unless the denominator is 0.
Text ReadFraction(const ExifValue& value, double& number)
{
    const auto read = value.format == SRational ? ReadSigned : ReadUnsigned;
    const auto numerator = read(value, 1, 4);
    const auto denominator = read(value, 5, 4);
    if (!numerator || !denominator) {
        return std::nullopt;
    }
    if (*denominator != 0) {
        number = *numerator / *denominator;
    }
    return platform::DoubleText(*numerator) + u'/' + platform::DoubleText(*denominator);
}

// A number with that many decimals; nothing if it has overflowed.
Text Fixed(double number, int decimals)
{
    return std::isfinite(number) ? Text(platform::FixedText(number, decimals)) : std::nullopt;
}

// Whether a fraction is shown as it is, and not as what it means.
bool IsShownAsFraction(const ExifValue& value)
{
    static constexpr std::array unsignedTags{
        ExposureTime,          ApertureValue,        MaxApertureValue, FNumber,
        XResolution,           YResolution,          SubjectDistance,  FocalLength,
        FocalPlaneXResolution, FocalPlaneYResolution};
    static constexpr std::array signedTags{ShutterSpeedValue, ExposureBiasValue};
    const auto isAmong = [&value](const auto& tags) {
        return std::find(tags.begin(), tags.end(), value.tag) != tags.end();
    };
    return !(value.format == SRational ? isAmong(signedTags) : isAmong(unsignedTags));
}

Text FractionText(const ExifValue& value, double& number)
{
    if (value.components >= 2 && IsShownAsFraction(value)) {
        return std::nullopt; // each would be read from four bytes only, which hold no denominator
    }
    const Text fraction = ReadFraction(value, number);
    if (!fraction) {
        return std::nullopt;
    }
    if (value.format == SRational) {
        switch (value.tag) {
        case ShutterSpeedValue:
            return Fixed(std::exp2(number), 0);
        case ExposureBiasValue:
            return Fixed(number, 1);
        default:
            break;
        }
    } else {
        switch (value.tag) {
        case ExposureTime: // 1/250 of a second is 250
            return Fixed(1 / number, 0);
        case ApertureValue:
        case MaxApertureValue:
            return Fixed(std::pow(std::sqrt(2.0), number), 1);
        case FNumber:
        case XResolution:
        case YResolution:
        case SubjectDistance:
        case FocalLength:
        case FocalPlaneXResolution:
        case FocalPlaneYResolution:
            return Fixed(number, 1);
        default:
            break;
        }
    }
    return fraction;
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

Text ComponentsText(const ByteView& raw)
{
    static const QStringList names{
        QString(),           QStringLiteral("Y"), QStringLiteral("Cb"), QStringLiteral("Cr"),
        QStringLiteral("R"), QStringLiteral("G"), QStringLiteral("B")};
    QString text;
    for (std::size_t position = 1; position <= 4; ++position) {
        const auto index = raw.Byte(position);
        if (!index || *index >= names.size()) {
            return std::nullopt;
        }
        text += names.at(*index);
    }
    return text;
}

// "0210" is "2.10". REQUIRES: there are four bytes or more.
QString VersionText(std::string_view bytes)
{
    return platform::DoubleText(platform::LeadingNumber(TextOf(bytes.substr(0, 2)))) + u'.' +
           TextOf(bytes.substr(bytes.size() - 2));
}

Text UndefinedText(const ExifValue& value)
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
    case SceneType: {
        const auto number = ReadUnsigned(value, 1, 1);
        return number ? Text(platform::DoubleText(*number)) : std::nullopt;
    }
    default:
        return TextOf(value.raw.Bytes());
    }
}

} // namespace

std::optional<std::uint32_t> ExifFormatSize(int format)
{
    const auto index = static_cast<std::size_t>(format);
    return format >= 0 && index < FormatSizes.size() ? std::optional(FormatSizes[index]) : std::nullopt;
}

std::optional<QString> ExifValueText(const ExifValue& value, double& number)
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
        break;
    }
    // Only the first component, and floating point numbers as whole ones.
    const bool isSigned = value.format == SByte || value.format == SShort || value.format == SLong;
    const auto size = ExifFormatSize(value.format);
    const auto first = size ? (isSigned ? ReadSigned : ReadUnsigned)(value, 1, *size) : std::nullopt;
    return first ? Text(platform::DoubleText(*first)) : std::nullopt;
}

} // namespace metadata

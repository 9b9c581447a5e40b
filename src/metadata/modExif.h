// SPDX-License-Identifier: MIT
//
// modExif: the Exif inspector. It walks a JPEG to its first application segment and puts what the main, Exif,
// GPS and Interoperability directories say into lines for a person: a description, " = " and a value. It is a
// library of its own: names of files come from clsEXIF, which reads other things from the same bytes.
//
// It reads numbers in ways of its own, which it tells where it does so, and which are kept. Source: TIFF 6.0,
// section 2; Exif 2.2, section 4.6.
#pragma once

#include "platform/Result.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <optional>
#include <vector>

namespace metadata {

// Which dictionary names the entries of a directory.
enum class IfdKind { Main = 0, Gps = 1, Interoperability = 2 };

struct ExifLine
{
    QString text;
    int tag = 0;
};

class modExif
{
public:
    // Fills the list, which is cleared first. True if every directory was read to its end; each is read once,
    // however many point at it. A file that is refused gives one line that says why, and false. What can't be
    // told (a fraction with the denominator 0, a text where a number is to be, more than 32 MiB of values)
    // and a file that can't be read end it with `failure`.
    bool ParseExifSegment(const QString& path, std::vector<ExifLine>& list, platform::Status& failure);

    // Tag, format and number of components of each entry, in hexadecimal digits. A file with fewer entries
    // than the one before leaves that one's behind its own.
    using Row = std::array<QString, 3>;
    const std::vector<Row>& ExifRows() const { return ExifRows_; }

    // Two digits a byte.
    static QString BytesToHex(QByteArrayView bytes);

    // The number whose hexadecimal digits are those of the bytes, a byte below 16 having one digit only: so
    // 01 05 is 21. 0 for no bytes.
    static double BytesToNumber(QByteArrayView bytes);

    // Bytes of one component of a format; 0 for a format that there isn't.
    static int BytesPerComponent(double format);

    // The bytes with the most significant first.
    QByteArray SwapBytes(QByteArrayView bytes) const;

    // The dictionaries: the description of a tag, given as its two bytes, most significant first; with
    // `decodes` its values have meanings. An unknown tag is "Unknown" in the main dictionary and has no
    // description in the two others.
    static QString ExifTagName(QByteArrayView tag, bool& decodes);
    static QString GpsTagName(QByteArrayView tag, bool& decodes);
    static QString InteropTagName(QByteArrayView tag, bool& decodes);

    // The text of a value, or nothing, with why in Failure().
    std::optional<QString> FormatTagValue(int format, QByteArrayView bytes);

    // What a value's text means; "Undefined/Unknown" if nothing is known. Nothing if it is to be a number and
    // isn't.
    std::optional<QString> DecodeTagValue(int tag, const QString& text);

    const QString& Failure() const { return failure_; }

    void SetMotorola(bool isMotorola) { ExifMotorola_ = isMotorola ? 1 : 0; }

private:
    class IfdPending;

    bool ReadSegment(const QString& path, std::vector<ExifLine>& list);
    bool ReadDirectories(std::vector<ExifLine>& list);
    bool ReadIfd(double offset, IfdKind kind, IfdPending& pending, std::vector<ExifLine>& list);
    bool ReadEntry(QByteArrayView entry, IfdKind kind, IfdPending& pending, std::vector<ExifLine>& list);
    QByteArrayView InBuffer(double offset, double size) const;
    std::optional<double> Signed(QByteArrayView bytes, double greatest);
    std::optional<QString> Quotient(std::optional<double> numerator, std::optional<double> denominator);
    std::nullopt_t Fail(const QString& why);

    QByteArray ExifBuffer_; // from the TIFF header on
    int ExifMotorola_ = 0;  // 1 for big-endian
    std::vector<Row> ExifRows_;
    std::size_t row_ = 0; // the next
    qint64 told_ = 0;     // bytes and characters of values so far
    QString failure_;
};

} // namespace metadata

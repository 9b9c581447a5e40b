// SPDX-License-Identifier: MIT
#include "metadata/modExif.h"

#include "platform/Conversions.h"
#include "platform/FileBytes.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <set>
#include <utility>

namespace metadata {

namespace {

constexpr qsizetype EntrySize = 12;

// Values may overlap, and so may directories: 64 KiB of data could tell far more than fits anywhere.
constexpr qint64 MostTold = 32 << 20;

QString HexText(double number)
{
    return QString::number(static_cast<quint64>(number), 16).toUpper();
}

} // namespace

// The directories that are still to be visited, by their kinds.
class modExif::IfdPending
{
public:
    explicit IfdPending(double first) { visited_.insert({IfdKind::Main, first}); }

    // The place for the offset of a directory with this description; null if that isn't one's.
    double* SlotOf(const QString& description)
    {
        static const std::array names{QStringLiteral("Exif IFD"), QStringLiteral("GPS IFD"),
                                      QStringLiteral("Interoperability IFD")};
        const auto* const found = std::find(names.begin(), names.end(), description);
        return found == names.end() ? nullptr : &offsets_.at(static_cast<std::size_t>(found - names.begin()));
    }

    // The next one that wasn't visited before, or nothing.
    std::optional<std::pair<double, IfdKind>> Next()
    {
        for (std::size_t slot = 0; slot < offsets_.size(); ++slot) {
            const double offset = std::exchange(offsets_.at(slot), 0);
            const auto kind = static_cast<IfdKind>(slot);
            if (offset != 0 && visited_.insert({kind, offset}).second) {
                return std::pair(offset, kind);
            }
        }
        return std::nullopt;
    }

private:
    std::array<double, 3> offsets_{}; // 0 is none
    std::set<std::pair<IfdKind, double>> visited_;
};

QString modExif::BytesToHex(QByteArrayView bytes)
{
    return QString::fromLatin1(bytes.toByteArray().toHex().toUpper());
}

double modExif::BytesToNumber(QByteArrayView bytes)
{
    QByteArray digits("0");
    for (const char byte : bytes) {
        digits += QByteArray::number(static_cast<uchar>(byte), 16);
    }
    double number = 0;
    const auto read = std::from_chars(digits.cbegin(), digits.cend(), number, std::chars_format::hex);
    return read.ec == std::errc() ? number : HUGE_VAL;
}

int modExif::BytesPerComponent(double format)
{
    static constexpr std::array sizes{0, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8};
    return format < static_cast<double>(sizes.size()) ? sizes.at(static_cast<std::size_t>(format)) : 0;
}

QByteArray modExif::SwapBytes(QByteArrayView bytes) const
{
    QByteArray swapped = bytes.toByteArray();
    if (ExifMotorola_ != 1) {
        std::reverse(swapped.begin(), swapped.end());
    }
    return swapped;
}

std::nullopt_t modExif::Fail(const QString& why)
{
    failure_ = why;
    return std::nullopt;
}

bool modExif::ParseExifSegment(const QString& path, std::vector<ExifLine>& list, platform::Status& failure)
{
    list.clear();
    failure_.clear();
    row_ = 0;
    told_ = 0;
    const bool isWhole = ReadSegment(path, list) && ReadDirectories(list);
    failure = failure_.isEmpty() ? platform::Status() : platform::Status::Failure(failure_);
    return isWhole;
}

// Fills the buffer with the segment from the TIFF header on.
bool modExif::ReadSegment(const QString& path, std::vector<ExifLine>& list)
{
    const auto file = platform::FileBytes::Open(path);
    if (!file) {
        Fail(QStringLiteral("File not found"));
        return false;
    }
    const auto refuse = [&](const QString& line) {
        if (file->HasFailed()) {
            Fail(QStringLiteral("The file can't be read"));
        } else {
            list.push_back({line, 0});
        }
        return false;
    };
    if (file->Read(0, 2) != "\xFF\xD8" || file->Read(file->Size() - 2, 2) != "\xFF\xD9") {
        return refuse(QStringLiteral("Not a JPeg file"));
    }
    // A segment's length counts its own two bytes and not the marker's: so this lands short of the next one,
    // or before this one. A JPEG usually begins with an application segment, where nothing is stepped over.
    constexpr int mostSteps = 10'000; // some lengths lead round and round
    qint64 at = 2;
    for (int step = 0; !BytesToHex(file->Read(at, 2)).startsWith(QStringLiteral("FFE")); ++step) {
        if (step == mostSteps || at < 0 || at + 4 > file->Size()) {
            return refuse(QStringLiteral("File information not found"));
        }
        at += static_cast<qint64>(BytesToNumber(file->Read(at + 2, 2))) - 2;
    }
    const auto size = static_cast<qint64>(BytesToNumber(file->Read(at + 2, 2))) - 2;
    if (file->Read(at + 4, 6) != QByteArray("Exif\0\0", 6)) {
        return refuse(QStringLiteral("Not 'Exif' data, Panic"));
    }
    ExifBuffer_ = file->Read(at + 10, std::max<qint64>(0, size)); // six bytes more than the segment has
    const QByteArrayView order = InBuffer(0, 2);
    if (file->HasFailed() || (order != QByteArrayView("II") && order != QByteArrayView("MM"))) {
        return refuse(QStringLiteral("Unknown/Error Header Format"));
    }
    SetMotorola(order == QByteArrayView("MM"));
    if (ExifMotorola_ == 1) {
        list.push_back({QStringLiteral("Motarola Header Format - Might have prob's"), 0});
        ++row_;
    }
    return true;
}

// Bytes from an offset on, counted from 0: as many as there are.
QByteArrayView modExif::InBuffer(double offset, double size) const
{
    const auto all = static_cast<double>(ExifBuffer_.size());
    const double begin = std::clamp(offset, 0.0, all);
    return QByteArrayView(ExifBuffer_)
        .sliced(static_cast<qsizetype>(begin), static_cast<qsizetype>(std::clamp(size, 0.0, all - begin)));
}

bool modExif::ReadDirectories(std::vector<ExifLine>& list)
{
    const double first = BytesToNumber(SwapBytes(InBuffer(4, 4)));
    IfdPending pending(first);
    if (!ReadIfd(first, IfdKind::Main, pending, list)) {
        return false;
    }
    while (const auto next = pending.Next()) {
        if (!ReadIfd(next->first, next->second, pending, list)) {
            return false;
        }
    }
    return true;
}

bool modExif::ReadIfd(double offset, IfdKind kind, IfdPending& pending, std::vector<ExifLine>& list)
{
    if (offset < 0) {
        Fail(QStringLiteral("Invalid procedure call or argument"));
        return false;
    }
    const double count = BytesToNumber(SwapBytes(InBuffer(offset, 2)));
    for (int entry = 0; entry < count; ++entry) {
        if (!ReadEntry(InBuffer(offset + 2 + entry * EntrySize, EntrySize), kind, pending, list)) {
            return false;
        }
    }
    return true;
}

bool modExif::ReadEntry(QByteArrayView entry, IfdKind kind, IfdPending& pending, std::vector<ExifLine>& list)
{
    const auto field = [&](qsizetype at, qsizetype size) {
        const qsizetype begin = std::min(at, entry.size());
        return SwapBytes(entry.sliced(begin, std::min(size, entry.size() - begin)));
    };
    const QByteArray tagBytes = field(0, 2);
    const int tag = BytesToHex(tagBytes).toInt(nullptr, 16);
    bool decodes = false;
    const QString description = kind == IfdKind::Main  ? ExifTagName(tagBytes, decodes)
                                : kind == IfdKind::Gps ? GpsTagName(tagBytes, decodes)
                                                       : InteropTagName(tagBytes, decodes);
    const double format = BytesToNumber(field(2, 2));
    const double components = BytesToNumber(field(4, 4));
    const QByteArray value = field(8, 4);
    double size = BytesPerComponent(format) * components;

    ExifRows_.resize(std::max(ExifRows_.size(), row_ + 1));
    ExifRows_[row_++] = {HexText(tag), HexText(format), HexText(components)};

    // A short value is the end of its four bytes, most significant first.
    QByteArrayView bytes =
        QByteArrayView(value).last(std::min(value.size(), static_cast<qsizetype>(std::min(size, 4.0))));
    if (size > 4) {
        if (description == QStringLiteral("User comments")) { // no description is spelt so
            size = 65'536;
        }
        bytes = InBuffer(BytesToNumber(value), size);
    }
    auto text = FormatTagValue(static_cast<int>(format), bytes);
    constexpr qint64 smallest = 32; // a line without any text takes room, too
    told_ += bytes.size() + (text ? text->size() : 0) + smallest;
    if (told_ > MostTold) {
        Fail(QStringLiteral("Out of string space"));
        return false;
    }
    if (text && decodes) {
        text = DecodeTagValue(tag, *text);
    }
    if (!text) {
        return false;
    }
    if (double* const slot = pending.SlotOf(description)) {
        const auto offset = platform::ToNumber(*text);
        *slot = std::nearbyint(offset.value_or(0));
        if (!offset || *slot < std::numeric_limits<qint32>::min() ||
            *slot > std::numeric_limits<qint32>::max()) {
            Fail(offset ? QStringLiteral("Overflow") : QStringLiteral("Type mismatch"));
            return false;
        }
        --row_; // the next entry takes its place
        return true;
    }
    const QString line = description + QStringLiteral(" = ") + *text;
    const qsizetype zero = line.indexOf(QChar::Null);
    list.push_back({zero < 0 ? line : line.left(zero), tag}); // a list shows a text up to its first zero
    return true;
}

} // namespace metadata

// SPDX-License-Identifier: MIT
#include "metadata/modExif.h"

#include "platform/Conversions.h"
#include "platform/FileBytes.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace metadata {

namespace {

constexpr qsizetype EntrySize = 12;

// Two bytes as the number that they are.
int PlainNumber(QByteArrayView bytes)
{
    int number = 0;
    for (const char byte : bytes) {
        number = number * 256 + static_cast<uchar>(byte);
    }
    return number;
}

QString HexText(double number)
{
    return QString::number(static_cast<quint64>(number), 16).toUpper();
}

} // namespace

// The directories that are still to be visited, by their kinds. Of each kind only one is, or those that name
// themselves or each other would go on for ever.
class modExif::Pending
{
public:
    // True if the description is that of a directory.
    bool Take(const QString& description, double offset)
    {
        static const std::array names{QStringLiteral("Exif IFD"), QStringLiteral("GPS IFD"),
                                      QStringLiteral("Interoperability IFD")};
        const auto* const found = std::find(names.begin(), names.end(), description);
        if (found == names.end()) {
            return false;
        }
        offsets_.at(static_cast<std::size_t>(found - names.begin())) = offset;
        return true;
    }

    static bool IsDirectory(const QString& description) { return Pending().Take(description, 0); }

    // The next one, or nothing.
    std::optional<std::pair<double, IfdKind>> Next()
    {
        for (std::size_t slot = 0; slot < offsets_.size(); ++slot) {
            const double offset = std::exchange(offsets_.at(slot), 0);
            const auto kind = static_cast<IfdKind>(slot);
            if (offset != 0 && !std::exchange(visited_.at(slot), true)) {
                return std::pair(offset, kind);
            }
        }
        return std::nullopt;
    }

private:
    std::array<double, 3> offsets_{}; // 0 is none
    std::array<bool, 3> visited_{};
};

QString modExif::BytesToHex(QByteArrayView bytes)
{
    return QString::fromLatin1(bytes.toByteArray().toHex().toUpper());
}

double modExif::BytesToNumber(QByteArrayView bytes)
{
    double number = 0;
    for (const char byte : bytes) {
        const int value = static_cast<uchar>(byte);
        number = number * (value < 16 ? 16 : 256) + value;
    }
    return number;
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
    const auto refuse = [&list](const QString& line) {
        list.push_back({line, 0});
        return false;
    };
    if (file->Read(0, 2) != "\xFF\xD8" || file->Read(file->Size() - 2, 2) != "\xFF\xD9") {
        return refuse(QStringLiteral("Not a JPeg file"));
    }
    // A segment's length counts its own two bytes and not the marker's: so this lands short of the next one.
    // A JPEG usually begins with an application segment, where nothing is stepped over.
    qint64 at = 2;
    QByteArray marker = file->Read(at, 2);
    while (!BytesToHex(marker).startsWith(QStringLiteral("FFE"))) {
        const double length = BytesToNumber(file->Read(at + 2, 2)) - 2;
        at += static_cast<qint64>(length);
        if (length <= 0 || at + 2 > file->Size()) {
            return refuse(QStringLiteral("File information not found"));
        }
        marker = file->Read(at, 2);
    }
    const auto size = static_cast<qint64>(BytesToNumber(file->Read(at + 2, 2))) - 2;
    if (file->Read(at + 4, 6) != QByteArray("Exif\0\0", 6)) {
        return refuse(QStringLiteral("Not 'Exif' data, Panic"));
    }
    ExifBuffer_ = file->Read(at + 10, std::max<qint64>(0, size)); // six bytes more than the segment has
    const QByteArrayView order = InBuffer(0, 2);
    if (order != QByteArrayView("II") && order != QByteArrayView("MM")) {
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
    Pending pending;
    if (!ReadIfd(BytesToNumber(SwapBytes(InBuffer(4, 4))), IfdKind::Main, pending, list)) {
        return false;
    }
    while (const auto next = pending.Next()) {
        if (!ReadIfd(next->first, next->second, pending, list)) {
            return false;
        }
    }
    return true;
}

bool modExif::ReadIfd(double offset, IfdKind kind, Pending& pending, std::vector<ExifLine>& list)
{
    const double count = BytesToNumber(SwapBytes(InBuffer(offset, 2)));
    for (int entry = 0; entry < count; ++entry) {
        if (!ReadEntry(InBuffer(offset + 2 + entry * EntrySize, EntrySize), kind, pending, list)) {
            return false;
        }
    }
    return true;
}

bool modExif::ReadEntry(QByteArrayView entry, IfdKind kind, Pending& pending, std::vector<ExifLine>& list)
{
    const auto field = [&](qsizetype at, qsizetype size) {
        const qsizetype begin = std::min(at, entry.size());
        return SwapBytes(entry.sliced(begin, std::min(size, entry.size() - begin)));
    };
    constexpr int noTag = -1; // behind the end of the buffer
    const QByteArray number = field(0, 2);
    const int tag = PlainNumber(number);
    bool decodes = false;
    const QString description = ExifDescription(kind, number.size() == 2 ? tag : noTag, decodes);
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
    if (text && decodes) {
        text = DecodeTagValue(tag, *text);
    }
    if (!text) {
        return false;
    }
    if (Pending::IsDirectory(description)) {
        constexpr double greatest = 2'147'483'647;
        const auto offset = platform::ToNumber(*text);
        if (!offset || std::fabs(*offset) > greatest) {
            Fail(offset ? QStringLiteral("Overflow") : QStringLiteral("Type mismatch"));
            return false;
        }
        pending.Take(description, std::nearbyint(*offset));
        --row_; // the next entry takes its place
        return true;
    }
    const QString line = description + QStringLiteral(" = ") + *text;
    const qsizetype zero = line.indexOf(QChar::Null);
    list.push_back({zero < 0 ? line : line.left(zero), tag}); // a list shows a text up to its first zero
    return true;
}

} // namespace metadata

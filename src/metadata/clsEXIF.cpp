// SPDX-License-Identifier: MIT
#include "metadata/clsEXIF.h"

#include "metadata/ExifTagNames.h"
#include "metadata/ExifValueText.h"
#include "platform/Conversions.h"
#include "platform/FileBytes.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace metadata {

namespace {

constexpr std::size_t EntrySize = 12;

// Numbers of four bytes are signed, so a larger one overflows.
constexpr std::uint32_t Greatest = std::numeric_limits<qint32>::max();

constexpr int PlainLong = 4;                      // the format of an unsigned number of four bytes
constexpr int ExifOffset = 34665;                 // the tag that tells where the Exif directory lies
constexpr int ExifInteroperabilityOffset = 40965; // searched for, but what it tells isn't read

QString NotExifText()
{
    return QStringLiteral("File is not in EXIF format.");
}

// A number as the offset of a directory, which may be negative. Nothing where it is too large.
std::optional<qint32> OffsetOf(double told)
{
    const double number = std::nearbyint(told);
    return std::fabs(number) <= Greatest ? std::optional(static_cast<qint32>(number)) : std::nullopt;
}

} // namespace

void clsEXIF::SetImageFile(const QString& path)
{
    imageFile_ = path;
    std::array<char, HeadSize> head;
    const std::size_t size = platform::ReadHead(path, head);
    ini_.Refresh();
    std::fill(head.begin() + static_cast<std::ptrdiff_t>(size), head.end(), '\0');
    Take(head, size);
}

void clsEXIF::ReadMetaInfo(std::string_view head)
{
    std::array<char, HeadSize> bytes{};
    head.copy(bytes.data(), HeadSize);
    Take(bytes, head.size());
}

// A head with zero bytes behind its end, and how many there are in front of them.
void clsEXIF::Take(const std::array<char, HeadSize>& bytes, std::size_t size)
{
    status_ = Status::Read;
    if (size == 0) {
        return; // and what was read before stays
    }
    const std::size_t found =
        std::string_view(bytes.data(), bytes.size()).find(std::string_view("Exif\0", 5));
    if (found == std::string_view::npos) {
        status_ = Status::NotExif;
        return;
    }
    head_ = bytes;
    records_.clear();
    const std::size_t base = found + 1 + 6; // of the TIFF header, counted from 1
    const bool isIntel = Head().Part(base, 2).value_or(ByteView()).Bytes() == "II";
    order_ = isIntel ? ByteOrder::LittleEndian : ByteOrder::BigEndian;
    const std::uint32_t told = Head().UInt32(base + 4, order_).value_or(0);
    const auto first = static_cast<qint32>(told <= Greatest ? told : 0);
    // Where the first directory ended early, or had no such entry, the second is read at offset 0: the header
    // passes for a directory then.
    const qint32 second = ReadIfd(base, first, ExifOffset);
    ReadIfd(base, second, ExifInteroperabilityOffset);
}

// Reads the directory at an offset. Gives what the searched tag says, 0 if the directory has none or ends at
// an entry that can't be read; that entry and all behind it stay blank.
qint32 clsEXIF::ReadIfd(std::size_t base, qint32 offset, int searchedTag)
{
    const qint64 start = static_cast<qint64>(base) + offset;
    auto position = static_cast<std::size_t>(std::max<qint64>(0, start)); // 0 is nowhere
    const auto count = Head().UInt16(position, order_);
    if (!count) {
        return 0;
    }
    const std::size_t firstSlot = records_.size();
    records_.resize(firstSlot + *count);
    position += 2;
    qint32 result = 0;
    for (std::size_t slot = firstSlot; slot < records_.size(); ++slot, position += EntrySize) {
        if (!ReadEntry(base, position, records_[slot])) {
            return 0;
        }
        if (records_[slot].TagNum == searchedTag) {
            const auto told = OffsetOf(NumberOf(records_[slot]));
            if (!told) {
                return 0;
            }
            result = *told;
        }
    }
    return result;
}

// The number at the start of a record's text. Where that is one plain number it is what the text would tell.
double clsEXIF::NumberOf(const ExifTagRecord& record) const
{
    const bool isPlain = record.Format == PlainLong && record.Components <= 1 && ini_.IsEmpty();
    return isPlain ? record.Value : platform::LeadingNumber(Text(record));
}

// Fills a record as far as it goes. False if the entry can't be read to its end.
bool clsEXIF::ReadEntry(std::size_t base, std::size_t position, ExifTagRecord& record) const
{
    const ByteView head = Head();
    const auto tag = head.UInt16(position, order_);
    const auto format = head.UInt16(position + 2, order_);
    const auto components = head.UInt32(position + 4, order_);
    const auto value = head.UInt32(position + 8, order_);
    record.TagNum = tag.value_or(0);
    record.Format = format.value_or(0);
    if (!value || *components > Greatest) {
        return false;
    }
    record.Components = *components;
    record.Value = *value;
    record.hasName = true;
    const auto componentSize = ExifFormatSize(record.Format);
    if (!componentSize) {
        return false;
    }
    const std::uint64_t size = std::uint64_t{*componentSize} * record.Components;
    const std::uint64_t at = size > 4 ? base + *value : position + 8;
    const auto raw = head.Part(at, std::max<std::uint64_t>(4, size));
    if (!raw ||
        !TakeExifValue({record.TagNum, record.Format, record.Components, *raw, order_}, record.Value)) {
        return false;
    }
    record.position = static_cast<std::uint32_t>(at);
    record.size = static_cast<std::uint32_t>(raw->Size());
    record.hasText = true;
    return true;
}

QString clsEXIF::TagName(const ExifTagRecord& record) const
{
    return record.hasName ? ExifTagName(record.TagNum) : QString();
}

QString clsEXIF::Text(const ExifTagRecord& record) const
{
    const auto raw = Head().Part(record.position, record.size);
    if (!record.hasText || !raw) {
        return {};
    }
    QString text =
        ExifValueText({record.TagNum, record.Format, record.Components, *raw, order_}, record.Value);
    text.remove(QChar::Null);
    return ini_.IsEmpty() ? text : Reworded(TagName(record), text);
}

QString clsEXIF::Reworded(const QString& tagName, const QString& text) const
{
    const QString wording = ini_.Value(tagName, text);
    const QString pattern = ini_.Value(tagName, QStringLiteral("Format"));
    const QString worded = wording.isEmpty() ? text : wording;
    return pattern.isEmpty() ? worded : QString(pattern).replace(QStringLiteral("@X"), worded);
}

std::optional<qint64> clsEXIF::MetaInfo(int TagNum, QString& text) const
{
    if (status_ != Status::Read) {
        text = status_ == Status::NotExif ? NotExifText() : QStringLiteral("Error parsing the file.");
        return std::nullopt;
    }
    for (const ExifTagRecord& record : records_) {
        if (record.TagNum == TagNum) {
            text = Text(record);
            return static_cast<qint64>(std::nearbyint(record.Value));
        }
    }
    text = QStringLiteral("Tag %1 not found.").arg(TagNum);
    return 0;
}

QString clsEXIF::GetTagName(int TagNum)
{
    return ExifTagName(TagNum);
}

QString clsEXIF::ListInfo(QStringList& list) const
{
    if (status_ != Status::Read) {
        return status_ == Status::NotExif ? NotExifText() : QStringLiteral("Could not open the file.");
    }
    const QString blank = QStringLiteral(": ");
    list.clear();
    list.reserve(static_cast<qsizetype>(records_.size()));
    for (const ExifTagRecord& record : records_) {
        list << (record.hasName ? TagName(record) + blank + Text(record) : blank);
    }
    return {};
}

} // namespace metadata

// SPDX-License-Identifier: MIT
#include "metadata/clsEXIF.h"

#include "metadata/ExifTagNames.h"
#include "metadata/ExifValueText.h"
#include "platform/Conversions.h"
#include "platform/FileBytes.h"

#include <array>
#include <cmath>
#include <limits>

namespace metadata {

namespace {

constexpr std::size_t HeadSize = 4'096;
constexpr std::size_t EntrySize = 12;

// Numbers of four bytes are signed, so a larger one overflows.
constexpr std::uint32_t Greatest = std::numeric_limits<qint32>::max();

constexpr int ExifOffset = 34665;                 // the tag that tells where the Exif directory lies
constexpr int ExifInteroperabilityOffset = 40965; // searched for, but what it tells isn't read

QString NotExifText()
{
    return QStringLiteral("File is not in EXIF format.");
}

// A text as the offset of a directory: the number at its start, which may be negative. Nothing where it is
// too large.
std::optional<qint32> OffsetOf(const QString& text)
{
    const double number = std::nearbyint(platform::LeadingNumber(text));
    return std::fabs(number) <= Greatest ? std::optional(static_cast<qint32>(number)) : std::nullopt;
}

} // namespace

void clsEXIF::SetImageFile(const QString& path)
{
    imageFile_ = path;
    const QByteArray head = platform::ReadHead(path, HeadSize);
    ini_.Refresh();
    ReadMetaInfo({head.constData(), static_cast<std::size_t>(head.size())});
}

void clsEXIF::ReadMetaInfo(std::string_view head)
{
    status_ = Status::Read;
    if (head.empty()) {
        return; // and what was read before stays
    }
    std::array<char, HeadSize> bytes{};
    head.copy(bytes.data(), HeadSize);
    const std::string_view text(bytes.data(), bytes.size());
    const std::size_t found = text.find(std::string_view("Exif\0", 5));
    if (found == std::string_view::npos) {
        status_ = Status::NotExif;
        return;
    }
    const ByteView buffer(text);
    const std::size_t base = found + 1 + 6; // of the TIFF header, counted from 1
    const bool isIntel = buffer.Part(base, 2).value_or(ByteView()).Bytes() == "II";
    order_ = isIntel ? ByteOrder::LittleEndian : ByteOrder::BigEndian;
    records_.clear();
    const std::uint32_t told = buffer.UInt32(base + 4, order_).value_or(0);
    const auto first = static_cast<qint32>(told <= Greatest ? told : 0);
    // Where the first directory ended early, or had no such entry, the second is read at offset 0: the header
    // passes for a directory then.
    const qint32 second = ReadIfd(buffer, base, first, ExifOffset);
    ReadIfd(buffer, base, second, ExifInteroperabilityOffset);
}

// Reads the directory at an offset. Gives what the searched tag says, 0 if the directory has none or ends at
// an entry that can't be read; that entry and all behind it stay blank.
qint32 clsEXIF::ReadIfd(const ByteView& buffer, std::size_t base, qint32 offset, int searchedTag)
{
    const qint64 start = static_cast<qint64>(base) + offset;
    auto position = static_cast<std::size_t>(std::max<qint64>(0, start)); // 0 is nowhere
    const auto count = buffer.UInt16(position, order_);
    if (!count) {
        return 0;
    }
    const std::size_t firstSlot = records_.size();
    records_.resize(firstSlot + *count);
    position += 2;
    qint32 result = 0;
    for (std::size_t slot = firstSlot; slot < records_.size(); ++slot, position += EntrySize) {
        if (!ReadEntry(buffer, base, position, records_[slot])) {
            return 0;
        }
        if (records_[slot].TagNum == searchedTag) {
            const auto told = OffsetOf(records_[slot].Text);
            if (!told) {
                return 0;
            }
            result = *told;
        }
    }
    return result;
}

// Fills a record as far as it goes. False if the entry can't be read to its end.
bool clsEXIF::ReadEntry(const ByteView& buffer, std::size_t base, std::size_t position,
                        ExifTagRecord& record) const
{
    const auto tag = buffer.UInt16(position, order_);
    const auto format = buffer.UInt16(position + 2, order_);
    const auto components = buffer.UInt32(position + 4, order_);
    const auto value = buffer.UInt32(position + 8, order_);
    record.TagNum = tag.value_or(0);
    record.Format = format.value_or(0);
    if (!value || *components > Greatest) {
        return false;
    }
    record.Components = *components;
    record.Value = *value;
    record.TagName = ExifTagName(record.TagNum);
    const auto componentSize = ExifFormatSize(record.Format);
    if (!componentSize) {
        return false;
    }
    const std::uint64_t size = std::uint64_t{*componentSize} * record.Components;
    const auto raw = size > 4 ? buffer.Part(base + *value, size) : buffer.Part(position + 8, 4);
    if (!raw) {
        return false;
    }
    auto text = ExifValueText({record.TagNum, record.Format, record.Components, *raw, order_}, record.Value);
    if (!text) {
        return false;
    }
    text->remove(QChar::Null);
    record.Text = ini_.IsEmpty() ? *text : Reworded(record.TagName, *text);
    return true;
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
            text = record.Text;
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
        list << (record.TagName.isEmpty() && record.Text.isEmpty() ? blank
                                                                   : record.TagName + blank + record.Text);
    }
    return {};
}

} // namespace metadata

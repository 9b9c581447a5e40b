// SPDX-License-Identifier: MIT
#include "fuzz/Support.h"
#include "fuzz/Targets.h"
#include "metadata/clsEXIF.h"

#include <algorithm>
#include <span>

namespace fuzz {

namespace {

constexpr std::size_t HeadSize = 4'096;
constexpr std::size_t MostEntries = 2 * 0xFFFF; // two directories, each with a count of two bytes

// More than fit in the head. Further ones are blank: there are many thousands of them where bytes that are
// no directory are read as one.
constexpr std::size_t FilledEntries = 400;

std::span<const metadata::ExifTagRecord> FilledRecords(const metadata::clsEXIF& exif)
{
    return std::span(exif.Records()).first(std::min(FilledEntries, exif.Records().size()));
}

QStringList LinesOf(const metadata::clsEXIF& exif)
{
    QStringList lines;
    for (const metadata::ExifTagRecord& record : FilledRecords(exif)) {
        lines << exif.TagName(record) + QStringLiteral(": ") + exif.Text(record);
    }
    return lines;
}

void CheckLookUp(const metadata::clsEXIF& exif)
{
    for (const metadata::ExifTagRecord& record : FilledRecords(exif)) {
        QString text;
        Require(exif.MetaInfo(record.TagNum, text).has_value(), "a tag that was read is found");
        Require(!text.contains(QChar::Null), "a value holds no NUL, which no name may have");
    }
}

} // namespace

void ReadExif(QByteArrayView picture)
{
    std::string head(picture.data(), static_cast<std::size_t>(picture.size()));
    metadata::clsEXIF exif{QString()};
    exif.ReadMetaInfo(head);
    if (exif.ReadStatus() == metadata::clsEXIF::Status::NotExif) {
        head.insert(0, "Exif\0\0", 6); // or most inputs would end here
        exif.ReadMetaInfo(head);
    }
    Require(exif.Records().size() <= MostEntries, "there are as many entries as two directories have");
    const QStringList lines = LinesOf(exif);
    QStringList list;
    Require(exif.ListInfo(list).isEmpty() && list.mid(0, lines.size()) == lines, "each entry has its line");
    CheckLookUp(exif);
    head.resize(HeadSize); // cut off, or zero bytes added
    exif.ReadMetaInfo(head);
    Require(LinesOf(exif) == lines, "a file reads like its first 4,096 bytes, zeros behind its end");
}

} // namespace fuzz

// SPDX-License-Identifier: MIT
#include "fuzz/Support.h"
#include "fuzz/Targets.h"
#include "metadata/clsEXIF.h"

namespace fuzz {

namespace {

constexpr std::size_t HeadSize = 4'096;
constexpr std::size_t MostEntries = 2 * 0xFFFF; // two directories, each with a count of two bytes
constexpr std::size_t ComparedEntries = 1'000;  // more are blank, and would take the fuzzer's time

QStringList LinesOf(const metadata::clsEXIF& exif)
{
    QStringList lines;
    exif.ListInfo(lines);
    return lines;
}

// Each tag is found, and it is the first record of its number that is.
void CheckLookUp(const metadata::clsEXIF& exif)
{
    for (const metadata::ExifTagRecord& record : exif.Records()) {
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
    if (exif.Records().size() > ComparedEntries) {
        return;
    }
    const QStringList lines = LinesOf(exif);
    Require(static_cast<std::size_t>(lines.size()) == exif.Records().size(), "each entry has its line");
    CheckLookUp(exif);
    head.resize(HeadSize); // cut off, or zero bytes added
    exif.ReadMetaInfo(head);
    Require(LinesOf(exif) == lines, "a file reads like its first 4,096 bytes, zeros behind its end");
}

} // namespace fuzz

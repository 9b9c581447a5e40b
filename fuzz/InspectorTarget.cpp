// SPDX-License-Identifier: MIT
#include "fuzz/Support.h"
#include "fuzz/Targets.h"
#include "metadata/modExif.h"

namespace fuzz {

void InspectPicture(QByteArrayView picture)
{
    static metadata::modExif inspector;
    const auto inspect = [](QByteArrayView bytes) {
        std::vector<metadata::ExifLine> lines;
        platform::Status failure;
        const bool isWhole = inspector.ParseExifSegment(WriteFile("inspected.jpg", bytes), lines, failure);
        Require(!isWhole || failure.IsOk(), "what is whole has no failure");
        Require(isWhole || !failure.IsOk() || !lines.empty(), "a refusal says why");
        for (const metadata::ExifLine& line : lines) {
            Require(!line.text.contains(QChar::Null), "a line holds no NUL");
        }
    };
    inspect(picture);
    // The same bytes as the segment of a picture that is as it should be.
    const QByteArray start("\xFF\xD8\xFF\xE1\x7F\xFF"
                           "Exif\0\0",
                           12);
    inspect(start + picture.toByteArray() + "\xFF\xD9");
    inspect(start + QByteArray("II*\0", 4) + picture.toByteArray() + "\xFF\xD9");
}

} // namespace fuzz

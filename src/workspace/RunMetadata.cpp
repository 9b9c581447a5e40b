// SPDX-License-Identifier: MIT
#include "workspace/RunMetadata.h"

#include "metadata/Id3Keys.h"
#include "model/GetFName.h"
#include "model/Text.h"

#include <algorithm>

namespace workspace {

void RunMetadata::Load(const model::RenameRow& row, model::NameContext& context)
{
    const QString extension = model::GetFName(row.original, {}, true); // a folder's, too
    const bool isMp3 = model::UpperCase(extension) == QStringLiteral(".MP3");
    if (isMp3) {
        CurrentID3_.SetFileName(row.path + row.original);
    }
    context.mp3 = isMp3 ? this : nullptr;
    if (row.type == model::JpegImage) {
        CurrentEXIF_.SetImageFile(row.path + row.original);
        CurrentEXIF_.ListInfo(lstExif_);
        const auto date = std::find_if(lstExif_.cbegin(), lstExif_.cend(), [](const QString& line) {
            return line.contains(QStringLiteral("DateTime:"));
        });
        if (date != lstExif_.cend()) {
            context.exifDate = date->mid(10); // without "DateTime: ", or as much of another line
        }
    }
    context.exifLines = lstExif_;
}

QString RunMetadata::Value(const QString& key) const
{
    return metadata::ValueOfId3Key(CurrentID3_, key);
}

QString PictureDateLine(metadata::clsEXIF& exif, const QString& path, QStringList& lstExif)
{
    exif.SetImageFile(path);
    exif.ListInfo(lstExif);
    return lstExif.value(6);
}

} // namespace workspace

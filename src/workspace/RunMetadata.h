// SPDX-License-Identifier: MIT
//
// RunMetadata: what the files of a preview run tell about themselves. Pictures and music are read once per
// row, whether an action asks for them or not.
#pragma once

#include "metadata/clsEXIF.h"
#include "metadata/clsID3.h"
#include "model/NameContext.h"
#include "model/RenameRow.h"

namespace workspace {

class RunMetadata final : private model::Mp3Properties
{
public:
    // `lstExif` has the lines of the picture that was read last, and keeps them; it outlives the run.
    RunMetadata(const QString& programFolder, QStringList& lstExif)
        : CurrentEXIF_(programFolder), lstExif_(lstExif)
    {}

    // Reads the row's file, if it is one that tells, into the context, which must not outlive the run. A row
    // that isn't a picture keeps the date and the lines of the one before it, also of an earlier run.
    void Load(const model::RenameRow& row, model::NameContext& context);

private:
    QString Value(const QString& key) const override;

    metadata::clsID3 CurrentID3_;
    metadata::clsEXIF CurrentEXIF_;
    QStringList& lstExif_;
};

// The line of a picture that has its date where cameras put it: the seventh. Empty if there are fewer.
QString PictureDateLine(metadata::clsEXIF& exif, const QString& path, QStringList& lstExif);

} // namespace workspace

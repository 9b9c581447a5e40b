// SPDX-License-Identifier: MIT
#pragma once

#include "metadata/Id3Keys.h"

namespace fuzz {

// What an MP3 tells, to be compared: all that names may ask for, and the longer texts and pictures.
inline QStringList TagTexts(const metadata::clsID3& tags)
{
    QStringList texts{tags.Comments, tags.Lyrics, tags.Lyricist, tags.ISRC, tags.DiscNumber, tags.DiscsTotal};
    for (const QString& key : metadata::OfferedId3Keys()) {
        texts << metadata::ValueOfId3Key(tags, key);
    }
    for (const auto* frames : {&tags.AttachedPictures, &tags.ArtistURL, &tags.CommercialInfo}) {
        for (int index = 1; index <= frames->Count(); ++index) {
            texts << QString::fromLatin1(frames->Item(index));
        }
    }
    return texts;
}

} // namespace fuzz

// SPDX-License-Identifier: MIT
//
// Id3Tags: what an audio file tells about itself, merged from all its tags. A text that no tag has is empty.
#pragma once

#include "metadata/Genres.h"
#include "metadata/MultiFrameData.h"

#include <QString>

namespace metadata {

struct Id3Tags
{
    QString Comments;
    QString Album;
    QString BeatsPerMinute;
    QString Composer;
    int GenreID = UnknownGenre;
    QString Genre;
    QString Copyright;
    QString EncodedBy;
    QString Lyricist;
    QString Title;
    QString InitialKey;
    QString Languages;
    QString OriginalAlbum;
    QString OriginalFileName;
    QString OriginalLyricist;
    QString OriginalArtist;
    QString OriginalReleaseYear;
    QString FileOwner;
    QString Artist;
    QString Band;
    QString Conductor;
    QString InterpretedBy;
    QString DiscNumber, DiscsTotal;
    QString Publisher;
    QString TrackNumber, TracksTotal;
    QString InternetRadioStationName;
    QString InternetRadioStationOwner;
    QString ISRC;
    QString Year;
    QString Lyrics;
    MultiFrameData CommercialInfo; // only the first in a tag
    QString CopyrightInfo;
    QString AudioURL;
    MultiFrameData ArtistURL; // only the first in a tag
    QString AudioSourceURL;
    QString InternetRadioURL;
    QString PaymentURL;
    QString PublisherURL;
    MultiFrameData AttachedPictures; // the data of the frames, each different one once
};

} // namespace metadata

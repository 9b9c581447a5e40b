// SPDX-License-Identifier: MIT
//
// clsID3: everything that an audio file tells about itself: ID3v2 at its start, ID3v1 and Lyrics3 at its end,
// and its first MPEG frame. Setting the file name reads all of it, in one opening of the file. Where several
// tags have a field ID3v2 wins over Lyrics3, and Lyrics3 over ID3v1.
#pragma once

#include "metadata/Id3Tags.h"
#include "metadata/MpegHeader.h"
#include "platform/Result.h"

namespace metadata {

class clsID3 : public Id3Tags
{
public:
    const QString& FileName() const { return fileName_; }

    // Stores the complete path and reads the file. One that can't be opened leaves the object empty.
    void SetFileName(const QString& path);

    // Reads the file again.
    void RefreshID3Tags();

    // Writes the properties into the file: an ID3v2 tag of the version that is there, else 2.3, with frames
    // that aren't known here as they are; a Lyrics3 block if title, artist or album has over 30 characters;
    // an ID3v1 block unless that would be empty. Audio and the file's times stay. What fails and what is left
    // then, see RewriteFile; a tag that is too large fails and changes nothing.
    platform::Status UpdateID3Tags();

    // Empties all properties and takes all tags out of the file. Fails as UpdateID3Tags.
    platform::Status DeleteID3Tags();

    bool ID3v1Exists() const { return hasId3v1_; }
    bool ID3v2Exists() const { return hasId3v2_; }
    bool Lyrics3v1Exists() const { return hasLyrics3v1_; }
    bool Lyrics3v2Exists() const { return hasLyrics3v2_; }
    int ID3RevisionV2() const { return revision_; } // 3 where there is no such tag

    const MpegHeader& Mpeg() const { return mpeg_; }

    static QString GenreName(int id) { return metadata::GenreName(id); }
    static int ToGenreID(const QString& name) { return metadata::ToGenreID(name); }

private:
    qint64 ReadStart(const platform::FileBytes& file);

    QString fileName_;
    bool hasId3v1_ = false;
    bool hasId3v2_ = false;
    bool hasLyrics3v1_ = false;
    bool hasLyrics3v2_ = false;
    int revision_ = 3;
    MpegHeader mpeg_;
};

} // namespace metadata

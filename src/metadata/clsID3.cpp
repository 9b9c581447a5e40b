// SPDX-License-Identifier: MIT
#include "metadata/clsID3.h"

#include "metadata/Id3v1.h"
#include "metadata/Id3v2.h"
#include "metadata/Lyrics3.h"

namespace metadata {

void clsID3::SetFileName(const QString& path)
{
    fileName_ = path;
    RefreshID3Tags();
}

void clsID3::RefreshID3Tags()
{
    const QString path = fileName_;
    *this = clsID3();
    fileName_ = path;
    const auto file = platform::FileBytes::Open(path);
    if (!file) {
        return;
    }
    const qint64 audioStart = ReadStart(*file);
    const FileEnd end = ReadFileEnd(*file);
    hasId3v1_ = !end.id3v1.isEmpty();
    const Lyrics3Found lyrics = ReadLyrics3(*file, end.audio, end.audioEnd, *this);
    hasLyrics3v1_ = lyrics.version1;
    hasLyrics3v2_ = lyrics.version2;
    if (hasId3v1_) {
        FillFromId3v1(end.id3v1, *this);
    }
    mpeg_ = MpegHeader(*file, audioStart, lyrics.audioEnd);
}

// Reads the ID3v2 tag, if there is one. Gives the position of what follows it, counted from 1.
qint64 clsID3::ReadStart(const platform::FileBytes& file)
{
    const auto header = ReadId3v2Header(file.Read(0, Id3v2HeaderSize));
    if (!header) {
        return 1;
    }
    hasId3v2_ = true;
    revision_ = header->major;
    const qint64 size = header->isCompressed ? 0 : header->size; // audio is looked for behind the header then
    ReadId3v2Frames(*header, file.Read(Id3v2HeaderSize, size), *this);
    return Id3v2HeaderSize + 1 + size + (header->hasFooter ? Id3v2HeaderSize : 0);
}

} // namespace metadata

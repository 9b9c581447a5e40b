// SPDX-License-Identifier: MIT
#include "metadata/clsID3.h"

#include "metadata/Id3v2.h"
#include "metadata/Lyrics3.h"
#include "platform/TextFile.h"

namespace metadata {

namespace {

constexpr qint64 Id3v1Size = 128;
constexpr int OtherGenre = 12;

// A field of the ID3v1 block, its first position counted from 1.
QString FieldOf(QByteArrayView block, qsizetype first, qsizetype size)
{
    QString text = platform::FromWindows1252(block.sliced(first - 1, size));
    const qsizetype zero = text.indexOf(QChar::Null);
    text.truncate(zero < 0 ? text.size() : zero);
    while (text.endsWith(u' ')) {
        text.chop(1);
    }
    return text;
}

void SetIfEmpty(QString& property, const QString& text)
{
    if (property.isEmpty()) {
        property = text;
    }
}

} // namespace

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
    qint64 audioEnd = file->Size(); // the position of the last audio byte, counted from 1
    const QByteArray tail =
        audioEnd >= Id3v1Size ? file->Read(audioEnd - Id3v1Size, Id3v1Size) : QByteArray();
    hasId3v1_ = tail.size() == Id3v1Size && tail.startsWith("TAG");
    audioEnd -= hasId3v1_ ? Id3v1Size : 0;
    const Lyrics3Found lyrics = ReadLyrics3(*file, audioEnd, *this);
    hasLyrics3v1_ = lyrics.version1;
    hasLyrics3v2_ = lyrics.version2;
    if (hasId3v1_) {
        FillFromId3v1(tail);
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
    ReadId3v2Frames(*header, file.Read(Id3v2HeaderSize, header->size), *this);
    return Id3v2HeaderSize + 1 + header->size + (header->hasFooter ? Id3v2HeaderSize : 0);
}

// Fills what is still empty.
void clsID3::FillFromId3v1(QByteArrayView block)
{
    SetIfEmpty(Title, FieldOf(block, 4, 30));
    SetIfEmpty(Artist, FieldOf(block, 34, 30));
    SetIfEmpty(Album, FieldOf(block, 64, 30));
    SetIfEmpty(Year, FieldOf(block, 94, 4));
    // A zero in front of the comment's last byte makes that byte the track of ID3v1.1.
    const int track = static_cast<uchar>(block[125]) * 256 + static_cast<uchar>(block[126]);
    const bool hasTrack = track >= 1 && track <= 255;
    SetIfEmpty(Comments, FieldOf(block, 98, hasTrack ? 28 : 30));
    if (hasTrack) {
        SetIfEmpty(TrackNumber, QString::number(track));
    }
    if (GenreID == OtherGenre || GenreID == UnknownGenre) {
        GenreID = static_cast<uchar>(block[127]);
    }
}

} // namespace metadata

// SPDX-License-Identifier: MIT
#include "metadata/Id3v1.h"

#include "metadata/Lyrics3.h"
#include "platform/Conversions.h"
#include "platform/TextFile.h"

#include <algorithm>
#include <cmath>

namespace metadata {

namespace {

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

QByteArray Field(const QString& text, qsizetype size)
{
    return platform::ToWindows1252OrMark(text).leftJustified(size, '\0', true);
}

// The number of the genre, where a name says more than a number that says nothing.
int GenreByte(const Id3Tags& tags)
{
    const QString name = tags.Genre.toLower();
    const bool isNamed = (tags.GenreID == OtherGenre && name != QStringLiteral("other")) ||
                         (tags.GenreID == UnknownGenre && name != QStringLiteral("unknown"));
    const int genre = isNamed ? ToGenreID(tags.Genre) : tags.GenreID;
    return genre < 0 || genre > UnknownGenre ? OtherGenre : genre; // codes have no byte
}

// The track of ID3v1.1, or 0 if there is none that a byte can tell.
int TrackByte(const Id3Tags& tags)
{
    const double track = platform::ToNumber(tags.TrackNumber).value_or(0);
    return track >= 1 && track <= 255 ? static_cast<int>(std::nearbyint(track)) : 0;
}

} // namespace

FileEnd ReadFileEnd(const platform::FileBytes& file)
{
    const qint64 start = std::max<qint64>(0, file.Size() - Id3v1Size - Lyrics3EndSize);
    const QByteArray bytes = file.Read(start, file.Size() - start);
    const qsizetype blockAt = bytes.size() - Id3v1Size;
    const bool hasBlock = blockAt >= 0 && bytes.sliced(blockAt).startsWith("TAG");
    const QByteArray audio = hasBlock ? bytes.first(blockAt) : bytes;
    return {.id3v1 = hasBlock ? bytes.sliced(blockAt) : QByteArray(),
            .audio = audio.right(Lyrics3EndSize),
            .audioEnd = file.Size() - (hasBlock ? Id3v1Size : 0)};
}

void FillFromId3v1(QByteArrayView block, Id3Tags& tags)
{
    SetIfEmpty(tags.Title, FieldOf(block, 4, 30));
    SetIfEmpty(tags.Artist, FieldOf(block, 34, 30));
    SetIfEmpty(tags.Album, FieldOf(block, 64, 30));
    SetIfEmpty(tags.Year, FieldOf(block, 94, 4));
    // A zero in front of the comment's last byte makes that byte the track of ID3v1.1.
    const int track = static_cast<uchar>(block[125]) * 256 + static_cast<uchar>(block[126]);
    const bool hasTrack = track >= 1 && track <= 255;
    SetIfEmpty(tags.Comments, FieldOf(block, 98, hasTrack ? 28 : 30));
    if (hasTrack) {
        SetIfEmpty(tags.TrackNumber, QString::number(track));
    }
    if (tags.GenreID == OtherGenre || tags.GenreID == UnknownGenre) {
        tags.GenreID = static_cast<uchar>(block[127]);
    }
}

QByteArray BuildId3v1(const Id3Tags& tags)
{
    const int genre = GenreByte(tags);
    const bool isEmpty = tags.Title.isEmpty() && tags.Artist.isEmpty() && tags.Album.isEmpty() &&
                         tags.Year.isEmpty() && tags.Comments.isEmpty() && tags.TrackNumber.isEmpty();
    if (isEmpty && (genre == OtherGenre || genre == UnknownGenre)) {
        return {};
    }
    const int track = TrackByte(tags);
    const QByteArray comments =
        track == 0 ? Field(tags.Comments, 30) : Field(tags.Comments, 28) + '\0' + static_cast<char>(track);
    return "TAG" + Field(tags.Title, 30) + Field(tags.Artist, 30) + Field(tags.Album, 30) +
           Field(tags.Year, 4) + comments + static_cast<char>(genre);
}

} // namespace metadata

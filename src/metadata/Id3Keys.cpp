// SPDX-License-Identifier: MIT
#include "metadata/Id3Keys.h"

#include "platform/Conversions.h"

#include <QHash>

namespace metadata {

namespace {

QString TextOf(std::optional<double> number)
{
    return number ? platform::DoubleText(*number) : QString();
}

const QHash<QString, QString Id3Tags::*>& TextKeys()
{
    static const QHash<QString, QString Id3Tags::*> keys{
        {QStringLiteral("Album"), &Id3Tags::Album},
        {QStringLiteral("Artist"), &Id3Tags::Artist},
        {QStringLiteral("Band"), &Id3Tags::Band},
        {QStringLiteral("Composer"), &Id3Tags::Composer},
        {QStringLiteral("Conductor"), &Id3Tags::Conductor},
        {QStringLiteral("Copyright"), &Id3Tags::Copyright},
        {QStringLiteral("Genre"), &Id3Tags::Genre},
        {QStringLiteral("OriginalAlbum"), &Id3Tags::OriginalAlbum},
        {QStringLiteral("OriginalArtist"), &Id3Tags::OriginalArtist},
        {QStringLiteral("OriginalFileName"), &Id3Tags::OriginalFileName},
        {QStringLiteral("OriginalLyricist"), &Id3Tags::OriginalLyricist},
        {QStringLiteral("OriginalReleaseYear"), &Id3Tags::OriginalReleaseYear},
        {QStringLiteral("Publisher"), &Id3Tags::Publisher},
        {QStringLiteral("Title"), &Id3Tags::Title},
        {QStringLiteral("TrackNumber"), &Id3Tags::TrackNumber},
        {QStringLiteral("TracksTotal"), &Id3Tags::TracksTotal},
        {QStringLiteral("Year"), &Id3Tags::Year},
    };
    return keys;
}

} // namespace

const QStringList& OfferedId3Keys()
{
    static const QStringList keys{
        QStringLiteral("Album"),
        QStringLiteral("Artist"),
        QStringLiteral("Band"),
        QStringLiteral("Bitrate"),
        QStringLiteral("Composer"),
        QStringLiteral("Conductor"),
        QStringLiteral("Copyright"),
        QStringLiteral("Genre"),
        QStringLiteral("Length"),
        QStringLiteral("OriginalAlbum"),
        QStringLiteral("OriginalArtist"),
        QStringLiteral("OriginalFilename"),
        QStringLiteral("OriginalLyricist"),
        QStringLiteral("OriginalReleaseYear"),
        QStringLiteral("Publisher"),
        QStringLiteral("SamplingRateFrequency"),
        QStringLiteral("Title"),
        QStringLiteral("TrackNumber"),
        QStringLiteral("TracksTotal"),
        QStringLiteral("Year"),
    };
    return keys;
}

QString ValueOfId3Key(const clsID3& tags, const QString& key)
{
    if (const auto found = TextKeys().constFind(key); found != TextKeys().cend()) {
        return tags.*(*found);
    }
    if (key == QStringLiteral("Bitrate")) {
        return TextOf(tags.Mpeg().BitRate());
    }
    if (key == QStringLiteral("length")) {
        return TextOf(tags.Mpeg().Length());
    }
    return key == QStringLiteral("SamplingRateFrequency")
               ? QString::number(tags.Mpeg().SamplingRateFrequency())
               : QString();
}

} // namespace metadata

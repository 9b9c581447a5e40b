// SPDX-License-Identifier: MIT
//
// Names from what pictures and music tell. These tests catch data of the wrong row, a token that is taken for
// another, and an action that makes the wrong thing of missing data.
#include "metadata/ExifBuilder.h"
#include "metadata/Mp3Builder.h"
#include "support/WorkspaceFixture.h"

namespace {

using testing_support::ExifBuilder;

class Metadata : public testing_support::WorkspaceFixture
{
protected:
    static std::string Date(const std::string& text) { return text + std::string(1, '\0'); }

    // A picture as a camera makes it: its date is the seventh line.
    void Picture(const QString& name, const std::string& date)
    {
        ExifBuilder exif;
        exif.Add(271, 2, 6, Date("Canon")).Add(272, 2, 4, Date("EOS")).Add(274, 3, 1, exif.Number(1, 2));
        exif.Add(282, 5, 1, exif.Fraction(72, 1)).Add(283, 5, 1, exif.Fraction(72, 1)).Add(296, 3, 1, "\2");
        exif.Add(306, 2, 20, Date(date)).Add(33437, 5, 1, exif.Fraction(28, 10), true);
        folder.Write(name, QByteArray::fromStdString(exif.Picture()));
    }

    void Take(const QStringList& names)
    {
        mainList.Clear();
        List(names);
        workspace.Refreshrnm();
        host.TakeEvents();
    }

    QString PreviewOf(const QString& action, const QString& value)
    {
        Select({action});
        options.replaceAll.cmbAll.combo = options.prefix.cmbPrefix.combo =
            options.replaceFirst.cmbFirst.combo = value;
        return Preview().join(u'|');
    }
};

TEST_F(Metadata, PicturesTellByTheirLines)
{
    Picture(u"a.jpg"_qs, "2009:05:30 12:04:09");
    folder.Write(u"b.jpg"_qs, "no picture");
    folder.Write(u"c.txt"_qs);
    Take({u"a.jpg"_qs});
    const std::pair<QString, QString> values[] = {
        {u"$Exif_Make"_qs, u"Canona.jpg"_qs},
        {u"$Exif_FNumber"_qs, u"2.8a.jpg"_qs},
        {u"$Exif_DateTime"_qs, u"2009:05:30 12:04:09a.jpg"_qs},
        {u"$Exif_None"_qs, u"a.jpg"_qs},
        {u"x$Exif_Make"_qs, u"a.jpg"_qs}, // the key is "f_Make"
        {u"$Exif_Mode"_qs, u" EOSa.jpg"_qs},
        {u"$Exif_Make: Canon"_qs, u"a.jpg"_qs}, // longer than its line less two: the action fails
        {u"$Exif_date_$yyyymmdd$"_qs, u"20090530a.jpg"_qs},
        {u"$Exif_date_$min$"_qs, u"05a.jpg"_qs},
        {u"$Exif_date_$hour$"_qs, u"12a.jpg"_qs},
        {u"$Exif_date_$sec$"_qs, u"09a.jpg"_qs},
        {u"$Exif_date_$mm$"_qs, u"05a.jpg"_qs},
        {u"$Exif_date_$dd$"_qs, u"30a.jpg"_qs},
        {u"$Exif_date_$yy$"_qs, u"09a.jpg"_qs},
        {u"$Exif_date_$time_24hrs$"_qs, u"1204a.jpg"_qs},
        {u"$Exif_date_$yymmdd$"_qs, u"090530a.jpg"_qs},
        {u"$Exif_date_word"_qs, u"$Exif_date_worda.jpg"_qs},
        {u"$Exif_time_$sec$"_qs, u"a.jpg"_qs},
    };
    for (const auto& [value, name] : values) {
        EXPECT_EQ(PreviewOf(u"Prefix"_qs, value), name) << value.toStdString();
    }
    // What isn't a picture by its type has no data; one that isn't by its content keeps those of the last.
    Take({u"a.jpg"_qs, u"b.jpg"_qs, u"c.txt"_qs});
    EXPECT_EQ(PreviewOf(u"Prefix"_qs, u"$Exif_Make"_qs), u"Canona.jpg|Canonb.jpg|c.txt"_qs);
    EXPECT_EQ(PreviewOf(u"Replace All"_qs, u"$Exif_Make"_qs), u"Canon.jpg|Canon.jpg|.txt"_qs);
    EXPECT_EQ(PreviewOf(u"Replace First"_qs, u"$Exif_Make"_qs).section(u'|', 2), u"c.txt"_qs);
    Picture(u"d.jpg"_qs, "some other day....");
    Take({u"d.jpg"_qs});
    EXPECT_EQ(PreviewOf(u"Prefix"_qs, u"$Exif_date_$yyyy$"_qs), u"d.jpg"_qs) << "no date";
}

TEST_F(Metadata, MusicTellsByItsKeys)
{
    using testing_support::Audio;
    using testing_support::Id3v1;
    folder.Write(u"a.Mp3"_qs, Audio(0xFFFB9000, {}, 16'004) + Id3v1("Title", "Artist", "", 17));
    folder.Write(u"b.mp3"_qs, "nothing");
    folder.Write(u"c.txt"_qs, Id3v1("Title", "Artist", "", 17));
    Take({u"a.Mp3"_qs, u"b.mp3"_qs, u"c.txt"_qs});
    const std::pair<QString, QString> values[] = {
        {u"$MP3_ID3_Artist"_qs, u"Artista.Mp3|b.mp3|c.txt"_qs},
        {u"Album$MP3_ID3_"_qs, u"One Albuma.Mp3|b.mp3|c.txt"_qs},
        {u"$MP3_ID3_artist"_qs, u"a.Mp3|b.mp3|c.txt"_qs},
        {u"$MP3_ID3_Length"_qs, u"a.Mp3|b.mp3|c.txt"_qs}, // the offered spelling isn't the one that is known
        {u"$MP3_ID3_length"_qs, u"0.9999375a.Mp3|b.mp3|c.txt"_qs},
        {u"$MP3_ID3_Bitrate"_qs, u"128000a.Mp3|0b.mp3|c.txt"_qs},
    };
    for (const auto& [value, names] : values) {
        EXPECT_EQ(PreviewOf(u"Prefix"_qs, value), names) << value.toStdString();
    }
    EXPECT_EQ(PreviewOf(u"Replace All"_qs, u"$MP3_ID3_Title"_qs), u"Title.Mp3|b.mp3|c.txt"_qs);
    folder.MakeFolder(u"d.mp3"_qs);
    Take({u"a.Mp3"_qs, u"d.mp3"_qs});
    EXPECT_EQ(PreviewOf(u"Prefix"_qs, u"$MP3_ID3_Bitrate"_qs), u"128000a.Mp3|0d.mp3"_qs)
        << "a folder's name has an extension here";
}

TEST_F(Metadata, PictureDatesAreReadOnceForASort)
{
    Picture(u"new.jpg"_qs, "2020:01:02 03:04:05");
    Picture(u"old.jpg"_qs, "2001:01:02 03:04:05");
    Take({u"new.jpg"_qs, u"old.jpg"_qs});
    const auto sorted = [&](const QString& entry) {
        workspace.SortBy(static_cast<int>(workspace::RenameWorkspace::SortEntries().indexOf(entry)));
        return Column(workspace::GridPre::Original).join(u' ');
    };
    EXPECT_EQ(sorted(u"Picture Taken Date (Old to New)"_qs), u"old.jpg new.jpg"_qs);
    Picture(u"old.jpg"_qs, "2030:01:02 03:04:05");
    EXPECT_EQ(sorted(u"Picture Taken Date (New to Old)"_qs), u"new.jpg old.jpg"_qs) << "as they were read";
    workspace.Refreshrnm();
    EXPECT_EQ(sorted(u"Picture Taken Date (New to Old)"_qs), u"old.jpg new.jpg"_qs);
    EXPECT_EQ(workspace.grid.Cell(1, workspace::GridPre::PictureTakenDate),
              u"DateTime: 2030:01:02 03:04:05"_qs);
}

} // namespace

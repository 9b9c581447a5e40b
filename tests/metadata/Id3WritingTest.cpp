// SPDX-License-Identifier: MIT
#include "Mp3Builder.h"
#include "metadata/clsID3.h"
#include "support/Refusals.h"
#include "support/TempFolder.h"

#include <QDateTime>
#include <QFile>

#include <fcntl.h>
#include <functional>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using metadata::clsID3;
using namespace std::string_view_literals;
using testing_support::Id3Frame;
using testing_support::Id3Tag;
using testing_support::Id3v1;
using testing_support::Lyrics3Field;
using testing_support::Lyrics3v2;

QByteArray Bytes(std::string_view text)
{
    return QByteArray(text.data(), static_cast<qsizetype>(text.size()));
}

QByteArray Zeros(qsizetype count)
{
    return QByteArray(count, '\0');
}

// A frame with a text, as it is written.
QByteArray Text(const QByteArray& id, const QByteArray& text, int major = 3)
{
    return Id3Frame(id, Zeros(1) + text, major);
}

const QByteArray TheAudio = testing_support::Audio(0xFFFB9000) + Bytes("\xFF\0end"sv);

class Id3Writing : public testing::Test
{
protected:
    Id3Writing() { qputenv("TEMP", platform::ToBytes(temporary.Path().chopped(1))); }
    ~Id3Writing() override { qunsetenv("TEMP"); }

    // The bytes of a file after its properties were changed and written.
    template<class Change>
    QByteArray Updated(const QByteArray& before, Change change)
    {
        folder.Write(u"a.mp3"_qs, before);
        clsID3 id3;
        id3.SetFileName(folder.Path() + u"a.mp3"_qs);
        change(id3);
        const auto status = id3.UpdateID3Tags();
        EXPECT_TRUE(status.IsOk()) << status.Description().toStdString();
        EXPECT_TRUE(temporary.Names().isEmpty());
        return folder.Content(u"a.mp3"_qs);
    }

    testing_support::TempFolder folder;
    testing_support::TempFolder temporary;
};

// A file with nothing but those frames and that padding; a genre that isn't known is told all the same.
QByteArray Tagged(int major, const QByteArray& frames, qsizetype padding, int flags = 0)
{
    return Id3Tag(major, frames + Zeros(padding), flags) + TheAudio;
}

TEST_F(Id3Writing, AFileWithoutTagsGetsOneWithPadding)
{
    const QByteArray after = Updated(TheAudio, [](clsID3& id3) {
        id3.Artist = u"Ärger €"_qs;
        id3.Comments = u"日本"_qs;
        id3.TrackNumber = u"7"_qs;
        id3.TracksTotal = u"12"_qs;
        id3.GenreID = -1;
        id3.Genre = u"Club"_qs;
        id3.ArtistURL.Add("http://a", true);
        id3.ArtistURL.Add("http://b", true);
    });
    const QByteArray frames = Id3Frame("COMM", Bytes("\1eng\xFF\xFE\0\0\xFF\xFE\xE5\x65\x2C\x67"sv)) +
                              Text("TCON", "(RX)Club") + Text("TPE1", "\xC4rger \x80") +
                              Text("TRCK", "7/12") + Id3Frame("WOAR", "http://a") +
                              Id3Frame("WOAR", "http://b");
    EXPECT_EQ(after.left(after.size() - 128).toHex(), Tagged(3, frames, 2'048).toHex());
    EXPECT_EQ(after.right(128), "TAG" + Zeros(30) + QByteArray("\xC4rger \x80").leftJustified(30, '\0') +
                                    Zeros(34) + QByteArray("??").leftJustified(29, '\0') + "\x07\x0C");
    clsID3 again;
    again.SetFileName(folder.Path() + u"a.mp3"_qs);
    EXPECT_EQ(again.Comments + again.Artist + again.TracksTotal, u"日本Ärger €12"_qs);
}

TEST_F(Id3Writing, FramesAreReplacedWhereTheyStand)
{
    const QByteArray described = Id3Frame("COMM", Bytes("\0engWhy\0Because"sv));
    const QByteArray unknown = Id3Frame("TXXX", Bytes("\0Key\0Value"sv), 3, 32);
    const QByteArray picture = Id3Frame("APIC", Bytes("\1image/png\0\3\xFF\xFE\0\0PIXELS"sv));
    const QByteArray before =
        Text("TIT2", "Old") + described + unknown + Id3Frame("COMM", Bytes("\0deu\0One"sv)) +
        Id3Frame("COMM", Bytes("\0eng\0Two"sv)) + picture + Id3Frame("WCOM", "http://a") + picture +
        Id3Frame("WCOM", "http://b") + Text("TPE1", "Gone") + Text("TCON", "Polka") + Text("TIT2", "Last");
    const auto change = [](clsID3& id3) {
        EXPECT_EQ(id3.Title + id3.Comments, u"LastTwo"_qs);
        id3.Title = u"New"_qs;
        id3.Artist.clear();
        id3.Band = u"Brass"_qs;
        id3.AttachedPictures.Add("image/gif\0\3\0GIF", true);
    };
    const QByteArray after = Text("TIT2", "New") + described + unknown +
                             Id3Frame("COMM", Bytes("\0eng\0Two"sv)) + picture +
                             Id3Frame("WCOM", "http://a") + Id3Frame("APIC", QByteArray("\0image/gif", 10)) +
                             Text("TCON", "Polka") + Text("TIT2", "New") + Text("TPE2", "Brass");
    for (const qsizetype padding : {300, 0}) {
        const QByteArray written = Updated(Tagged(3, before, padding), change);
        EXPECT_EQ(written.chopped(128), Tagged(3, after, padding == 0 ? 2'048 : padding)) << padding;
    }
}

TEST_F(Id3Writing, EachVersionKeepsItsForm)
{
    const auto nothing = [](clsID3&) {
    };
    const QByteArray unsynced = Id3Frame("TPUB", "123").chopped(3) + Bytes("\0\xFF\0\xE0"sv);
    struct Row
    {
        const char* what;
        QByteArray before;
        QByteArray after;
    };
    const Row rows[] = {
        {"2.2", Tagged(2, Text("TT2", "A") + Text("TYE", "1999") + Id3Frame("CRM", "x"), 5),
         Tagged(2, Text("TT2", "A") + Text("TYE", "1999") + Id3Frame("CRM", "x") + Text("TCO", "(255)"), 5)},
        {"2.2, compressed", Id3Tag(2, "zipped", 64) + TheAudio, Tagged(2, Text("TCO", "(255)"), 2'048)},
        {"2.3, cut off", Id3Tag(3, Id3Frame("TXXX", Bytes("\0Key\0Value"sv)).chopped(3)) + TheAudio,
         Tagged(3, Id3Frame("TXXX", Bytes("\0Key\0Va"sv)) + Text("TCON", "(255)"), 2'048)},
        {"2.3, unsynchronised", Tagged(3, unsynced, 1, 128),
         Tagged(3, Text("TPUB", "\xFF\xE0") + Text("TCON", "(255)"), 1)},
        {"2.3, extended header: its flag stays",
         Tagged(3, Bytes("\0\0\0\6\0\0\0\0\0\0"sv) + Text("TPE2", "B"), 9, 64),
         Tagged(3, Text("TPE2", "B") + Text("TCON", "(255)"), 9, 64)},
        {"2.4", Tagged(4, Text("TDRC", "2004-05", 4) + Text("TPE2", QByteArray(200, 'x'), 4), 9),
         Tagged(4, Text("TDRC", "2004", 4) + Text("TPE2", QByteArray(200, 'x'), 4) + Text("TCON", "(255)", 4),
                9)},
        {"2.4 with a footer", Id3Tag(4, Text("TPE2", "B", 4) + Zeros(3), 16) + Zeros(10) + TheAudio,
         Id3Tag(4, Text("TPE2", "B", 4) + Text("TCON", "(255)", 4) + Zeros(3), 16) +
             Bytes("3DI\4\0\x10\0\0\0\x1F"sv) + TheAudio},
    };
    for (const Row& row : rows) {
        QByteArray after = Updated(row.before, nothing);
        EXPECT_EQ(after.left(row.after.size()).toHex(), row.after.toHex()) << row.what;
        const bool hasBlock = row.after.contains("1999") || row.after.contains("2004");
        EXPECT_EQ(after.size() - row.after.size(), hasBlock ? 128 : 0) << row.what;
        const bool isReadable = !QByteArrayView(row.what).contains("extended");
        EXPECT_EQ(Updated(after, nothing) == after, isReadable) << row.what << ", written again";
    }
}

TEST_F(Id3Writing, ValuesAndBytesOfTheLastBlock)
{
    using metadata::Id3Tags;
    // what is set, the frame that tells it (or none), the last bytes of the ID3v1 block
    struct Row
    {
        const char* what;
        std::function<void(Id3Tags&)> set;
        QByteArray frame;
        QByteArray end;
    };
    const Row rows[] = {
        {"a code has no byte", [](auto& tags) { tags.Title = u"T"_qs, tags.GenreID = -2; },
         Text("TCON", "(CR)"), "\x0C"},
        {"a name beside a number that says nothing",
         [](auto& tags) { tags.Title = u"T"_qs, tags.GenreID = 12, tags.Genre = u"Polka"_qs; },
         Text("TCON", "Polka"), "\x4B"},
        {"a name that says nothing",
         [](auto& tags) { tags.Title = u"T"_qs, tags.GenreID = 3, tags.Genre = u"Unknown"_qs; },
         Text("TCON", "(3)"), "\x03"},
        {"a total alone is nothing",
         [](auto& tags) { tags.Title = u"T"_qs, tags.TracksTotal = u"9"_qs; },
         {},
         Bytes("\0\0\xFF"sv)},
        {"a track that no byte holds", [](auto& tags) { tags.TrackNumber = u"256"_qs; }, Text("TRCK", "256"),
         Bytes("\0\0\xFF"sv)},
        {"a track alone makes a block", [](auto& tags) { tags.TrackNumber = u"255"_qs; }, Text("TRCK", "255"),
         Bytes("\0\xFF\xFF"sv)},
        {"a genre alone makes none",
         [](auto& tags) { tags.GenreID = 12, tags.Genre = u"Other"_qs; },
         {},
         "end"},
        {"30 characters fit",
         [](auto& tags) { tags.Artist = QString(30, u'a'), tags.GenreID = 0; },
         {},
         Bytes("\0\0\0"sv)},
        {"a link of other letters", [](auto& tags) { tags.PaymentURL = u"http://x/日"_qs; },
         Id3Frame("WPAY", "http://x/%E6%97%A5"), "end"},
        {"bytes that look like a mark", [](auto& tags) { tags.Band = u"！ヾ"_qs; },
         Id3Frame("TPE2", Bytes("\1\xFE\xFF\xFF\x01\x30\xFE"sv)), "end"},
        {"an empty picture", [](auto& tags) { tags.AttachedPictures.Add({}, true); }, {}, "end"},
    };
    for (const Row& row : rows) {
        const QByteArray after = Updated(TheAudio, [&](clsID3& id3) { row.set(id3); });
        EXPECT_TRUE(after.contains(row.frame) && after.endsWith(row.end))
            << row.what << after.right(3).toHex().constData();
        EXPECT_TRUE(!after.contains("LYRICS") && !after.contains("APIC") &&
                    (row.frame.startsWith("TRCK") || !after.contains("TRCK")))
            << row.what;
    }
    const QByteArray year = Updated(Tagged(4, Text("TYER", "1999", 4), 9), [](clsID3& id3) {
        id3.Year = u"2010"_qs;
        id3.Artist = QString(31, u'a');
        id3.OriginalReleaseYear = u"1980"_qs;
    });
    EXPECT_TRUE(year.contains(Text("TYER", "2010", 4)) && year.contains(Text("TDRC", "2010", 4)) &&
                year.contains(Text("TDOR", "1980", 4)));
    EXPECT_TRUE(year.contains(Lyrics3v2("IND0000200" + Lyrics3Field("EAR", QByteArray(31, 'a')))));
}

TEST_F(Id3Writing, BlocksAtTheEnd)
{
    const QString longTitle = QString(u"Title\r\n"_qs).leftJustified(300, u'x');
    const auto setTitle = [&](clsID3& id3) {
        id3.Title = longTitle;
        id3.Comments = QString(30, u'c');
        id3.TrackNumber = u"7"_qs;
        id3.GenreID = -1;
    };
    const QByteArray ett = Lyrics3Field("ETT", "Title[CR][LF]" + QByteArray(243, 'x'));
    const QByteArray block = "TAG" + QByteArray("Title\r\n").leftJustified(30, 'x') + Zeros(64) +
                             QByteArray(28, 'c') + Bytes("\0\7\x0C"sv);
    QByteArray after = Updated(TheAudio, setTitle);
    EXPECT_TRUE(after.endsWith(TheAudio + Lyrics3v2("IND0000200" + ett) + block));
    const QByteArray old = Lyrics3v2(Lyrics3Field("LYR", "words") + Lyrics3Field("XYZ", "kept") +
                                     Lyrics3Field("IND", "10") + Lyrics3Field("ETT", "Short"));
    after = Updated(TheAudio + old + Id3v1("Old", "Old", "Old", 3), setTitle);
    EXPECT_TRUE(
        after.contains(TheAudio + Lyrics3v2("IND0000200" + Lyrics3Field("XYZ", "kept") + ett) + "TAG"));
    EXPECT_TRUE(after.contains(Id3Frame("USLT", Bytes("\0eng\0words"sv)))) << "the song is in the tag now";
    after = Updated(TheAudio + old, [](clsID3& id3) { id3.Title.clear(); });
    EXPECT_TRUE(after.endsWith(TheAudio)) << "no long text, no block";
    const QByteArray version1 = "LYRICSBEGINwords of a song that lasts a whileLYRICSEND";
    after = Updated(TheAudio + version1 + Id3v1("Old", "", "", 3), [](clsID3&) {});
    EXPECT_TRUE(after.contains(TheAudio + "LYRICTAGOld")) << "five letters of an old block stay";
}

TEST_F(Id3Writing, TagsAreTakenOutAndTimesStay)
{
    const QByteArray lyrics = Lyrics3v2(Lyrics3Field("LYR", "words"));
    folder.Write(u"a.mp3"_qs, Id3Tag(4, Text("TIT2", "Old", 4), 16) + Zeros(10) + TheAudio + lyrics +
                                  Id3v1("Old", "Old", "Old", 3));
    const QByteArray path = platform::ToBytes(folder.Path()) + "a.mp3";
    const timespec times[2] = {{1'000'000'000, 1}, {1'100'000'000, 2}};
    clsID3 id3;
    id3.SetFileName(folder.Path() + u"a.mp3"_qs);
    ::utimensat(AT_FDCWD, path.constData(), times, 0);
    EXPECT_TRUE(id3.UpdateID3Tags().IsOk());
    struct stat info
    {};
    ::stat(path.constData(), &info);
    EXPECT_TRUE(info.st_mtim.tv_sec == times[1].tv_sec && info.st_mtim.tv_nsec == 2);
    EXPECT_TRUE(info.st_atim.tv_sec == times[0].tv_sec && info.st_atim.tv_nsec == 1);
    EXPECT_TRUE(id3.DeleteID3Tags().IsOk());
    EXPECT_EQ(folder.Content(u"a.mp3"_qs), TheAudio);
    ::stat(path.constData(), &info);
    EXPECT_TRUE(info.st_mtim.tv_sec == times[1].tv_sec && info.st_mtim.tv_nsec == 2);
    EXPECT_TRUE(id3.Title.isEmpty() && !id3.ID3v2Exists() && temporary.Names().isEmpty());
}

TEST_F(Id3Writing, AFailureLosesNothing)
{
    const auto fails = [](const QString& path) {
        clsID3 id3;
        id3.SetFileName(path);
        id3.Title = u"New"_qs;
        return id3.UpdateID3Tags().Description();
    };
    const QString path = folder.Path() + u"a.mp3"_qs;
    EXPECT_EQ(fails(path), u"File not found"_qs);
    folder.Write(u"a.mp3"_qs, TheAudio);
    {
        const testing_support::FullDisk disk(2'000);
        EXPECT_FALSE(fails(path).isEmpty());
    }
    EXPECT_EQ(folder.Content(u"a.mp3"_qs), TheAudio);
    EXPECT_TRUE(temporary.Names().isEmpty()) << "what isn't whole is of no use";
    // Every temporary name of this minute is taken.
    const QDateTime now = QDateTime::currentDateTime();
    for (int second = 0; second < 120; ++second) {
        temporary.Write(now.addSecs(second).toString(u"'mp3'yyyyMMddHHmmss'.mp3'"_qs), "taken");
    }
    EXPECT_TRUE(fails(path).startsWith(u"File already exists"_qs));
    for (const QString& name : temporary.Names()) {
        EXPECT_EQ(temporary.Content(name), "taken");
        QFile::remove(temporary.Path() + name);
    }
    EXPECT_EQ(folder.Content(u"a.mp3"_qs), TheAudio);
    // Too large for the size in a frame of version 2.2.
    folder.Write(u"a.mp3"_qs, Id3Tag(2, Text("TT2", "A")) + TheAudio);
    clsID3 id3;
    id3.SetFileName(path);
    id3.Comments = QString(1 << 24, u'c');
    EXPECT_EQ(id3.UpdateID3Tags().Description(), u"The tag is too large"_qs);
    EXPECT_EQ(folder.Content(u"a.mp3"_qs), Id3Tag(2, Text("TT2", "A")) + TheAudio);

    // A file that can be emptied, and then takes no byte any more.
    const int sealed = ::memfd_create("sealed", MFD_ALLOW_SEALING);
    ASSERT_EQ(::write(sealed, TheAudio.constData(), static_cast<std::size_t>(TheAudio.size())),
              TheAudio.size());
    ::fcntl(sealed, F_ADD_SEALS, F_SEAL_GROW);
    const QString failure = fails(u"/proc/self/fd/"_qs + QString::number(sealed));
    ::close(sealed);
    ASSERT_EQ(temporary.Names().size(), 1);
    const QString kept = temporary.Names().first();
    EXPECT_TRUE(failure.endsWith(u"; the whole file is kept as "_qs + temporary.Path() + kept))
        << failure.toStdString();
    EXPECT_TRUE(temporary.Content(kept).contains(TheAudio + "TAGNew"));
}

} // namespace

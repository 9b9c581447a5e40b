// SPDX-License-Identifier: MIT
#include "Mp3Builder.h"
#include "metadata/Id3v2.h"
#include "metadata/clsID3.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace {

using metadata::clsID3;
using testing_support::Audio;
using testing_support::BigEndian;
using testing_support::Id3Frame;
using testing_support::Id3Tag;
using testing_support::Id3v1;
using testing_support::Lyrics3Field;
using testing_support::Lyrics3v2;

constexpr quint32 Stereo128 = 0xFFFB9000; // MPEG 1, Layer III, 128 kbps, 44100 Hz

class Id3 : public testing::Test
{
protected:
    clsID3 Read(const QByteArray& bytes)
    {
        folder.Write(u"a.mp3"_qs, bytes);
        clsID3 id3;
        id3.SetFileName(folder.Path() + u"a.mp3"_qs);
        return id3;
    }

    testing_support::TempFolder folder;
};

QByteArray Bytes(std::string_view text)
{
    return QByteArray(text.data(), static_cast<qsizetype>(text.size()));
}

TEST_F(Id3, ATextIsDecodedByItsEncodingAndVersion)
{
    using namespace std::string_view_literals;
    // major version, id, data, flags, the text
    const std::tuple<int, const char*, std::string_view, int, QString> rows[] = {
        {3, "TIT2", "\0Caf\xE9"sv, 0, u"Café"_qs},
        {3, "TIT2", "\0One\0Two"sv, 0, u"One"_qs},
        {3, "TIT2", "Bare"sv, 0, u"Bare"_qs},
        {3, "TIT2",
         "\1\xFF\xFE"
         "A\0\xE9\0\0\0B\0"sv,
         0, u"Aé"_qs},
        {3, "TIT2", "\1\xFE\xFF\0A\0B"sv, 0, u"AB"_qs},
        {3, "TIT2", "\3UTF"sv, 0, u"\u0003UTF"_qs}, // an encoding of 2.4 only
        {3, "TIT2", "\0Packed"sv, 128, QString()},
        {4, "TIT2", "\2\0A\x20\xAC"sv, 0, u"A€"_qs},
        {4, "TIT2", "\2\x4E\xFE\xFF\x41"sv, 0, u"\u4EFE\uFF41"_qs}, // no marks here
        {4, "TIT2", "\3\xE2\x82\xAC!"sv, 0, u"€!"_qs},
        {4, "TIT2", "\3\xF0\x9F\x98\x80"sv, 0, u"\u07D8\u0080"_qs}, // three bytes of four
        {4, "TIT2", "\3ok\xE2\x82"sv, 0, u"ok"_qs},
        {4, "TIT2", "\0\xFF\0\xFF\0"sv, 2, u"ÿÿ"_qs},
        {4, "TIT2", "\0Packed"sv, 8, QString()},
        {2, "TT2", "\0Short"sv, 0, u"Short"_qs},
    };
    for (const auto& [major, id, data, flags, text] : rows) {
        const QByteArray tag =
            Id3Tag(major, Id3Frame(id, Bytes(data), major, flags) +
                              Id3Frame(major == 2 ? "TP1" : "TPE1", Bytes("\0Next"sv), major));
        const clsID3 id3 = Read(tag + QByteArray(200, ' '));
        EXPECT_EQ(id3.Title, text) << major << ' ' << Bytes(data).toHex().constData();
        EXPECT_TRUE(id3.Artist == u"Next"_qs && id3.ID3v2Exists() && id3.ID3RevisionV2() == major);
    }
}

TEST_F(Id3, FramesWithRulesOfTheirOwn)
{
    using namespace std::string_view_literals;
    const auto frame = [](const char* id, std::string_view data) {
        return Id3Frame(id, Bytes(data));
    };
    const clsID3 id3 = Read(Id3Tag(
        3, frame("COMM", "\0engtold\0of"sv) + frame("COMM", "\0eng\0a comment"sv) + frame("XXXX", "?"sv) +
               frame("USLT", "\1eng\xFF\xFE\0\0\xFF\xFEL\0"sv) +
               frame("TDRC", "\0"
                             "2009-05"sv) +
               frame("TRCK", "\0"
                             "3/12"sv) +
               frame("TPOS", "\0A/2/3"sv) + frame("TALB", "\0old"sv) + frame("TALB", "\0new"sv) +
               frame("WCOM", "http://a"sv) + frame("WCOM", "http://b"sv) + frame("WCOM", " I_"sv) +
               frame("APIC", "\0image/png\0\3\0\xFF\0x"sv) + frame("APIC", "\0image/png\0\3\0\xFF\0x"sv) +
               frame("APIC", "\0image/png\0\4\0y"sv) + QByteArray(30, '\0') + frame("TCOM", "\0hidden"sv)));
    EXPECT_EQ(id3.Comments + u'|' + id3.Lyrics + u'|' + id3.Year, u"a comment|L|2009"_qs);
    EXPECT_EQ(id3.TrackNumber + u'/' + id3.TracksTotal + u' ' + id3.DiscNumber + u'/' + id3.DiscsTotal,
              u"3/12 0/"_qs);
    EXPECT_EQ(id3.Album + id3.Composer, u"new"_qs) << "padding ends the frames";
    ASSERT_TRUE(id3.CommercialInfo.Count() == 2 && id3.AttachedPictures.Count() == 2);
    EXPECT_EQ(id3.CommercialInfo.Item(1) + id3.AttachedPictures.Item(1),
              "http://a" + Bytes("image/png\0\3\0\xFF\0x"sv));
    // text, number and text
    const std::tuple<const char*, int, QString> genres[] = {
        {"(17)Rock", 17, u"Rock"_qs}, {"(RX)", -1, QString()},
        {"(CR)x", -2, u"x"_qs},       {"Rock", 255, u"Rock"_qs},
        {"17", 255, u"17"_qs},        {"(rock", 255, u"(rock"_qs},
        {"(x)y", 255, u"y"_qs},       {"(99999999999)", 255, QString()}};
    for (const auto& [text, number, name] : genres) {
        const clsID3 genre = Read(Id3Tag(3, Id3Frame("TCON", QByteArray(1, '\0') + text)));
        EXPECT_TRUE(genre.GenreID == number && genre.Genre == name) << text;
    }
}

TEST_F(Id3, HeadersAndSignaturesOfTags)
{
    using namespace std::string_view_literals;
    const QByteArray title = Id3Frame("TIT2", Bytes("\0T"sv));
    const QByteArray title4 = Id3Frame("TIT2", Bytes("\0T"sv), 4);
    // a tag, the title, whether it is a tag
    const std::tuple<QByteArray, QString, bool> rows[] = {
        {Id3Tag(3, title), u"T"_qs, true},
        {Id3Tag(2, Id3Frame("TT2", "T"), 64), QString(), true},                 // compressed: of no size
        {Id3Tag(3, BigEndian(6, 4) + "123456" + title, 64), u"T"_qs, true},     // extended header
        {Id3Tag(4, BigEndian(6, 4, 128) + "12" + title4, 64), QString(), true}, // its size counts itself
        {Id3Tag(4, title4, 16) + "3DI1234567", u"T"_qs, true},                  // footer
        {Id3Tag(3, "MP3ext V3.3.17(unicode)" + title), QString(), true},
        {Id3Tag(3, "xt V1.2(unicode)" + title), QString(), true},
        {Id3Tag(3, "code)" + title), QString(), true},
        {Id3Tag(3, title).replace(3, 1, "\xFF"), QString(), false},
        {Id3Tag(3, title).replace(6, 1, "\x80"), QString(), false},
    };
    for (const auto& [tag, text, isTag] : rows) {
        const clsID3 id3 = Read(tag + Audio(Stereo128));
        EXPECT_TRUE(id3.Title == text && id3.ID3v2Exists() == isTag) << tag.toHex().constData();
        EXPECT_EQ(id3.Mpeg().FirstFramePos(), tag.size() + 5) << tag.toHex().constData();
    }
    EXPECT_EQ(metadata::UndoUnsync(Bytes("\xFF\0\0\xFF\0\xFF"sv)), Bytes("\xFF\0\xFF\xFF"sv));
    const clsID3 huge = Read("ID3\3" + BigEndian(0, 2) + "\x7F\x7F\x7F\x7F" + title);
    EXPECT_EQ(huge.Title, u"T"_qs) << "a size beyond the file";
}

TEST_F(Id3, LaterTagsFillWhatIsEmpty)
{
    const QByteArray audio = Audio(Stereo128);
    const QByteArray v1 =
        Id3v1("Title of v1", "Artist of v1", QByteArray(28, 'c') + QByteArray("\0\7", 2), 17);
    const QByteArray lyrics = Lyrics3v2(
        Lyrics3Field("IND", "11") + Lyrics3Field("LYR", "[00:12]one[CR][LF]two[LF]") +
        Lyrics3Field("EAR", "Artist of Lyrics3") + Lyrics3Field("ZZZ", "?") + Lyrics3Field("ETT", "L"));
    const clsID3 all = Read(Id3Tag(3, Id3Frame("TIT2", QByteArray("\0T", 2))) + audio + lyrics + v1);
    EXPECT_EQ(
        QStringList({all.Title, all.Artist, all.Album, all.Year, all.Comments, all.TrackNumber, all.Lyrics}),
        QStringList({u"T"_qs, u"Artist of Lyrics3"_qs, u"One Album"_qs, u"1999"_qs, QString(28, u'c'),
                     u"7"_qs, u"[00:12]one\r\ntwo\n"_qs}));
    EXPECT_TRUE(all.ID3v1Exists() && all.Lyrics3v2Exists() && !all.Lyrics3v1Exists() && all.GenreID == 17);
    EXPECT_EQ(all.Mpeg().AudioBytes(), audio.size() - 5) << "up to the Lyrics3 block";

    const clsID3 whole = Read(audio + Id3v1("T", "A", QByteArray(30, 'c'), 255));
    EXPECT_TRUE(whole.Comments.size() == 30 && whole.TrackNumber.isEmpty() && whole.GenreID == 255);
    const clsID3 lost = Read(audio + "LYRICSBEGINfourty and eleven more" + "LYRICSEND" + v1);
    EXPECT_TRUE(lost.Lyrics3v1Exists() && lost.Lyrics == u"fourty and "_qs);
    const clsID3 wrong = Read(audio + "LYRICSBEGIN" + Lyrics3Field("ETT", "L") + "000005LYRICS200");
    EXPECT_TRUE(wrong.Lyrics3v2Exists() && wrong.Title.isEmpty());
    const clsID3 times = Read(audio + Lyrics3v2(Lyrics3Field("IND", "00000000000000001") +
                                                Lyrics3Field("LYR", "[00:12]Hello[CR][LF][00:15]you")));
    EXPECT_EQ(times.Lyrics, u"[0Hello\r\n[00:15]you"_qs);
    EXPECT_TRUE(Read("LYRICSEND").Lyrics3v1Exists() && Read("LYRICS200").Lyrics3v2Exists());
    const clsID3 digits = Read(audio + Lyrics3v2(Lyrics3Field("AUT", "a") + "ETT0000xL"));
    EXPECT_TRUE(digits.Lyricist == u"a"_qs && digits.Title.isEmpty());
    for (const QByteArray& none : {QByteArray(), QByteArray("abc"), QByteArray(127, '\xFF')}) {
        const clsID3 id3 = Read(none);
        EXPECT_TRUE(!id3.ID3v1Exists() && !id3.ID3v2Exists() && id3.ID3RevisionV2() == 3 &&
                    id3.GenreID == 255);
    }
    clsID3 gone = Read(audio + v1);
    gone.SetFileName(folder.Path() + u"none.mp3"_qs);
    EXPECT_TRUE(gone.Title.isEmpty() && !gone.ID3v1Exists() && gone.Mpeg().FirstFramePos() == 0);

    const QByteArray bytes =
        Id3Tag(4, Id3Frame("TIT2", "\3T", 4)) + Audio(Stereo128, "Xing", 60) + lyrics + v1;
    for (qsizetype size = 0; size < bytes.size(); size += 3) {
        Read(bytes.left(size)); // neither crashes
        Read(bytes.mid(size));
    }
}

TEST_F(Id3, TheFirstRealFrameTellsBitRateAndLength)
{
    // header, version, layer, rate, channel mode, bit rate, frame size
    const std::tuple<quint32, int, int, int, int, int, double> rows[] = {
        {0xFFFB9000, 2, 1, 44100, 0, 128'000, 417.9591836734694},
        {0xFFFB9240, 2, 1, 44100, 1, 128'000, 418.9591836734694},
        {0xFFF385C0, 3, 1, 24000, 3, 64'000, 192},
        {0xFFE318C0, 0, 1, 8000, 3, 8'000, 72},
        {0xFFFD4480, 2, 2, 48000, 2, 64'000, 192},
        {0xFFFF3A00, 2, 3, 32000, 0, 96'000, 148},
    };
    for (const auto& [header, version, layer, rate, mode, bitRate, frameSize] : rows) {
        const clsID3 id3 = Read(Audio(header, {}, 4'004));
        const metadata::MpegHeader& mpeg = id3.Mpeg();
        EXPECT_TRUE(mpeg.MPEGVersion() == version && mpeg.Layer() == layer && mpeg.ChannelMode() == mode)
            << header;
        EXPECT_TRUE(mpeg.SamplingRateFrequency() == rate && mpeg.BitRate() == bitRate) << header;
        EXPECT_DOUBLE_EQ(mpeg.FrameSize().value_or(-1), frameSize) << header;
        EXPECT_DOUBLE_EQ(mpeg.Length().value_or(-1), 3'999.0 / bitRate * 8) << header;
    }
    // Candidates that are none: reserved version, layer, rate, bit rates 0 and 15, emphasis 2; then a real
    // one.
    const QByteArray real = Audio(Stereo128);
    for (const quint32 none :
         {0xFFEB9000U, 0xFFF99000U, 0xFFFB9C00U, 0xFFFB0000U, 0xFFFBF000U, 0xFFFB9002U, 0xFF00FF00U}) {
        EXPECT_EQ(Read(BigEndian(none, 4) + real).Mpeg().FirstFramePos(), 9) << none;
    }
    EXPECT_EQ(Read(QByteArray(20'478, ' ') + real).Mpeg().FirstFramePos(), 20'483)
        << "over the end of a chunk";

    const auto vbr = [&](quint32 header, qsizetype at, const QByteArray& mark) {
        return Read(Audio(header, QByteArray(at - 4, '\0') + mark + BigEndian(15, 4) + BigEndian(100, 4) +
                                      BigEndian(41'700, 4) + QByteArray(100, 't') + BigEndian(80, 4)))
            .Mpeg();
    };
    for (const auto& [header, at] :
         {std::pair(0xFFFB9000U, 36), std::pair(0xFFFB90C0U, 21), std::pair(0xFFF390C0U, 13)}) {
        const auto xing = vbr(header, at, "XING");
        EXPECT_TRUE(xing.Encoding() == 1 && xing.VbrFrames() == 100 && xing.VbrBytes() == 41'700 &&
                    xing.VbrToc().size() == 100 && xing.VbrQuality() == 80 && xing.FrameSize() == 417.0);
        EXPECT_EQ(xing.AudioBytes(), 1'000 - 5 - 120);
    }
    const auto info = vbr(Stereo128, 36, "Info");
    EXPECT_TRUE(info.Encoding() == 0 && info.VbrFrames() == 100 && info.BitRate() == 128'000.0);
    EXPECT_DOUBLE_EQ(vbr(Stereo128, 36, "Xing").BitRate().value_or(-1), 417.0 * 44'100 / 144);
    EXPECT_FALSE(Read(Audio(Stereo128, QByteArray(32, '\0') + "Xing" + BigEndian(0, 4))).Mpeg().FrameSize());
    const auto vbri =
        Read(Audio(Stereo128, QByteArray(32, '\0') + "VBRI" + BigEndian(0, 4) + BigEndian(9, 2) +
                                  BigEndian(41'700, 4) + BigEndian(0xFFFFFFFF, 4) + BigEndian(5, 2) +
                                  BigEndian(0, 2) + BigEndian(2, 2)))
            .Mpeg();
    EXPECT_TRUE(vbri.Encoding() == 1 && vbri.VbrQuality() == 9 && vbri.VbrFrames() == -1);
    EXPECT_EQ(vbri.AudioBytes(), 1'000 - 5 - 26 - 10);
}

TEST(Genres, AreFoundByTheirNamesHoweverTheyAreWritten)
{
    for (const auto& [name, id] : std::initializer_list<std::pair<QString, int>>{{u"Drum and Bass"_qs, 127},
                                                                                 {u"rock&ROLL"_qs, 78},
                                                                                 {u"Rock-n-Roll"_qs, 12},
                                                                                 {u"Unknown"_qs, 255},
                                                                                 {u" "_qs, 255},
                                                                                 {u"cover"_qs, -2},
                                                                                 {u"Synth Pop"_qs, 147},
                                                                                 {u"Polka!"_qs, 12}}) {
        EXPECT_EQ(clsID3::ToGenreID(name), id) << name.toStdString();
    }
    EXPECT_EQ(clsID3::GenreName(-3) + clsID3::GenreName(148) + clsID3::GenreName(-1), u"Remix"_qs);
}

} // namespace

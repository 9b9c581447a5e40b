// SPDX-License-Identifier: MIT
#include "ExifBuilder.h"
#include "metadata/clsEXIF.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace {

using metadata::clsEXIF;
using testing_support::ExifBuilder;

QString LinesOf(const clsEXIF& exif)
{
    QStringList lines;
    exif.ListInfo(lines);
    return lines.join(u'|');
}

QString Read(const std::string& picture)
{
    clsEXIF exif({});
    exif.ReadMetaInfo(picture);
    return LinesOf(exif);
}

TEST(Exif, EachFormatAndTagHasItsText)
{
    for (const bool intel : {true, false}) {
        const ExifBuilder in(intel);
        const auto fraction = [&](std::uint32_t numerator, std::uint32_t denominator) {
            return in.Fraction(numerator, denominator);
        };
        const std::string eight(8, '\0');
        // tag, format, components, value, text; a text of "-" can't be told.
        const std::tuple<int, int, std::uint32_t, std::string, QString> rows[] = {
            {271, 2, 6, std::string("Canon\0", 6), u"Make: Canon"_qs},
            {305, 2, 3, std::string("v1\0", 3), u"Software: v1"_qs},
            {305, 2, 5,
             "\xFC"
             "abcd",
             u"Software: \u00FCabcd"_qs},
            {305, 2, 6,
             "\xC3\xBC"
             "abcd",
             u"Software: \u00FCabcd"_qs},
            {274, 3, 1, in.Number(6, 2), u"Orientation: 6"_qs},
            {274, 3, 3, in.Number(513, 2) + "abcd", u"Orientation: 513"_qs}, // the first alone
            {40962, 4, 1, in.Number(4'000'000'000, 4), u"ExifImageWidth: 4000000000"_qs},
            {1, 1, 1, "\x07", u"Tag #1: 7"_qs},
            {2, 0, 9, "abcd", u"Tag #2: 0"_qs},
            {3, 12, 1, in.Number(std::uint64_t{1} << 60, 8), u"Tag #3: 1.15292150460685E+18"_qs},
            {4, 6, 1, "\xFF", u"Tag #4: -128"_qs}, // bits are turned round
            {4, 6, 1, "\x80", u"Tag #4: -1"_qs},
            {4, 6, 1, "\x7F", u"Tag #4: 127"_qs},
            {5, 9, 1, in.Number(0xFFFFFFFF, 4), u"Tag #5: -2147483648"_qs},
            {33434, 5, 1, fraction(1, 60), u"ExposureTime: 60"_qs},
            {33434, 5, 1, fraction(0, 60), u"-"_qs},
            {33437, 5, 1, fraction(28, 10), u"FNumber: 2.8"_qs},
            {37386, 5, 1, fraction(185, 20), u"FocalLength: 9.3"_qs}, // 9.25
            {37378, 5, 1, fraction(3, 1), u"ApertureValue: 2.8"_qs},
            {37378, 5, 1, fraction(0xFFFFFFFF, 1), u"-"_qs},
            {37377, 10, 1, fraction(6, 1), u"ShutterSpeedValue: 64"_qs},
            {37380, 10, 1, fraction(0, 3), u"ExposureBiasValue: 0.0"_qs},
            {37122, 5, 1, fraction(72, 1), u"CompressedBitsPerPixel: 72/1"_qs},
            {37122, 5, 1, fraction(72, 0), u"CompressedBitsPerPixel: 72/0"_qs},
            {6, 10, 1, fraction(0xFFFFFFFF, 2), u"Tag #6: -2147483648/2"_qs},
            {318, 5, 2, fraction(1, 2) + fraction(1, 3), u"-"_qs},
            {36864, 7, 4, "0210", u"ExifVersion: 2.10"_qs},
            {37500, 7, 6,
             "a\x01"
             "b\x7F\x80 ",
             u"MakerNote: ab\u007F "_qs},
            {37121, 7, 4, std::string("\1\2\3\0", 4), u"ComponentsConfiguration: YCbCr"_qs},
            {37121, 7, 4, std::string("\4\5\6\7", 4), u"-"_qs},
            {41729, 7, 1, "\x01", u"SceneType: 1"_qs},
            {37510, 7, 9, std::string("ASCII\0\0\0x", 9), u"UserComment: ASCIIx"_qs},
            {7, 13, 1, "abcd", u"-"_qs},
            {8, 2, 5000, "abcde", u"-"_qs}, // reaches beyond the head
        };
        for (const auto& [tag, format, components, value, text] : rows) {
            ExifBuilder builder(intel);
            builder.Add(tag, format, components, value).Add(272, 2, 1, "m");
            const QString lines = Read(builder.Picture());
            const QString name = clsEXIF::GetTagName(tag) + u": "_qs;
            const QString wanted = text == u"-"_qs ? name + u"|: "_qs : text + u"|Model: m"_qs;
            EXPECT_EQ(lines.left(wanted.size()), wanted) << tag << ' ' << format;
        }
    }
}

TEST(Exif, DirectoriesAndWhatIsReadInTheirPlace)
{
    ExifBuilder both;
    both.Add(271, 2, 1, "m").Add(306, 2, 20, std::string("2009:05:30 12:04:04\0", 20));
    both.Add(36867, 2, 20, std::string("2008:01:02 03:04:05\0", 20), true).Add(40965, 4, 1, "abcd", true);
    EXPECT_TRUE(Read(both.Picture())
                    .startsWith(u"Make: m|DateTime: 2009:05:30 12:04:04|ExifOffset: 50|"
                                "DateTimeOriginal: 2008:01:02 03:04:05|"
                                "ExifInteroperabilityOffset: "_qs));
    // Without an Exif directory, or when the main one ends early, the header passes for one: "II" entries.
    const QString noExif = Read(ExifBuilder().Add(271, 2, 1, "m").Picture());
    EXPECT_EQ(noExif.count(u'|'), 0x4949);
    EXPECT_TRUE(noExif.startsWith(u"Make: m|Tag #42: "_qs) && noExif.endsWith(u": |: "_qs));
    // The Exif directory lies beyond the head.
    ExifBuilder far;
    far.Add(271, 2, 1, "m").Add(34665, 4, 1, far.Number(5'000, 4)).Add(272, 2, 1, "n");
    EXPECT_EQ(Read(far.Picture()), u"Make: m|ExifOffset: 5000|Model: n"_qs);
    ExifBuilder large;
    large.Add(271, 2, 1, "m").Add(34665, 4, 0x80000000, "abcd").Add(272, 2, 1, "n");
    EXPECT_TRUE(Read(large.Picture()).startsWith(u"Make: m|: |: |"_qs)) << "a count that overflows";
    ExifBuilder before;
    before.Add(271, 2, 1, "m").Add(34665, 9, 1, before.Number(0x80000000, 4)).Add(272, 2, 1, "n");
    EXPECT_TRUE(Read(before.Picture()).startsWith(u"Make: m|ExifOffset: -1|Model: n|"_qs));
    for (std::size_t at = 4'070; at < 4'096; ++at) {
        EXPECT_NO_THROW(Read(std::string(at, 'x') + std::string("Exif\0\0II*\0", 10))) << at;
    }
    EXPECT_TRUE(Read("text, and then Exif" + std::string(1, '\0')).isEmpty()) << "zero bytes have no entries";

    const std::string whole = both.Picture();
    for (std::size_t size = 0; size < whole.size(); ++size) {
        std::string damaged = whole;
        damaged[size] = static_cast<char>(~damaged[size]);
        Read(whole.substr(0, size)); // neither crashes
        Read(damaged);
    }
}

TEST(Exif, AFileThatTellsNothingLeavesWhatWasRead)
{
    testing_support::TempFolder folder;
    const std::string picture = ExifBuilder().Add(271, 2, 1, "m").Add(34665, 4, 1, "\xFF\xFF").Picture();
    folder.Write(u"a.jpg"_qs, QByteArray::fromStdString(picture));
    folder.Write(u"short.jpg"_qs, "abc");
    folder.Write(u"empty.jpg"_qs);
    folder.Write(u"late.jpg"_qs, QByteArray(4'092, 'x') + "Exif");
    clsEXIF exif(folder.Path());
    QStringList lines;
    QString text;
    const auto read = [&](const QString& name) {
        exif.SetImageFile(folder.Path() + name);
        return exif.ListInfo(lines);
    };
    EXPECT_EQ(read(u"a.jpg"_qs), QString());
    EXPECT_TRUE(exif.IntelByteAlignment() && exif.MetaInfo(271, text) == 'm' && text == u"m"_qs);
    clsEXIF pair({});
    pair.ReadMetaInfo(ExifBuilder().Add(318, 5, 2, std::string(16, '\1')).Picture());
    EXPECT_EQ(pair.MetaInfo(318, text), 26) << "where it lies, for it isn't one fraction";
    EXPECT_TRUE(exif.MetaInfo(9, text) == 0 && text == u"Tag 9 not found."_qs);
    const QStringList before = lines;
    for (const QString& name : {u"short.jpg"_qs, u"late.jpg"_qs}) {
        EXPECT_EQ(read(name), u"File is not in EXIF format."_qs);
        EXPECT_FALSE(exif.MetaInfo(271, text));
    }
    for (const QString& name : {u"empty.jpg"_qs, u"none.jpg"_qs}) {
        EXPECT_EQ(read(name), QString());
    }
    EXPECT_EQ(lines, before);

    folder.Write(u"exif.ini"_qs,
                 "[MAKE]\r\n; c=d\r\nM = \" Moritz \"\r\nm=second\r\n[model]\nFormat='<@X @X>'\n[make]\nm=x");
    read(u"a.jpg"_qs);
    EXPECT_EQ(lines.at(0), u"Make:  Moritz "_qs);
    folder.Write(u"exif.ini"_qs, "[Make]\nformat=<@X @X>");
    read(u"a.jpg"_qs);
    EXPECT_EQ(lines.at(0), u"Make: <m m>"_qs) << "a changed file counts at once";
}

} // namespace

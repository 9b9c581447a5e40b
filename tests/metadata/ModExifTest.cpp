// SPDX-License-Identifier: MIT
//
// The inspector, by pictures made of bytes. These tests catch numbers that are read as others would read them
// where this one differs, a line of a wrong directory, and pictures that it should refuse.
#include "metadata/modExif.h"

#include "ExifBuilder.h"
#include "support/TempFolder.h"

#include <QDate>
#include <QLocale>

#include <gtest/gtest.h>

namespace {

using metadata::modExif;
using testing_support::ExifBuilder;

class Inspector : public testing::Test
{
protected:
    // The lines of a file, parted by "|", then "whole" or the failure.
    QString LinesOf(const std::string& file)
    {
        folder.Write(u"a.jpg"_qs, QByteArray::fromStdString(file));
        std::vector<metadata::ExifLine> lines;
        platform::Status failure;
        const bool isWhole = inspector.ParseExifSegment(folder.Path() + u"a.jpg"_qs, lines, failure);
        QStringList texts;
        for (const metadata::ExifLine& line : lines) {
            texts << line.text;
        }
        texts << (isWhole ? u"whole"_qs : failure.Description());
        return texts.join(u'|');
    }

    // A picture with the length of its segment, and its end.
    static std::string Whole(std::string picture, int length = 0x7FFF)
    {
        picture[4] = static_cast<char>(length >> 8);
        picture[5] = static_cast<char>(length & 0xFF);
        return picture + "\xFF\xD9";
    }

    testing_support::TempFolder folder;
    modExif inspector;
};

TEST_F(Inspector, EachFormatHasItsWayOfReading)
{
    const std::string pair = ExifBuilder().Fraction(3, 2);
    struct Row
    {
        int tag;
        int format;
        std::uint32_t components;
        std::string value; // of a little-endian picture
        const char* line;
    };
    const Row rows[] = {
        {0x010F, 2, 5, "Maker", "Equipment Make = Maker"},
        {0x0131, 2, 3, std::string("ab\0", 3),
         "Software used = "}, // the end of the bytes turned round, from its zero on
        {0x0100, 3, 1, "\x01", "Image width = 1"},
        {0x0100, 4, 1, std::string("\x05\x01\0\0", 4), "Image width = 21"}, // zero digits are lost
        {0x0100, 3, 3, std::string("\1\0\2\0\3\0", 6), "Image width = 1056816"},
        {0x011A, 5, 1, pair, "Horizontal Resolution = 1.5"},
        {0x9204, 10, 1, ExifBuilder().Fraction(0xFFFFFFFF, 1), "Exposure Bias = -2147483648"},
        {0x9208, 6, 1, "\xFF", "Light source = Undefined/Unknown"},
        {0x920D, 6, 1, "\xFF", "Noise = -128"},
        {0x920D, 8, 1, "\x01", "Noise = 16"}, // turned round twice
        {0x920D, 12, 1, std::string("\0\0\0\0\0\0\xF8\x3F", 8), "Noise = 1.5"},
        {0x920D, 13, 9, "abcd", "Noise = "},
        {0xBEEF, 4, 1, "\x07", "Unknown = 7"},
        {0x0112, 3, 1, "\x06", "Orientation of image = 1st Row is right, 1st Col is top"},
        {0x9209, 3, 1, "\x01", "Flash = Undefined/Unknown"},
        {0x9208, 3, 1, "\x0F", "Light source = White fluorescent (WW 3200 \xE2\x80\x93 3700K)"},
        {0xA001, 3, 1, "\xFF\xFF", "Color space information = Uncalibrated"},
        {0x9101, 7, 5, "13x21", "Component Configuration = Y Cb Cr "},
        {0x9286, 7, 14, std::string("ASCII\0\0\0Hello\0", 14), "User Comments = Hello"},
        {0xA302, 7, 1, "x", "CFA pattern = Sorry skipping this :("},
        {0x927C, 7, 480, std::string(418, 'a') + std::string(62, 'b'), nullptr},
        {0x011A, 5, 1, ExifBuilder().Fraction(1, 0), "Division by zero"},
        {0x0112, 2, 5, "wrong", "Type mismatch"},
        {0x8769, 6, 1, "\xFF", "Invalid procedure call or argument"}, // a directory at -128
    };
    for (const Row& row : rows) {
        ExifBuilder builder;
        builder.Add(row.tag, row.format, row.components, row.value);
        const QString lines = LinesOf(Whole(builder.Picture()));
        const QString line =
            row.line ? QString::fromUtf8(row.line) : u"Manufacturer notes = "_qs + QString(54, u'b');
        const bool fails = !line.contains(u'=');
        EXPECT_EQ(lines.toStdString(), (fails ? line : line + u"|whole"_qs).toStdString());
    }
    const QString day = QLocale::system().toString(QDate(2004, 5, 6), QLocale::LongFormat);
    EXPECT_EQ(inspector.FormatTagValue(2, "2004/05/06").value_or(QString()), day);
    const QString shortDay = QLocale::system().toString(QDate(2004, 5, 6), QLocale::ShortFormat);
    EXPECT_EQ(inspector.FormatTagValue(2, shortDay.toLatin1()).value_or(QString()), day) << "not 1904";
    EXPECT_EQ(inspector.FormatTagValue(4, QByteArray::fromHex("2B223A31939C81EE4E7604F8")),
              u"8.34327106997983E+26"_qs);
    EXPECT_EQ(inspector.DecodeTagValue(1, u" R98 "_qs), u"Conforming to R98 file specification"_qs);
    EXPECT_EQ(inspector.DecodeTagValue(1, u"\tR98"_qs), u"Undefined/Unknown"_qs) << "only blanks are cut";
    EXPECT_EQ(modExif::BytesToNumber(QByteArray("\x01\x05", 2)), 21);
    EXPECT_EQ(modExif::BytesToHex("\x0A\xFF"), u"0AFF"_qs);
}

TEST_F(Inspector, DirectoriesAreVisitedInTheirOrder)
{
    // The GPS directory lies at 60, the Interoperability one at 80, the Exif one where the builder puts it.
    ExifBuilder in(false);
    in.Add(0x0110, 2, 1, "m")
        .Add(0x8825, 4, 1, in.Number(0x90, 4))
        .Add(0xA005, 4, 1, in.Number(0xB0, 4), true);
    in.Add(0x9209, 3, 1, "\x01", true).Add(0x8769, 4, 1, in.Number(0x1A, 4), true);
    std::string picture = in.Picture();
    picture.resize(12 + 0x90, '\0');
    picture +=
        in.Number(1, 2) + in.Number(0x0006, 2) + in.Number(5, 2) + in.Number(1, 4) + in.Number(0xC8, 4);
    picture.resize(12 + 0xB0, '\0');
    picture +=
        in.Number(1, 2) + in.Number(0x1002, 2) + in.Number(3, 2) + in.Number(1, 4) + in.Number(0x2A, 4);
    picture.resize(12 + 0xC8, '\0');
    picture += in.Fraction(0x20, 0x10) + std::string(20, '\0');
    const QString lines = LinesOf(Whole(picture));
    EXPECT_TRUE(lines.startsWith(u"Motarola Header Format - Might have prob's|Camera Model = |"_qs))
        << lines.toStdString();
    EXPECT_EQ(lines.count(u"Flash = "_qs), 1);
    EXPECT_TRUE(lines.contains(u"GPS Altitude = 2|"_qs) && lines.endsWith(u"| = 42|whole"_qs))
        << lines.toStdString();
    EXPECT_TRUE(!lines.contains(u" IFD"_qs) &&
                inspector.ExifRows().at(1) == (modExif::Row{u"110"_qs, u"2"_qs, u"1"_qs}));
    std::string cut = ExifBuilder().Add(0x8825, 4, 1, "\x1A").Picture();
    cut.resize(12 + 0x1A, '\0');
    EXPECT_EQ(LinesOf(Whole(cut + std::string("\1\0\0", 3), 0x1A + 5)), u" = |whole"_qs)
        << "an entry of one byte has no tag";
    const std::size_t rows = inspector.ExifRows().size();
    LinesOf(Whole(ExifBuilder().Add(0x0100, 3, 1, "\x01").Picture()));
    EXPECT_EQ(inspector.ExifRows().size(), rows) << "older rows stay behind the end";
    EXPECT_EQ(inspector.ExifRows().front().at(0), u"100"_qs);
}

TEST_F(Inspector, EveryDirectoryIsReadOnceHoweverMuchItTells)
{
    // One Exif directory leads to another, and that one to the main directory.
    const ExifBuilder in(false);
    const auto directory = [&](int tag, int value, int next) {
        return in.Number(2, 2) + in.Number(tag, 2) + in.Number(4, 2) + in.Number(1, 4) + in.Number(value, 4) +
               in.Number(0x8769, 2) + in.Number(4, 2) + in.Number(1, 4) + in.Number(next, 4);
    };
    std::string data = "MM" + in.Number(42, 2) + in.Number(8, 4) + directory(0x0100, 7, 0x40);
    data.resize(0x40, '\0');
    data += directory(0x0101, 8, 0x80);
    data.resize(0x80, '\0');
    data += directory(0x829A, 9, 8);
    const std::string start("\xFF\xD8\xFF\xE1\0\0Exif\0\0", 12);
    EXPECT_EQ(LinesOf(Whole(start + data)),
              u"Motarola Header Format - Might have prob's|Image width = 7|Image height = 8|"
              u"Exposure Time = 9|whole"_qs);
    // Of 64 KiB 2000 texts of 32 KiB each, all at the same place.
    std::string texts = "MM" + in.Number(42, 2) + in.Number(8, 4) + in.Number(2000, 2);
    for (int entry = 0; entry < 2000; ++entry) {
        texts += in.Number(0x010E, 2) + in.Number(2, 2) + in.Number(0x7FFF, 4) + in.Number(0x10, 4);
    }
    EXPECT_TRUE(
        LinesOf(Whole(start + texts + std::string(0x8000, 'x'))).endsWith(u"|Out of string space"_qs));
}

TEST_F(Inspector, WhatItRefuses)
{
    const std::string picture = ExifBuilder().Add(0x0100, 3, 1, "\x01").Picture();
    const auto with = [&](std::size_t at, const std::string& bytes) {
        return Whole(std::string(picture).replace(at, bytes.size(), bytes));
    };
    const std::pair<std::string, const char*> rows[] = {
        {Whole(picture) + "x", "Not a JPeg file|"},
        {"\xFF\xD9", "Not a JPeg file|"},
        {"", "Not a JPeg file|"},
        {with(2, "\xFF\xDB"), "File information not found|"},
        {"\xFF\xD8\xFF\xDB" + std::string("\0\2", 2) + "\xFF\xD9", "File information not found|"},
        {with(6, "JFIF"), "Not 'Exif' data, Panic|"},
        {with(12, "IM"), "Unknown/Error Header Format|"},
        {Whole(picture), "Image width = 1|whole"},
        {"\xFF\xD8\xFF\xDB" + std::string("\0\x0A\0\0\0\0", 6) + Whole(picture).substr(2),
         "Image width = 1|whole"},
        // a step back by one, from where 3502 bytes are stepped over
        {"\xFF\xD8\xFF\xDB" + std::string("\0\1", 2) + std::string(3497, '\0') + Whole(picture).substr(2),
         "Image width = 1|whole"},
    };
    for (const auto& [file, lines] : rows) {
        EXPECT_EQ(LinesOf(file), QString::fromLatin1(lines));
    }
    EXPECT_EQ(LinesOf(Whole(picture, 0x0105)), u"Image width = 1|whole"_qs)
        << "19 bytes, and what lies behind is 0";
    std::vector<metadata::ExifLine> lines(3);
    platform::Status failure;
    EXPECT_FALSE(inspector.ParseExifSegment(folder.Path(), lines, failure));
    EXPECT_TRUE(lines.empty() && failure.Description() == u"File not found"_qs);
    const std::string whole = Whole(picture);
    for (std::size_t at = 0; at < whole.size(); ++at) {
        std::string damaged = whole;
        damaged[at] = static_cast<char>(~damaged[at]);
        LinesOf(whole.substr(0, at) + "\xFF\xD9"); // neither crashes
        LinesOf(damaged);
    }
}

} // namespace

// SPDX-License-Identifier: MIT
//
// Pictures and music made by other programs (script/test-data), read by ours: what yet other programs read
// from them lies beside each. What the builders of bytes and the readers both got wrong shows here.
#include "metadata/Id3Keys.h"
#include "metadata/clsEXIF.h"
#include "metadata/modExif.h"

#include <QDir>
#include <QFile>
#include <QTextStream>

#include <cmath>
#include <gtest/gtest.h>
#include <map>

namespace {

using Values = std::map<QString, QString>;

// By file name.
std::map<QString, Values> Expected(const QString& suffix)
{
    std::map<QString, Values> files;
    const QDir folder(QStringLiteral(QUILLMARK_TEST_DATA));
    for (const QString& name : folder.entryList({u'*' + suffix})) {
        Values& values = files[folder.filePath(name)];
        QFile expected(folder.filePath(name) + QStringLiteral(".expected"));
        EXPECT_TRUE(expected.open(QIODevice::ReadOnly)) << name.toStdString();
        QTextStream lines(&expected);
        for (QString line; lines.readLineInto(&line);) {
            values[line.section(u'\t', 0, 0)] = line.section(u'\t', 1);
        }
    }
    return files;
}

TEST(RealPictures, TellWhatOtherProgramsRead)
{
    const std::map<QString, int> tags{
        {QStringLiteral("Make"), 271},           {QStringLiteral("Model"), 272},
        {QStringLiteral("Orientation"), 274},    {QStringLiteral("Software"), 305},
        {QStringLiteral("ModifyDate"), 306},     {QStringLiteral("DateTimeOriginal"), 36867},
        {QStringLiteral("CreateDate"), 36868},   {QStringLiteral("ISO"), 34855},
        {QStringLiteral("ExposureTime"), 33434}, {QStringLiteral("FNumber"), 33437},
        {QStringLiteral("FocalLength"), 37386},  {QStringLiteral("Flash"), 37385},
        {QStringLiteral("MeteringMode"), 37383}};
    const auto files = Expected(QStringLiteral(".jpg"));
    EXPECT_GE(files.size(), 4U);
    for (const auto& [path, values] : files) {
        metadata::clsEXIF exif({});
        exif.SetImageFile(path);
        EXPECT_EQ(exif.ReadStatus() == metadata::clsEXIF::Status::NotExif, values.empty());
        for (const auto& [key, value] : values) {
            QString text;
            exif.MetaInfo(tags.at(key), text);
            const double number = value.toDouble();
            const QString wanted = key == QStringLiteral("ExposureTime")
                                       ? QString::number(std::nearbyint(1 / number))
                                   : key == QStringLiteral("FNumber") || key == QStringLiteral("FocalLength")
                                       ? QString::number(number, 'f', 1)
                                       : value;
            EXPECT_EQ(text.toStdString(), wanted.toStdString())
                << path.toStdString() << ' ' << key.toStdString();
        }
    }
}

TEST(RealPictures, AreInspected)
{
    const auto lines = [](const char* name) {
        std::vector<metadata::ExifLine> list;
        platform::Status failure;
        QStringList texts;
        const QString path = QDir(QStringLiteral(QUILLMARK_TEST_DATA)).filePath(QLatin1String(name));
        EXPECT_TRUE(metadata::modExif().ParseExifSegment(path, list, failure));
        for (const metadata::ExifLine& line : list) {
            texts << line.text;
        }
        return texts;
    };
    const QStringList little = lines("exif-first-little-endian.jpg");
    for (const char* line :
         {"Equipment Make = Maker of Cameras", "Orientation of image = 1st Row is right, 1st Col is top",
          "Exposure Time = 0.004", "F-Number = 2.8", "ISO speed rating = 400", "Metering mode = Pattern",
          "Date Picture Taken = 2019:08:07 16:05:03", "Color space information = Uncalibrated",
          "GPS Altitude = 300", "GPS Latitude = 48", "Interoperability Identification = Undefined/Unknown"}) {
        EXPECT_TRUE(little.contains(QLatin1String(line))) << line;
    }
    const QStringList big = lines("exif-first-big-endian.jpg");
    EXPECT_EQ(big.value(0).toStdString(), "Motarola Header Format - Might have prob's");
    EXPECT_TRUE(big.contains(QStringLiteral("Camera Model = Endian")));
}

TEST(RealMusic, TellsWhatOtherProgramsRead)
{
    const auto files = Expected(QStringLiteral(".mp3"));
    EXPECT_GE(files.size(), 7U);
    for (const auto& [path, values] : files) {
        metadata::clsID3 id3;
        id3.SetFileName(path);
        const bool isVariable = id3.Mpeg().Encoding() == 1;
        for (const auto& [key, value] : values) {
            if (key == QStringLiteral("Encoding")) {
                EXPECT_EQ(isVariable, value == QStringLiteral("1")) << path.toStdString();
            } else if (key != QStringLiteral("Bitrate") ||
                       !isVariable) { // a mean, which each rounds in its way
                EXPECT_EQ(metadata::ValueOfId3Key(id3, key).toStdString(), value.toStdString())
                    << path.toStdString() << ' ' << key.toStdString();
            }
        }
    }
}

} // namespace

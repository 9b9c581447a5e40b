// SPDX-License-Identifier: MIT
#include "metadata/ExifTagNames.h"

#include <QHash>

namespace metadata {

namespace {

// Tags of TIFF 6.0 and Exif 2.2, as far as they have a name here.
const QHash<int, QString> Names{
    {270, QStringLiteral("ImageDescription")},
    {271, QStringLiteral("Make")},
    {272, QStringLiteral("Model")},
    {274, QStringLiteral("Orientation")},
    {282, QStringLiteral("XResolution")},
    {283, QStringLiteral("YResolution")},
    {296, QStringLiteral("ResolutionUnit")},
    {305, QStringLiteral("Software")},
    {306, QStringLiteral("DateTime")},
    {318, QStringLiteral("WhitePoint")},
    {319, QStringLiteral("PrimaryChromaticities")},
    {529, QStringLiteral("YCbCrCoefficients")},
    {531, QStringLiteral("YCbCrPositioning")},
    {532, QStringLiteral("ReferenceBlackWhite")},
    {33432, QStringLiteral("Copyright")},
    {33434, QStringLiteral("ExposureTime")},
    {33437, QStringLiteral("FNumber")},
    {36864, QStringLiteral("ExifVersion")},
    {37121, QStringLiteral("ComponentsConfiguration")},
    {37122, QStringLiteral("CompressedBitsPerPixel")},
    {37377, QStringLiteral("ShutterSpeedValue")},
    {37378, QStringLiteral("ApertureValue")},
    {37379, QStringLiteral("BrightnessValue")},
    {37380, QStringLiteral("ExposureBiasValue")},
    {37381, QStringLiteral("MaxApertureValue")},
    {37382, QStringLiteral("SubjectDistance")},
    {37383, QStringLiteral("MeteringMode")},
    {37384, QStringLiteral("LightSource")},
    {37385, QStringLiteral("Flash")},
    {37386, QStringLiteral("FocalLength")},
    {37500, QStringLiteral("MakerNote")},
    {37510, QStringLiteral("UserComment")},
    {34665, QStringLiteral("ExifOffset")},
    {34850, QStringLiteral("ExposureProgram")},
    {34855, QStringLiteral("ISOSpeedRatings")},
    {36867, QStringLiteral("DateTimeOriginal")},
    {37520, QStringLiteral("SubsecTime")},
    {37521, QStringLiteral("SubsecTimeOriginal")},
    {37522, QStringLiteral("SubsecTimeDigitized")},
    {40960, QStringLiteral("FlashPixVersion")},
    {40961, QStringLiteral("ColorSpace")},
    {40962, QStringLiteral("ExifImageWidth")},
    {40963, QStringLiteral("ExifImageHeight")},
    {40964, QStringLiteral("RelatedSoundFile")},
    {40965, QStringLiteral("ExifInteroperabilityOffset")},
    {41486, QStringLiteral("FocalPlaneXResolution")},
    {41487, QStringLiteral("FocalPlaneYResolution")},
    {41488, QStringLiteral("FocalPlaneResolutionUnit")},
    {41493, QStringLiteral("ExposureIndex")},
    {41495, QStringLiteral("SensingMethod")},
    {41728, QStringLiteral("FileSource")},
    {41729, QStringLiteral("SceneType")},
    {41730, QStringLiteral("CFAPattern")},
    {36868, QStringLiteral("DateTimeDigitized")},
};

} // namespace

QString ExifTagName(int number)
{
    const auto found = Names.constFind(number);
    return found != Names.cend() ? *found : QStringLiteral("Tag #") + QString::number(number);
}

const QStringList& OfferedExifTags()
{
    static const QStringList names{
        QStringLiteral("Make"),
        QStringLiteral("Model"),
        QStringLiteral("Orientation"),
        QStringLiteral("XResolution"),
        QStringLiteral("YResolution"),
        QStringLiteral("ResolutionUnit"),
        QStringLiteral("DateTime"),
        QStringLiteral("YCbCrPositioning"),
        QStringLiteral("ExifOffset"),
        QStringLiteral("ExposureTime"),
        QStringLiteral("FNumber"),
        QStringLiteral("ExifVersion"),
        QStringLiteral("DateTimeOriginal"),
        QStringLiteral("DateTimeDigitized"),
        QStringLiteral("ComponentsConfiguration"),
        QStringLiteral("CompressedBitsPerPixel"),
        QStringLiteral("ShutterSpeedValue"),
        QStringLiteral("ApertureValue"),
        QStringLiteral("ExposureBiasValue"),
        QStringLiteral("MaxApertureValue"),
        QStringLiteral("MeteringMode"),
        QStringLiteral("Flash"),
        QStringLiteral("FocalLength"),
        QStringLiteral("MakerNote"),
        QStringLiteral("UserComment"),
        QStringLiteral("FlashPixVersion"),
        QStringLiteral("ColorSpace"),
        QStringLiteral("ExifImageWidth"),
        QStringLiteral("ExifImageHeight"),
        QStringLiteral("ExifInteroperabilityOffset"),
        QStringLiteral("FocalPlaneXResolution"),
        QStringLiteral("FocalPlaneYResolution"),
        QStringLiteral("FocalPlaneResolutionUnit"),
        QStringLiteral("SensingMethod"),
        QStringLiteral("FileSource"),
        QStringLiteral("Tag #41985"),
        QStringLiteral("Tag #41986"),
        QStringLiteral("Tag #41987"),
        QStringLiteral("Tag #41988"),
        QStringLiteral("Tag #41990"),
    };
    return names;
}

} // namespace metadata

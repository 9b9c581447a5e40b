// SPDX-License-Identifier: MIT
#include "metadata/ModExifTables.h"

#include "metadata/ByteView.h"
#include "metadata/modExif.h"

#include <algorithm>
#include <iterator>

namespace metadata {

namespace {

struct Entry
{
    int tag;
    const char* description;
    bool decodes = false;
};

struct Meaning
{
    int tag;
    int number;
    const char* text;
};

// The main directory and the Exif directory.
constexpr Entry MainEntries[] = {
    {0x00FE, "New Subfile Type"},
    {0x00FF, "SubfileType"},
    {0x0100, "Image width"},
    {0x0101, "Image height"},
    {0x0102, "Number of bits per component"},
    {0x0103, "Compression scheme", true},
    {0x0106, "Pixel composition", true},
    {0x010E, "Image title"},
    {0x010F, "Equipment Make"},
    {0x0110, "Camera Model"},
    {0x0111, "Strip Offsets"},
    {0x0112, "Orientation of image", true},
    {0x0115, "Samples Per Pixel"},
    {0x0116, "Number of rows per strip"},
    {0x0117, "Bytes per compressed strip"},
    {0x011A, "Horizontal Resolution"},
    {0x011B, "Vertical Resolution"},
    {0x011C, "Image data arrangement, Planar Configuration", true},
    {0x0128, "Unit of X and Y resolution", true},
    {0x012D, "Transfer function"},
    {0x0131, "Software used"},
    {0x0132, "File change date and time"},
    {0x013B, "Person who created the image"},
    {0x013D, "Predictor"},
    {0x013E, "White point chromaticity"},
    {0x013F, "Chromaticities of primaries"},
    {0x0142, "Tile Width"},
    {0x0143, "Tile Length"},
    {0x0144, "Tile Offsets"},
    {0x0145, "Tile Byte Counts"},
    {0x014A, "Sub IFDs"},
    {0x015B, "JPEG Tables"},
    {0x0200, "Special Mode"},
    {0x0201, "Offset to JPEG SOI"},
    {0x0202, "Bytes of JPEG data"},
    {0x0204, "Digi Zoom"},
    {0x0207, "Software Release"},
    {0x0208, "Pict Info"},
    {0x0209, "Camera ID"},
    {0x0211, "Color space transformation matrix coefficients"},
    {0x0212, "Subsampling ratio of Y to C", true},
    {0x0213, "Y and C positioning", true},
    {0x0214, "Pair of black and white reference values"},
    {0x0F00, "Data Dump"},
    {0x828D, "CFA Repeat Pattern Dim"},
    {0x828E, "CFA Pattern"},
    {0x828F, "Battery Level"},
    {0x8298, "Person who created the image Copyright holder"},
    {0x829A, "Exposure Time"},
    {0x829D, "F-Number"},
    {0x83BB, "IPTC/NAA"},
    {0x8769, "Exif IFD"},
    {0x8773, "InterColorProfile"},
    {0x8822, "Exposure program", true},
    {0x8824, "Spectral sensitivity"},
    {0x8825, "GPS IFD"},
    {0x8827, "ISO speed rating"},
    {0x8828, "Optoelectric conversion factor"},
    {0x8829, "Interlace"},
    {0x882A, "Time Zone Offset"},
    {0x882B, "Self Timer Mode"},
    {0x9000, "Exif Version"},
    {0x9003, "Date Picture Taken"},
    {0x9004, "Date Picture Digitized"},
    {0x9101, "Component Configuration", true},
    {0x9102, "Image compression mode"},
    {0x9201, "Shutter Speed"},
    {0x9202, "Aperture Value"},
    {0x9203, "Brightness Value"},
    {0x9204, "Exposure Bias"},
    {0x9205, "Maximum Lens Aperture"},
    {0x9206, "Subject distance"},
    {0x9207, "Metering mode", true},
    {0x9208, "Light source", true},
    {0x9209, "Flash", true},
    {0x920A, "Lens Focal Length"},
    {0x920B, "Flash Energy"},
    {0x920C, "Spatial Frequency Response"},
    {0x920D, "Noise"},
    {0x9211, "Image Number"},
    {0x9212, "Security Classification"},
    {0x9213, "Image History"},
    {0x9214, "Subject area", true},
    {0x9215, "Exposure Index"},
    {0x9216, "TIFF/EP Standard ID"},
    {0x927C, "Manufacturer notes", true},
    {0x9286, "User Comments", true},
    {0x9290, "DateTime subseconds"},
    {0x9291, "DateTimeOriginal subseconds"},
    {0x9292, "DateTimeDigitized subseconds"},
    {0xA000, "Supported Flashpix Version"},
    {0xA001, "Color space information", true},
    {0xA002, "Exif Image Width"},
    {0xA003, "Exif Image Height"},
    {0xA004, "Related audio file"},
    {0xA005, "Interoperability IFD"},
    {0xA20B, "Flash energy"},
    {0xA20C, "Spatial frequency response"},
    {0xA20E, "Focal Plane X Resolution"},
    {0xA20F, "Focal Plane Y Resolution"},
    {0xA210, "Focal plane resolution unit"},
    {0xA214, "Subject location"},
    {0xA215, "Exposure index"},
    {0xA217, "Sensing method", true},
    {0xA300, "File source", true},
    {0xA301, "Scene type", true},
    {0xA302, "CFA pattern", true},
    {0xA401, "Custom image processing", true},
    {0xA402, "Exposure Mode", true},
    {0xA403, "White Balance", true},
    {0xA404, "Digital Zoom Ratio"},
    {0xA405, "Focal length in 35 mm film"},
    {0xA406, "Scene Capture Type", true},
    {0xA407, "Gain control", true},
    {0xA408, "Contrast", true},
    {0xA409, "Saturation", true},
    {0xA40A, "Sharpness", true},
    {0xA40B, "Device settings description"},
    {0xA40C, "Subject distance range", true},
    {0xA420, "Unique image ID"},
};

// The GPS directory.
constexpr Entry GpsEntries[] = {
    {0x0000, "GPS tag version"},
    {0x0001, "GPS North or South Latitude"},
    {0x0002, "GPS Latitude"},
    {0x0003, "GPS East or West Longitude"},
    {0x0004, "GPS Longitude"},
    {0x0005, "GPS Altitude Reference"},
    {0x0006, "GPS Altitude"},
    {0x0007, "GPS time (atomic clock)"},
    {0x0008, "GPS satellites used for measurement"},
    {0x0009, "GPS receiver status"},
    {0x000A, "GPS measurement mode"},
    {0x000B, "GPS Measurement precision"},
    {0x000C, "GPS Speed unit"},
    {0x000D, "GPS Speed of GPS receiver"},
    {0x000E, "GPS Reference for direction of movement"},
    {0x000F, "GPS Direction of movement"},
    {0x0010, "GPS Reference for direction of image"},
    {0x0011, "GPS Direction of image"},
    {0x0012, "GPS Geodetic survey data used"},
    {0x0013, "GPS Reference for latitude of destination"},
    {0x0014, "GPS Latitude of destination"},
    {0x0015, "GPS Reference for longitude of destination"},
    {0x0016, "GPS Longitude of destination"},
    {0x0017, "GPS Reference for bearing of destination"},
    {0x0018, "GPS Bearing of destination"},
    {0x0019, "GPS Reference for distance to destination"},
    {0x001A, "GPS Distance to destination"},
    {0x001B, "GPS Name of GPS processing method"},
    {0x001C, "GPS Name of GPS area"},
    {0x001D, "GPS date"},
    {0x001E, "GPS differential correction"},
};

// The Interoperability directory.
constexpr Entry InteropEntries[] = {
    {0x0001, "Interoperability Identification", true},
    {0x0002, "Interoperability Version"},
    {0x1000, "Related Image File Format"},
    {0x1001, "Related Image Width\\Length"},
};

constexpr Meaning Meanings[] = {
    {0x0103, 0, "Uncompressed"},
    {0x0103, 6, "JPEG compression (thumbnails only)"},
    {0x0106, 2, "RGB"},
    {0x0106, 6, "YCbCr"},
    {0x0112, 1, "1st Row is top, 1st Col is left"},
    {0x0112, 2, "1st Row is top, 1st Col is right"},
    {0x0112, 3, "1st Row is bottom, 1st Col is right"},
    {0x0112, 4, "1st Row is bottom, 1st Col is left"},
    {0x0112, 5, "1st Row is left, 1st Col is top"},
    {0x0112, 6, "1st Row is right, 1st Col is top"},
    {0x0112, 7, "1st Row is right, 1st Col is bottom"},
    {0x0112, 8, "1st Row is left, 1st Col is bottom"},
    {0x011C, 0, "Chunky format"},
    {0x011C, 1, "Planar format"},
    {0x0128, 2, "Inches"},
    {0x0128, 3, "Centimeters"},
    {0x0212, 131073, "YCbCr4:2:2"},
    {0x0212, 131074, "YCbCr4:2:0"},
    {0x0213, 1, "Centered"},
    {0x0213, 2, "Co-sited"},
    {0x8822, 1, "Manual"},
    {0x8822, 2, "Normal program"},
    {0x8822, 3, "Aperture priority"},
    {0x8822, 4, "Shutter priority"},
    {0x8822, 5, "Creative program (biased toward depth of field)"},
    {0x8822, 6, "Action program (biased toward fast shutter speed)"},
    {0x8822, 7, "Portrait mode (for closeup photos with the background out of focus)"},
    {0x8822, 8, "Landscape mode (for landscape photos with the background in focus)"},
    {0x9207, 1, "Average"},
    {0x9207, 2, "Center Weighted Average"},
    {0x9207, 3, "Spot"},
    {0x9207, 4, "MultiSpot"},
    {0x9207, 5, "Pattern"},
    {0x9207, 6, "Partial"},
    {0x9208, 0, "Unknown"},
    {0x9208, 1, "Daylight"},
    {0x9208, 2, "Fluorescent"},
    {0x9208, 3, "Tungsten"},
    {0x9208, 4, "Flash"},
    {0x9208, 9, "Fine weather"},
    {0x9208, 10, "Cloudy weather"},
    {0x9208, 11, "Shade"},
    {0x9208, 12, "Daylight fluorescent (D 5700 – 7100K)"},
    {0x9208, 13, "Day white fluorescent (N 4600 – 5400K)"},
    {0x9208, 14, "Cool white fluorescent (W 3900 – 4500K)"},
    {0x9208, 15, "White fluorescent (WW 3200 – 3700K)"},
    {0x9208, 17, "Standard light A"},
    {0x9208, 18, "Standard light B"},
    {0x9208, 19, "Standard light C"},
    {0x9208, 20, "D55"},
    {0x9208, 21, "D65"},
    {0x9208, 22, "D75"},
    {0x9208, 23, "D50"},
    {0x9208, 24, "ISO studio tungsten"},
    {0x9214, 2, "The main subject given as x y coordinates"},
    {0x9214, 3, "The area of the main subject is given as a circle"},
    {0x9214, 4, "The area of the main subject is given as a rectangle"},
    {0xA001, 1, "sRGB"},
    {0xA001, 65535, "Uncalibrated"},
    {0xA217, 1, "Not defined"},
    {0xA217, 2, "One-chip color area sensor"},
    {0xA217, 3, "Two-chip color area sensor"},
    {0xA217, 4, "Three-chip color area sensor"},
    {0xA217, 5, "Color sequential area sensor"},
    {0xA217, 6, "Trilinear sensor"},
    {0xA217, 7, "Color sequential linear sensor"},
    {0xA300, 3, "DSC"},
    {0xA301, 1, "A directly photographed image"},
    {0xA401, 0, "Normal process"},
    {0xA401, 1, "Custom process"},
    {0xA402, 0, "Auto exposure"},
    {0xA402, 1, "Manual exposure"},
    {0xA402, 2, "Auto bracket"},
    {0xA403, 0, "Auto white balance"},
    {0xA403, 1, "Manual white balance"},
    {0xA406, 0, "Standard"},
    {0xA406, 1, "Landscape"},
    {0xA406, 2, "Portrait"},
    {0xA406, 3, "Night scene"},
    {0xA407, 0, "None"},
    {0xA407, 1, "Low gain up"},
    {0xA407, 2, "High gain up"},
    {0xA407, 3, "Low gain down"},
    {0xA407, 4, "High gain down"},
    {0xA408, 0, "Normal"},
    {0xA408, 1, "Soft"},
    {0xA408, 2, "Hard"},
    {0xA40A, 0, "Normal"},
    {0xA40A, 1, "Soft"},
    {0xA40A, 2, "Hard"},
    {0xA409, 0, "Normal"},
    {0xA409, 1, "Low saturation"},
    {0xA409, 2, "High saturation"},
    {0xA40C, 1, "Macro"},
    {0xA40C, 2, "Close View"},
    {0xA40C, 3, "Distant view"},
};

template<std::size_t Count>
QString Describe(const Entry (&entries)[Count], QByteArrayView tag, bool& decodes,
                 const QString& unknown = QString())
{
    const ByteView bytes(std::string_view(tag.data(), static_cast<std::size_t>(tag.size())));
    const auto number = bytes.UInt16(1, ByteOrder::BigEndian); // none behind the end of the data
    const auto* const found = std::find_if(std::begin(entries), std::end(entries),
                                           [number](const Entry& entry) { return entry.tag == number; });
    decodes = found != std::end(entries) && found->decodes;
    return found == std::end(entries) ? unknown : QString::fromLatin1(found->description);
}

} // namespace

QString modExif::ExifTagName(QByteArrayView tag, bool& decodes)
{
    return Describe(MainEntries, tag, decodes, QStringLiteral("Unknown"));
}

QString modExif::GpsTagName(QByteArrayView tag, bool& decodes)
{
    return Describe(GpsEntries, tag, decodes);
}

QString modExif::InteropTagName(QByteArrayView tag, bool& decodes)
{
    return Describe(InteropEntries, tag, decodes);
}

bool HasExifMeanings(int tag)
{
    return std::any_of(std::begin(Meanings), std::end(Meanings),
                       [tag](const Meaning& meaning) { return meaning.tag == tag; });
}

QString ExifMeaning(int tag, double number)
{
    const auto* const found =
        std::find_if(std::begin(Meanings), std::end(Meanings),
                     [&](const Meaning& meaning) { return meaning.tag == tag && meaning.number == number; });
    return found == std::end(Meanings) ? QString() : QString::fromUtf8(found->text);
}

} // namespace metadata

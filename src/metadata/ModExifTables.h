// SPDX-License-Identifier: MIT
//
// What tags and values of Exif data mean, in words for a person: the tables of the inspector. Source: TIFF
// 6.0, Exif 2.2 and TIFF/EP, in wordings of our own.
#pragma once

#include <QString>

#include <optional>

namespace metadata {

// Which dictionary names the entries of a directory.
enum class IfdKind { Main = 0, Gps = 1, Interoperability = 2 };

// A tag's description; with `decodes` its values have meanings. An unknown tag is "Unknown" in the main
// dictionary and has no description in the two others.
QString ExifDescription(IfdKind kind, int tag, bool& decodes);

// Whether a tag's values are numbers that have meanings.
bool HasExifMeanings(int tag);

// The meaning of such a number; empty if it has none.
QString ExifMeaning(int tag, double number);

} // namespace metadata

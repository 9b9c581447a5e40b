// SPDX-License-Identifier: MIT
//
// What values of Exif data mean, in words for a person: a table of the inspector, beside its dictionaries.
// Source: TIFF 6.0, Exif 2.2 and TIFF/EP, in wordings of our own.
#pragma once

#include <QString>

namespace metadata {

// Whether a tag's values are numbers that have meanings.
bool HasExifMeanings(int tag);

// The meaning of such a number; empty if it has none.
QString ExifMeaning(int tag, double number);

} // namespace metadata

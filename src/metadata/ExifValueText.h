// SPDX-License-Identifier: MIT
//
// The texts of EXIF values. Each format and some tags have their own.
#pragma once

#include "metadata/ByteView.h"

#include <QString>

#include <optional>

namespace metadata {

// Bytes of one component of a format, by its number 0 to 12; nothing for others.
std::optional<std::uint32_t> ExifFormatSize(int format);

// An entry whose value is to be told.
struct ExifValue
{
    int tag = 0;
    int format = 0;
    std::uint32_t components = 0;
    ByteView raw; // the value's bytes, or the entry's four where the value fits into them
    ByteOrder order = ByteOrder::BigEndian;
};

// The value's text; zero bytes are still in it. Of a fraction `number` becomes its value, unless its
// denominator is 0. Nothing if the value can't be told, which ends its directory: a byte that isn't there, a
// division by 0, a number that overflows. So does every fraction of more than one component, unless its tag
// is told by its first alone.
std::optional<QString> ExifValueText(const ExifValue& value, double& number);

} // namespace metadata

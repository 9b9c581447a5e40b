// SPDX-License-Identifier: MIT
//
// The texts of EXIF values. Each format and some tags have their own.
#pragma once

#include "metadata/ByteView.h"

#include <QString>

#include <array>
#include <cstdint>
#include <optional>

namespace metadata {

// Bytes of one component of a format, by its number 0 to 12; nothing for others.
inline std::optional<std::uint32_t> ExifFormatSize(int format)
{
    constexpr std::array<std::uint32_t, 13> sizes{0, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8};
    const auto index = static_cast<std::size_t>(format);
    return format >= 0 && index < sizes.size() ? std::optional(sizes[index]) : std::nullopt;
}

// An entry whose value is to be told.
struct ExifValue
{
    int tag = 0;
    int format = 0;
    std::uint32_t components = 0;
    ByteView raw; // the value's bytes, or the entry's four where the value fits into them: at least four
    ByteOrder order = ByteOrder::BigEndian;
};

// Whether a value can be told. If it can't its directory ends: a byte that isn't there, a division by 0, a
// number that overflows, and every fraction of more than one component, unless its tag is told by its first
// alone. Of a fraction `number` becomes its value, unless its denominator is 0.
bool TakeExifValue(const ExifValue& value, double& number);

// The text of a value that can be told, with the number that was taken; zero bytes are still in it.
QString ExifValueText(const ExifValue& value, double number);

} // namespace metadata

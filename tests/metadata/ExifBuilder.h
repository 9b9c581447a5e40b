// SPDX-License-Identifier: MIT
//
// A tiny language for Exif data: entries with their values, in directories, in a picture. Values longer than
// four bytes lie behind all directories.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace testing_support {

class ExifBuilder
{
public:
    explicit ExifBuilder(bool intel = true) : intel_(intel) {}

    std::string Number(std::uint64_t value, int bytes) const
    {
        std::string text;
        for (int at = 0; at < bytes; ++at) {
            text += static_cast<char>(value >> 8 * (intel_ ? at : bytes - 1 - at));
        }
        return text;
    }
    std::string Fraction(std::uint32_t numerator, std::uint32_t denominator) const
    {
        return Number(numerator, 4) + Number(denominator, 4);
    }

    // An entry of the main directory, or with `inExif` of the Exif directory.
    ExifBuilder& Add(int tag, int format, std::uint32_t components, const std::string& value,
                     bool inExif = false)
    {
        (inExif ? exif_ : main_).push_back({tag, format, components, value});
        return *this;
    }

    // The whole picture; the Exif directory is there if it has entries.
    std::string Picture() const
    {
        std::vector<Entry> main = main_;
        const std::size_t exifAt = 8 + SizeOf(main.size() + (exif_.empty() ? 0 : 1));
        if (!exif_.empty()) {
            main.push_back({34665, 4, 1, Number(exifAt, 4)});
        }
        std::string values;
        const std::size_t valuesAt = exifAt + (exif_.empty() ? 0 : SizeOf(exif_.size()));
        const std::string directories = Directory(main, valuesAt, values) +
                                        (exif_.empty() ? std::string() : Directory(exif_, valuesAt, values));
        return std::string("\xFF\xD8\xFF\xE1\x00\x00", 6) + std::string("Exif\0\0", 6) +
               (intel_ ? "II" : "MM") + Number(42, 2) + Number(8, 4) + directories + values;
    }

private:
    struct Entry
    {
        int tag;
        int format;
        std::uint32_t components;
        std::string value;
    };

    static std::size_t SizeOf(std::size_t entries) { return 2 + entries * 12 + 4; }

    std::string Directory(const std::vector<Entry>& entries, std::size_t valuesAt, std::string& values) const
    {
        std::string bytes = Number(entries.size(), 2);
        for (const Entry& entry : entries) {
            std::string value = entry.value;
            value.resize(std::max<std::size_t>(4, value.size()));
            bytes += Number(static_cast<std::uint64_t>(entry.tag), 2) +
                     Number(static_cast<std::uint64_t>(entry.format), 2) + Number(entry.components, 4);
            bytes += value.size() == 4 ? value : Number(valuesAt + values.size(), 4);
            values += value.size() == 4 ? std::string() : value;
        }
        return bytes + Number(0, 4);
    }

    bool intel_;
    std::vector<Entry> main_;
    std::vector<Entry> exif_;
};

} // namespace testing_support

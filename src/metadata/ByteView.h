// SPDX-License-Identifier: MIT
//
// ByteView: the one way in which the readers of this room look at bytes of a file. Positions count from 1, as
// the formats' own texts do. A read that isn't wholly inside gives nothing; it never gives a shortened
// number.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace metadata {

enum class ByteOrder { BigEndian, LittleEndian };

class ByteView
{
public:
    ByteView() = default;

    // The bytes stay where they are and must outlive the view.
    explicit ByteView(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}
    explicit ByteView(std::string_view bytes)
        : bytes_(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size())
    {}

    std::size_t Size() const { return bytes_.size(); }

    // Whether `count` bytes from `position` on are all there.
    bool Has(std::size_t position, std::size_t count) const
    {
        return position >= 1 && position - 1 <= Size() && count <= Size() - (position - 1);
    }

    std::optional<std::uint8_t> Byte(std::size_t position) const
    {
        return Has(position, 1) ? std::optional(bytes_[position - 1]) : std::nullopt;
    }

    std::optional<std::uint16_t> UInt16(std::size_t position, ByteOrder order) const
    {
        if (!Has(position, 2)) {
            return std::nullopt;
        }
        const std::uint8_t* const at = &bytes_[position - 1];
        return static_cast<std::uint16_t>(order == ByteOrder::BigEndian ? at[0] << 8 | at[1]
                                                                        : at[1] << 8 | at[0]);
    }

    std::optional<std::uint32_t> UInt32(std::size_t position, ByteOrder order) const
    {
        if (!Has(position, 4)) {
            return std::nullopt;
        }
        const std::uint8_t* const at = &bytes_[position - 1];
        const auto join = [](std::uint32_t first, std::uint32_t second, std::uint32_t third,
                             std::uint32_t fourth) {
            return first << 24 | second << 16 | third << 8 | fourth;
        };
        return order == ByteOrder::BigEndian ? join(at[0], at[1], at[2], at[3])
                                             : join(at[3], at[2], at[1], at[0]);
    }

    // The bytes of a part, as a view of their own.
    std::optional<ByteView> Part(std::size_t position, std::size_t count) const
    {
        return Has(position, count) ? std::optional(ByteView(bytes_.subspan(position - 1, count)))
                                    : std::nullopt;
    }

    std::string_view Bytes() const { return {reinterpret_cast<const char*>(bytes_.data()), bytes_.size()}; }

private:
    std::span<const std::uint8_t> bytes_;
};

} // namespace metadata

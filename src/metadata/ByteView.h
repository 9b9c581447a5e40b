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
        const auto value = Number(position, 2, order);
        return value ? std::optional(static_cast<std::uint16_t>(*value)) : std::nullopt;
    }

    std::optional<std::uint32_t> UInt32(std::size_t position, ByteOrder order) const
    {
        return Number(position, 4, order);
    }

    // An unsigned number of one to four bytes.
    std::optional<std::uint32_t> Number(std::size_t position, std::size_t count, ByteOrder order) const
    {
        if (count > 4 || !Has(position, count)) {
            return std::nullopt;
        }
        std::uint32_t value = 0;
        for (std::size_t at = 0; at < count; ++at) {
            const std::size_t next = order == ByteOrder::BigEndian ? at : count - 1 - at;
            value = value << 8 | bytes_[position - 1 + next];
        }
        return value;
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

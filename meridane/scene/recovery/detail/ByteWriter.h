#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <type_traits>

namespace meridane {

/// Appends numbers and texts to bytes, in the form that `ByteReader` reads.
class ByteWriter {
public:
    /// The bytes must outlive the writer.
    explicit ByteWriter(std::string& bytes) noexcept
        : m_bytes(bytes)
    {
    }

    void byte(std::uint8_t value) { m_bytes += static_cast<char>(value); }
    /// In as few bytes as it needs, seven bits in each.
    void number(std::uint64_t value)
    {
        constexpr std::uint64_t more = 0x80;
        for (; value >= more; value >>= 7U)
            byte(static_cast<std::uint8_t>(value | more));
        byte(static_cast<std::uint8_t>(value));
    }
    /// In eight bytes.
    void wideNumber(std::uint64_t value)
    {
        char place[sizeof value];
        std::memcpy(place, &value, sizeof value);
        m_bytes.append(place, sizeof value);
    }
    /// With its length before it.
    void text(std::string_view text)
    {
        number(text.size());
        m_bytes += text;
    }

private:
    std::string& m_bytes;
};

} // namespace meridane

#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace meridane {

/// Reads what `ByteWriter` wrote, from bytes that aren't trusted. Each function returns false if the bytes end too
/// early or have another form; the result is then undefined.
class ByteReader {
public:
    ByteReader() noexcept = default;
    /// The bytes must outlive the reader and what it returns.
    explicit ByteReader(std::string_view bytes) noexcept
        : m_rest(bytes)
    {
    }

    [[nodiscard]] bool atEnd() const noexcept { return m_rest.empty(); }
    [[nodiscard]] std::string_view rest() const noexcept { return m_rest; }

    [[nodiscard]] bool byte(std::uint8_t& value) noexcept
    {
        if (m_rest.empty())
            return false;
        value = static_cast<std::uint8_t>(m_rest.front());
        m_rest.remove_prefix(1);
        return true;
    }
    [[nodiscard]] bool number(std::uint64_t& value) noexcept
    {
        constexpr std::uint8_t more = 0x80;
        value = 0;
        std::uint8_t part = more;
        for (unsigned int shift = 0; (part & more) != 0; shift += 7) {
            constexpr unsigned int lastShift = 63;
            if (shift > lastShift || !byte(part) || (shift == lastShift && part > 1))
                return false;
            value |= std::uint64_t{part & 0x7FU} << shift;
        }
        return true;
    }
    /// A number up to that one.
    [[nodiscard]] bool number(std::uint64_t& value, std::uint64_t greatest) noexcept
    {
        return number(value) && value <= greatest;
    }
    [[nodiscard]] bool wideNumber(std::uint64_t& value) noexcept
    {
        if (m_rest.size() < sizeof value)
            return false;
        std::memcpy(&value, m_rest.data(), sizeof value);
        m_rest.remove_prefix(sizeof value);
        return true;
    }
    [[nodiscard]] bool text(std::string_view& text) noexcept
    {
        std::uint64_t size = 0;
        if (!number(size) || size > m_rest.size())
            return false;
        text = m_rest.substr(0, size);
        m_rest.remove_prefix(text.size());
        return true;
    }

private:
    std::string_view m_rest;
};

} // namespace meridane

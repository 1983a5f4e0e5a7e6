#pragma once

#include "meridane/scene/text/NxEnumeration.h"
#include "meridane/scene/text/TextReader.h"

#include <cstdint>
#include <string>

namespace meridane {

/// The text form of enumeration values and bit masks.
///
/// An enumeration value is its name, or its decimal number where it has none. A mask is the names of its bits joined by
/// ` | `, with the bits that have no name as one hexadecimal number; a mask without bits is the name of the value 0, or
/// `0`. Numbers are read in place of any name.
class EnumFormat {
public:
    enum class Kind { Value, Mask };

    EnumFormat(const NxEnumeration& enumeration, Kind kind) noexcept
        : m_word(reinterpret_cast<std::uintptr_t>(&enumeration) | (kind == Kind::Mask ? maskBit : 0))
    {
    }

    [[nodiscard]] const NxEnumeration& enumeration() const noexcept
    {
        // NOLINTNEXTLINE(performance-no-int-to-ptr): see below
        return *reinterpret_cast<const NxEnumeration*>(m_word & ~maskBit);
    }

    bool read(TextReader& reader, int& value) const;
    bool readWhole(TextReader& reader, int& value) const { return read(reader, value) && reader.expectEnd(); }
    void write(std::string& text, int value) const;

private:
    bool readTerm(TextReader& reader, int& value) const;
    void writeMask(std::string& text, int value) const;

    /// The lowest bit of the enumeration's address is free.
    static constexpr std::uintptr_t maskBit = 1;
    static_assert(alignof(NxEnumeration) > maskBit);

    [[nodiscard]] bool isMask() const noexcept { return (m_word & maskBit) != 0; }

    /// Enumeration and kind in one word: every such field of every node holds one.
    std::uintptr_t m_word;
};

} // namespace meridane

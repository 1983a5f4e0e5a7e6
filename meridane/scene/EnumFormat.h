#pragma once

#include "meridane/scene/NxEnumeration.h"
#include "meridane/scene/TextReader.h"

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
        : m_enumeration(&enumeration)
        , m_kind(kind)
    {
    }

    [[nodiscard]] const NxEnumeration& enumeration() const noexcept { return *m_enumeration; }

    bool read(TextReader& reader, int& value) const;
    bool readWhole(TextReader& reader, int& value) const { return read(reader, value) && reader.expectEnd(); }
    void write(std::string& text, int value) const;

private:
    bool readTerm(TextReader& reader, int& value) const;
    void writeMask(std::string& text, int value) const;

    const NxEnumeration* m_enumeration;
    Kind m_kind;
};

} // namespace meridane

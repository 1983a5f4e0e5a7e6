#include "meridane/query/detail/Spelling.h"

#include "meridane/base/values/Unicode.h"

#include <algorithm>
#include <array>

namespace meridane {
namespace {

struct Replacement {
    char32_t first;
    char32_t last;
    std::string_view ascii; ///< of the first one; digits continue from there
};

constexpr std::string_view degree(&Spelling::degreeSign, 1);
constexpr std::string_view unknown(&Spelling::unknownSign, 1);

constexpr std::array replacements{
    Replacement{U'\u00A0', U'\u00A0', " "}, // no-break space
    Replacement{U'\u00B0', U'\u00B0', degree}, Replacement{U'\u00B7', U'\u00B7', "*"},
    Replacement{U'\u00D7', U'\u00D7', "*"}, Replacement{U'\u00F7', U'\u00F7', "/"},
    Replacement{U'\u03C0', U'\u03C0', "pi"}, Replacement{U'\u061B', U'\u061B', ";"}, // Arabic semicolon
    Replacement{U'\u061C', U'\u061C', ""}, // marks of the direction of writing
    Replacement{U'\u0660', U'\u0669', "0"}, // Arabic digits
    Replacement{U'\u066A', U'\u066A', "%"}, Replacement{U'\u066B', U'\u066B', ","},
    Replacement{U'\u066C', U'\u066C', "'"}, Replacement{U'\u06F0', U'\u06F9', "0"}, // Persian digits
    Replacement{U'\u2000', U'\u200A', " "}, Replacement{U'\u200B', U'\u200F', ""},
    Replacement{U'\u2013', U'\u2013', "-"}, Replacement{U'\u2019', U'\u2019', "'"},
    Replacement{U'\u202A', U'\u202E', ""}, Replacement{U'\u202F', U'\u202F', " "},
    Replacement{U'\u205F', U'\u205F', " "}, Replacement{U'\u2060', U'\u2060', ""},
    Replacement{U'\u2066', U'\u2069', ""}, Replacement{U'\u2212', U'\u2212', "-"},
    Replacement{U'\u2215', U'\u2215', "/"}, Replacement{U'\u2260', U'\u2260', "!="},
    Replacement{U'\u2264', U'\u2264', "<="}, Replacement{U'\u2265', U'\u2265', ">="},
    Replacement{U'\u3000', U'\u3000', " "}, Replacement{U'\uFEFF', U'\uFEFF', ""},
    Replacement{U'\uFF10', U'\uFF19', "0"}, // full-width digits
};

char32_t codePointOf(std::string_view character)
{
    const auto byte = [character](std::size_t i) { return static_cast<unsigned char>(character[i]); };
    switch (character.size()) {
    case 2:
        return ((byte(0) & 0x1FU) << 6U) | (byte(1) & 0x3FU);
    case 3:
        return ((byte(0) & 0xFU) << 12U) | ((byte(1) & 0x3FU) << 6U) | (byte(2) & 0x3FU);
    default:
        return 0;
    }
}

std::string_view spellOther(std::string_view character)
{
    static constexpr std::string_view digits = "0123456789";
    const char32_t codePoint = codePointOf(character);
    const auto found = std::ranges::find_if(replacements,
        [codePoint](const Replacement& entry) { return codePoint >= entry.first && codePoint <= entry.last; });
    if (found == replacements.end())
        return unknown;
    return found->ascii == "0" ? digits.substr(codePoint - found->first, 1) : found->ascii;
}

std::string_view spellCharacter(std::string_view character)
{
    const auto byte = static_cast<unsigned char>(character[0]);
    if (byte >= 0x80)
        return spellOther(character);
    if (byte == '\t' || byte == '\n' || byte == '\r')
        return " ";
    return byte < ' ' || byte == 0x7F ? unknown : character;
}

} // namespace

std::string_view characterAt(std::string_view text, std::size_t offset)
{
    const auto first = static_cast<unsigned char>(text[offset]);
    const std::size_t length = first < 0xC0 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    const std::string_view character = text.substr(offset, length);
    return findInvalidUtf8(character) == std::string_view::npos ? character : character.substr(0, 1);
}

Spelling spell(std::string_view original)
{
    Spelling result;
    for (std::size_t offset = 0; offset < original.size();) {
        const std::string_view character = characterAt(original, offset);
        const std::string_view ascii = spellCharacter(character);
        result.text += ascii;
        result.positions.insert(result.positions.end(), ascii.size(), offset);
        offset += character.size();
    }
    result.positions.push_back(original.size());
    return result;
}

} // namespace meridane

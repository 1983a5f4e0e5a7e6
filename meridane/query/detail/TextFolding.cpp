#include "meridane/query/detail/TextFolding.h"

#include <algorithm>

namespace meridane {
namespace {

char foldAscii(char character) noexcept
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

/// A code point from U+0080 to U+07FF.
unsigned int foldCodePoint(unsigned int point) noexcept
{
    const auto isIn = [point](unsigned int first, unsigned int last) { return point >= first && point <= last; };
    if ((isIn(0xC0, 0xDE) && point != 0xD7) || (isIn(0x391, 0x3A9) && point != 0x3A2) || isIn(0x410, 0x42F))
        return point + 0x20;
    if (isIn(0x400, 0x40F))
        return point + 0x50;
    // Pairs of a capital and a small letter.
    if (isIn(0x100, 0x12F) || isIn(0x132, 0x137) || isIn(0x14A, 0x177) || isIn(0x460, 0x481) || isIn(0x48A, 0x4BF))
        return point | 1U;
    if (isIn(0x139, 0x148) || isIn(0x179, 0x17E))
        return point + (point & 1U);
    return point;
}

} // namespace

void foldText(std::string_view text, std::string& folded)
{
    folded.resize(text.size());
    std::ranges::transform(text, folded.begin(), foldAscii);
    for (std::size_t i = 0; i + 1 < folded.size(); ++i) {
        const auto first = static_cast<unsigned char>(folded[i]);
        const auto second = static_cast<unsigned char>(folded[i + 1]);
        if (first < 0xC2 || first > 0xDF || (second & 0xC0U) != 0x80)
            continue;
        const unsigned int point = foldCodePoint(((first & 0x1FU) << 6U) | (second & 0x3FU));
        folded[i] = static_cast<char>(0xC0U | (point >> 6U));
        folded[i + 1] = static_cast<char>(0x80U | (point & 0x3FU));
        ++i;
    }
}

std::string foldText(std::string_view text)
{
    std::string folded;
    foldText(text, folded);
    return folded;
}

} // namespace meridane

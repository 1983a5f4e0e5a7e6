#include "orvane/app/structure/SiblingNames.h"

#include "meridane/scene/nodes/NxGroup.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cstddef>
#include <string_view>
#include <system_error>
#include <utility>

namespace {

/// Larger numbers aren't kept as bits.
constexpr int mostLow = 1 << 22;

/// A name and the number at its end, behind a blank.
struct NumberedName {
    std::string_view base; // the whole name if there is none
    int number = -1; // if there is none, or if it isn't written as the tool would write it
};

NumberedName divided(std::string_view name)
{
    std::size_t end = name.size();
    while (end > 0 && std::isdigit(static_cast<unsigned char>(name[end - 1])) != 0)
        --end;
    if (end == name.size() || end < 2 || name[end - 1] != ' ')
        return {name};
    NumberedName result{name.substr(0, end - 1)};
    int number = 0;
    const auto read = std::from_chars(name.data() + end, name.data() + name.size(), number);
    if (read.ec == std::errc() && (name[end] != '0' || name.size() - end == 1))
        result.number = number;
    return result;
}

} // namespace

SiblingNames::SiblingNames(const NxGroup& group)
{
    for (const NxNode* const child : group.getChildren()) {
        if (!child->getName().isEmpty())
            takeAsIs(child->getName().view());
    }
}

VbString SiblingNames::take(const VbString& name)
{
    if (name.isEmpty() || takeAsIs(name.view()))
        return name;
    const std::string_view base = divided(name.view()).base;
    std::string numbered(base);
    numbered += ' ';
    numbered += std::to_string(numbersOf(base).takeNext());
    return VbString(std::move(numbered));
}

bool SiblingNames::takeAsIs(std::string_view name)
{
    const NumberedName parts = divided(name);
    return parts.number >= 0 ? numbersOf(parts.base).take(parts.number) : m_plain.emplace(name).second;
}

SiblingNames::Numbers& SiblingNames::numbersOf(std::string_view base)
{
    // Siblings that follow each other mostly have the same.
    if (m_latest != nullptr && base == m_latestBase)
        return *m_latest;
    auto found = m_numbers.find(base);
    if (found == m_numbers.end())
        found = m_numbers.emplace(base, Numbers()).first;
    m_latestBase = base;
    m_latest = &found->second; // which stays where it is
    return *m_latest;
}

bool SiblingNames::Numbers::take(int number)
{
    if (number >= mostLow)
        return m_high.insert(number).second;
    const auto place = static_cast<std::size_t>(number);
    if (place >= m_low.size())
        m_low.resize(std::max(place + 1, 2 * m_low.size()));
    const bool isFree = !m_low[place];
    m_low[place] = true;
    return isFree;
}

int SiblingNames::Numbers::takeNext()
{
    while (!take(m_next))
        ++m_next;
    return m_next++;
}

#include "meridane/scene/text/NxEnumeration.h"

#include "meridane/scene/text/TextReader.h"

#include <algorithm>
#include <cassert>

namespace {

[[maybe_unused]] bool isWord(std::string_view name)
{
    return !name.empty() && std::string_view("0123456789+-").find(name.front()) == std::string_view::npos
        && std::none_of(name.begin(), name.end(), meridane::TextReader::isDelimiter);
}

} // namespace

NxEnumeration::NxEnumeration(std::initializer_list<Entry> entries)
    : m_count(static_cast<int>(entries.size()))
    , m_values(std::make_unique<int[]>(entries.size()))
    , m_names(std::make_unique<VbName[]>(entries.size()))
{
    std::size_t i = 0;
    for (const Entry& entry : entries) {
        assert(isWord(entry.name) && "a name of an enumeration must be a word");
        m_names[i] = VbName(entry.name);
        m_values[i] = entry.value;
        ++i;
    }
}

bool NxEnumeration::valueByName(std::string_view name, int& value) const
{
    for (int i = 0; i < m_count; ++i) {
        if (name == names()[i].getString()) {
            value = values()[i];
            return true;
        }
    }
    return false;
}

const VbName* NxEnumeration::nameByValue(int value) const
{
    const int* const end = values() + m_count;
    const int* const place = std::find(static_cast<const int*>(values()), end, value);
    return place == end ? nullptr : names() + (place - values());
}

#pragma once

#include <cstddef>
#include <span>

namespace orvane {

/// A list of the import library, which may have a count without elements.
template <typename Element>
[[nodiscard]] std::span<Element> listOf(Element* elements, unsigned int count)
{
    return {elements, elements == nullptr ? 0 : std::size_t{count}};
}

} // namespace orvane

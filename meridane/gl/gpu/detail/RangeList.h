#pragma once

#include <cstdint>
#include <map>
#include <optional>

namespace meridane {

/// Gives out ranges of a buffer of fixed size, and takes them back.
class RangeList {
public:
    explicit RangeList(std::uint32_t size = 0)
    {
        if (size > 0)
            m_free.emplace(0, size);
    }

    /// The start of a range of that size; nothing when none is free. A range of none starts at 0.
    std::optional<std::uint32_t> take(std::uint32_t size);
    void release(std::uint32_t start, std::uint32_t size);
    [[nodiscard]] bool canTake(std::uint32_t size) const;

private:
    std::map<std::uint32_t, std::uint32_t> m_free; // sizes by start
};

} // namespace meridane

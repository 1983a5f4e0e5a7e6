#pragma once

#include <cstdint>
#include <map>
#include <optional>

namespace meridane {

/// Allocates ranges of a buffer of fixed size.
class RangeList {
public:
    explicit RangeList(std::uint32_t size = 0)
    {
        if (size > 0)
            m_free.emplace(0, size);
    }

    /// Returns the start of a free range of that size, or nothing if there is none. An empty range starts at 0.
    std::optional<std::uint32_t> take(std::uint32_t size);
    void release(std::uint32_t start, std::uint32_t size);
    [[nodiscard]] bool canTake(std::uint32_t size) const;

private:
    std::map<std::uint32_t, std::uint32_t> m_free; // sizes by start
};

} // namespace meridane

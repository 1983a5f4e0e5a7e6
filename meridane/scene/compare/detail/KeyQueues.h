#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace meridane {

/// A queue of numbers for each of many keys, in arrays, which are freed quickly even for a million keys.
class KeyQueues {
public:
    static constexpr std::uint32_t none = UINT32_MAX;

    /// Removes everything and makes room for that many numbers; no more may be added.
    void start(std::size_t count);
    /// Appends a number to the queue of a key.
    void add(std::uint64_t key, std::uint32_t number);
    /// Removes the first number of a key's queue; `none` for an empty queue.
    [[nodiscard]] std::uint32_t takeFirst(std::uint64_t key);
    /// The number of a key's queue if it has exactly one, else `none`.
    [[nodiscard]] std::uint32_t onlyOne(std::uint64_t key) const;

private:
    struct Queue {
        std::uint64_t key = 0;
        std::uint32_t first = none; // an entry; `none` for a free slot
        std::uint32_t last = none; // an entry; `none` for an empty queue
    };
    struct Entry {
        std::uint32_t number;
        std::uint32_t next;
    };

    [[nodiscard]] std::size_t slotOf(std::uint64_t key) const;

    std::vector<Queue> m_queues; // by their keys; twice as many slots as entries
    std::vector<Entry> m_entries;
};

} // namespace meridane

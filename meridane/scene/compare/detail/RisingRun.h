#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace meridane {

/// Finds a longest rising subsequence of different numbers, which are added one by one.
class RisingRun {
public:
    void clear();
    void add(std::uint32_t number);
    /// The places in the sequence, from 0, of a longest rising subsequence.
    [[nodiscard]] std::vector<std::uint32_t> places() const;

private:
    static constexpr std::uint32_t none = UINT32_MAX;

    struct Element {
        std::uint32_t number;
        std::uint32_t before; // the place of the element before it in the best run that ends with it
    };

    std::vector<Element> m_elements;
    /// For each length, the place of the least number with which a run of that length ends.
    std::vector<std::uint32_t> m_ends;
};

} // namespace meridane

#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

/// A stable sort that is done in small parts.
template <typename Item>
class SliceSort {
public:
    SliceSort() = default;
    explicit SliceSort(std::vector<Item> items)
        : m_items(std::move(items))
    {
        m_merged.reserve(m_items.size());
    }

    [[nodiscard]] const std::vector<Item>& items() const noexcept { return m_items; }

    /// Does a part of the work, with the same `less` in each call. Returns whether there is more.
    template <typename Less>
    bool runPart(const Less& less)
    {
        if (m_width == 0)
            return sortBlock(less);
        return m_width < m_items.size() && mergePart(less);
    }
    /// The share of the work that is done, 0 to 1.
    [[nodiscard]] double share() const
    {
        double levels = 1;
        double done = 0;
        for (std::size_t width = blockSize; width < m_items.size(); width *= 2) {
            ++levels;
            done += width <= m_width ? 1 : 0;
        }
        return m_items.empty() ? 1
                               : (done + static_cast<double>(m_next) / static_cast<double>(m_items.size())) / levels;
    }

private:
    static constexpr std::size_t blockSize = 1024;
    static constexpr std::size_t mergedPerPart = 8192;

    template <typename Less>
    bool sortBlock(const Less& less)
    {
        const std::size_t end = std::min(m_next + blockSize, m_items.size());
        std::stable_sort(place(m_items, m_next), place(m_items, end), less);
        m_next = end;
        if (end < m_items.size())
            return true;
        beginLevel(blockSize);
        return m_width < m_items.size();
    }

    void beginLevel(std::size_t width)
    {
        m_width = width;
        m_next = 0;
        beginPair();
    }
    void beginPair()
    {
        m_left = m_next;
        m_right = std::min(m_next + m_width, m_items.size());
    }

    template <typename Less>
    bool mergePart(const Less& less)
    {
        const std::size_t pair = m_next / (2 * m_width) * (2 * m_width);
        const std::size_t middle = std::min(pair + m_width, m_items.size());
        const std::size_t end = std::min(pair + 2 * m_width, m_items.size());
        const std::size_t stop = std::min(end, m_next + mergedPerPart);
        // As a whole this would take longer than a slice.
        if (m_merged.size() < stop)
            m_merged.resize(stop);
        for (; m_next < stop; ++m_next) {
            const bool takesRight = m_left == middle || (m_right < end && less(m_items[m_right], m_items[m_left]));
            m_merged[m_next] = m_items[takesRight ? m_right++ : m_left++];
        }
        if (m_next == end)
            beginPair();
        if (m_next < m_items.size())
            return true;
        m_items.swap(m_merged);
        beginLevel(2 * m_width);
        return m_width < m_items.size();
    }

    static auto place(std::vector<Item>& items, std::size_t index)
    {
        return items.begin() + static_cast<std::ptrdiff_t>(index);
    }

    std::vector<Item> m_items;
    std::vector<Item> m_merged;
    std::size_t m_width = 0; // of the sorted blocks that are being merged; 0 while blocks are sorted
    std::size_t m_next = 0; // to be sorted or merged
    std::size_t m_left = 0; // of the pair that is being merged
    std::size_t m_right = 0;
};

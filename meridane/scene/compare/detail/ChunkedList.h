#pragma once

#include <cstddef>
#include <memory>
#include <vector>

namespace meridane {

/// A list that grows without moving its elements, so that no single addition takes long, and is freed quickly. For
/// plain data.
template <typename Value>
class ChunkedList {
public:
    [[nodiscard]] std::size_t size() const noexcept { return m_size; }
    [[nodiscard]] Value& operator[](std::size_t index) noexcept
    {
        return m_chunks[index / chunkSize][index % chunkSize];
    }
    [[nodiscard]] const Value& operator[](std::size_t index) const noexcept
    {
        return m_chunks[index / chunkSize][index % chunkSize];
    }
    void push_back(const Value& value)
    {
        if (m_size == m_chunks.size() * chunkSize)
            m_chunks.push_back(std::make_unique_for_overwrite<Value[]>(chunkSize));
        (*this)[m_size++] = value;
    }

private:
    static constexpr std::size_t chunkSize = 4096;

    std::vector<std::unique_ptr<Value[]>> m_chunks;
    std::size_t m_size = 0;
};

} // namespace meridane

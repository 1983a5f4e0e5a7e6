#pragma once

#include <QPersistentModelIndex>

#include <vector>

/// Which rows of the scene tree are unfolded. Rows that are removed leave it.
class FoldState {
public:
    FoldState() = default;
    explicit FoldState(std::vector<QPersistentModelIndex> unfolded)
        : m_unfolded(std::move(unfolded))
    {
    }

    /// The unfolded rows, each before those under it.
    [[nodiscard]] const std::vector<QPersistentModelIndex>& unfolded() const noexcept { return m_unfolded; }

private:
    std::vector<QPersistentModelIndex> m_unfolded;
};

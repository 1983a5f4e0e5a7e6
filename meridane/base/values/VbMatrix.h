#pragma once

#include <array>
#include <cstddef>

/// A 4 by 4 matrix of floats, row by row; points are rows and multiply from the left, so that a translation is in
/// the last row. The default is the identity.
class VbMatrix {
public:
    constexpr VbMatrix() noexcept = default;
    /// The sixteen elements row by row.
    constexpr VbMatrix(float a00, float a01, float a02, float a03, float a10, float a11, float a12, float a13,
        float a20, float a21, float a22, float a23, float a30, float a31, float a32, float a33) noexcept
        : m_rows{{{a00, a01, a02, a03}, {a10, a11, a12, a13}, {a20, a21, a22, a23}, {a30, a31, a32, a33}}}
    {
    }

    /// One row, 0 to 3; unchecked.
    [[nodiscard]] constexpr const std::array<float, 4>& operator[](std::size_t row) const noexcept
    {
        return m_rows[row];
    }
    /// One row, 0 to 3, to be written; unchecked.
    [[nodiscard]] constexpr std::array<float, 4>& operator[](std::size_t row) noexcept { return m_rows[row]; }

    /// Whether all elements are equal; a NaN equals nothing.
    friend constexpr bool operator==(const VbMatrix&, const VbMatrix&) noexcept = default;

private:
    std::array<std::array<float, 4>, 4> m_rows{{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}};
};

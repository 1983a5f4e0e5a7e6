#pragma once

#include "meridane/base/values/VbMatrix.h"

#include <array>
#include <cstddef>

namespace meridane {

/// A matrix in double precision, row by row; the identity at first. World transforms are computed with it: floats round
/// positions that are ten million units from the origin to whole units.
class Matrix4d {
public:
    constexpr Matrix4d() noexcept = default;
    /// The same matrix in double precision.
    constexpr Matrix4d(const VbMatrix& matrix) noexcept // NOLINT(google-explicit-constructor): nothing is lost
    {
        for (std::size_t row = 0; row < 4; ++row) {
            for (std::size_t column = 0; column < 4; ++column)
                m_rows[row][column] = static_cast<double>(matrix[row][column]);
        }
    }

    /// One row, 0 to 3, to be written; unchecked.
    [[nodiscard]] constexpr std::array<double, 4>& operator[](std::size_t row) noexcept { return m_rows[row]; }
    /// One row, 0 to 3; unchecked.
    [[nodiscard]] constexpr const std::array<double, 4>& operator[](std::size_t row) const noexcept
    {
        return m_rows[row];
    }

    /// Whether all elements are equal; a NaN equals nothing.
    friend constexpr bool operator==(const Matrix4d&, const Matrix4d&) noexcept = default;

private:
    std::array<std::array<double, 4>, 4> m_rows{{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}};
};

} // namespace meridane

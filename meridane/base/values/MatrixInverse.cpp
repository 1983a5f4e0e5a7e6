#include "meridane/base/values/MatrixInverse.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <utility>

namespace meridane {
namespace {

using Rows = std::array<std::array<double, 8>, 4>;

// Brings the column's largest element into the row of the same index; false when all are 0 or none is a number.
bool choosePivot(Rows& rows, std::size_t column) noexcept
{
    std::size_t best = column;
    for (std::size_t row = column + 1; row < 4; ++row) {
        if (std::abs(rows[row][column]) > std::abs(rows[best][column]))
            best = row;
    }
    std::swap(rows[column], rows[best]);
    return std::abs(rows[column][column]) > 0.0;
}

// Makes the column that of the identity: divides its row by the pivot and subtracts multiples of it from the others.
void eliminate(Rows& rows, std::size_t column) noexcept
{
    const double pivot = rows[column][column];
    for (double& element : rows[column])
        element /= pivot;
    for (std::size_t row = 0; row < 4; ++row) {
        const double factor = rows[row][column];
        if (row == column || factor == 0.0)
            continue;
        for (std::size_t i = 0; i < 8; ++i)
            rows[row][i] -= factor * rows[column][i];
    }
}

} // namespace

std::optional<MatrixRows> inverse(const MatrixRows& matrix) noexcept
{
    // Gauss-Jordan elimination on the matrix and, beside it, the identity, which becomes the inverse.
    Rows rows{};
    for (std::size_t row = 0; row < 4; ++row) {
        std::copy(matrix[row].begin(), matrix[row].end(), rows[row].begin());
        rows[row][4 + row] = 1.0;
    }
    for (std::size_t column = 0; column < 4; ++column) {
        if (!choosePivot(rows, column))
            return std::nullopt;
        eliminate(rows, column);
    }
    MatrixRows result{};
    for (std::size_t row = 0; row < 4; ++row) {
        std::copy_n(rows[row].begin() + 4, 4, result[row].begin());
        if (!std::all_of(result[row].begin(), result[row].end(), [](double element) { return std::isfinite(element); }))
            return std::nullopt;
    }
    return result;
}

std::optional<VbMatrix> inverse(const VbMatrix& matrix) noexcept
{
    MatrixRows rows{};
    for (std::size_t row = 0; row < 4; ++row)
        std::copy(matrix[row].begin(), matrix[row].end(), rows[row].begin());
    const std::optional<MatrixRows> inverted = inverse(rows);
    if (!inverted)
        return std::nullopt;
    VbMatrix result;
    for (std::size_t row = 0; row < 4; ++row) {
        for (std::size_t column = 0; column < 4; ++column) {
            result[row][column] = static_cast<float>((*inverted)[row][column]);
            if (!std::isfinite(result[row][column]))
                return std::nullopt;
        }
    }
    return result;
}

} // namespace meridane

#pragma once

#include "meridane/base/values/VbVec.h"

/// A rectangle between two corners, both at the origin at first. The corners are kept as given, also when they are
/// the wrong way round.
class VbBox2f {
public:
    constexpr VbBox2f() noexcept = default;
    /// The box between these corners.
    constexpr VbBox2f(const VbVec2f& min, const VbVec2f& max) noexcept
        : m_min(min)
        , m_max(max)
    {
    }

    /// The first corner, as it was given.
    [[nodiscard]] constexpr const VbVec2f& getMin() const noexcept { return m_min; }
    /// The second corner, as it was given.
    [[nodiscard]] constexpr const VbVec2f& getMax() const noexcept { return m_max; }

    /// Whether both corners are equal.
    friend constexpr bool operator==(const VbBox2f&, const VbBox2f&) noexcept = default;

private:
    VbVec2f m_min;
    VbVec2f m_max;
};

/// A box of 16-bit integers between two corners, both at the origin at first. The corners are kept as given, also when
/// they are the wrong way round.
class VbBox3s {
public:
    constexpr VbBox3s() noexcept = default;
    /// The box between these corners.
    constexpr VbBox3s(const VbVec3s& min, const VbVec3s& max) noexcept
        : m_min(min)
        , m_max(max)
    {
    }

    /// The first corner, as it was given.
    [[nodiscard]] constexpr const VbVec3s& getMin() const noexcept { return m_min; }
    /// The second corner, as it was given.
    [[nodiscard]] constexpr const VbVec3s& getMax() const noexcept { return m_max; }

    /// Whether both corners are equal.
    friend constexpr bool operator==(const VbBox3s&, const VbBox3s&) noexcept = default;

private:
    VbVec3s m_min;
    VbVec3s m_max;
};

#pragma once

#include <array>
#include <cstddef>

namespace meridane {

/// What the vector classes share: a fixed number of components of one type, all zero at first. `Vector` is the class
/// that derives from it.
template <typename Vector, typename T, std::size_t Count>
class VecBase {
public:
    /// The type of a component.
    using Component = T;
    /// The number of components.
    static constexpr std::size_t count = Count;

    constexpr VecBase() noexcept = default;

    /// The component of that index, 0 to `count - 1`; unchecked.
    [[nodiscard]] constexpr const T& operator[](std::size_t index) const noexcept { return m_values[index]; }
    /// The component of that index, 0 to `count - 1`, to be written; unchecked.
    [[nodiscard]] constexpr T& operator[](std::size_t index) noexcept { return m_values[index]; }
    /// All components in order.
    [[nodiscard]] constexpr const T* getValue() const noexcept { return m_values.data(); }

    /// Hands out the components; takes one reference per component.
    template <typename... Components>
    requires(sizeof...(Components) == Count) constexpr void getValue(Components&... components) const noexcept
    {
        std::size_t index = 0;
        ((components = m_values[index++]), ...);
    }

    /// Takes one value per component and returns the vector itself.
    template <typename... Components>
    requires(sizeof...(Components) == Count) constexpr Vector& setValue(Components... components) noexcept
    {
        m_values = {static_cast<T>(components)...};
        return static_cast<Vector&>(*this);
    }

    /// Equal components; as everywhere with floating point, a NaN equals nothing.
    friend constexpr bool operator==(const VecBase& left, const VecBase& right) noexcept
    {
        return left.m_values == right.m_values;
    }

protected:
    /// The vector with these components.
    template <typename... Components>
    requires(sizeof...(Components) == Count) constexpr explicit VecBase(Components... components) noexcept
        : m_values{components...}
    {
    }

private:
    std::array<T, Count> m_values{};
};

} // namespace meridane

/// Two floats.
class VbVec2f : public meridane::VecBase<VbVec2f, float, 2> {
public:
    constexpr VbVec2f() noexcept = default;
    /// The vector with these components.
    constexpr VbVec2f(float x, float y) noexcept
        : VecBase(x, y)
    {
    }
};

/// Two 16-bit integers.
class VbVec2s : public meridane::VecBase<VbVec2s, short, 2> {
public:
    constexpr VbVec2s() noexcept = default;
    /// The vector with these components.
    constexpr VbVec2s(short x, short y) noexcept
        : VecBase(x, y)
    {
    }
};

/// Two 32-bit integers.
class VbVec2i32 : public meridane::VecBase<VbVec2i32, int, 2> {
public:
    constexpr VbVec2i32() noexcept = default;
    /// The vector with these components.
    constexpr VbVec2i32(int x, int y) noexcept
        : VecBase(x, y)
    {
    }
};

/// Three floats: a point, a direction or a size.
class VbVec3f : public meridane::VecBase<VbVec3f, float, 3> {
public:
    constexpr VbVec3f() noexcept = default;
    /// The vector with these components.
    constexpr VbVec3f(float x, float y, float z) noexcept
        : VecBase(x, y, z)
    {
    }
};

/// Three doubles: a point however far from the origin.
class VbVec3d : public meridane::VecBase<VbVec3d, double, 3> {
public:
    constexpr VbVec3d() noexcept = default;
    /// The vector with these components.
    constexpr VbVec3d(double x, double y, double z) noexcept
        : VecBase(x, y, z)
    {
    }
    /// The same vector in double precision.
    constexpr VbVec3d(const VbVec3f& vector) noexcept // NOLINT(google-explicit-constructor): nothing is lost
        : VecBase(static_cast<double>(vector[0]), static_cast<double>(vector[1]), static_cast<double>(vector[2]))
    {
    }
};

/// Three 16-bit integers.
class VbVec3s : public meridane::VecBase<VbVec3s, short, 3> {
public:
    constexpr VbVec3s() noexcept = default;
    /// The vector with these components.
    constexpr VbVec3s(short x, short y, short z) noexcept
        : VecBase(x, y, z)
    {
    }
};

/// Four floats.
class VbVec4f : public meridane::VecBase<VbVec4f, float, 4> {
public:
    constexpr VbVec4f() noexcept = default;
    /// The vector with these components.
    constexpr VbVec4f(float x, float y, float z, float w) noexcept
        : VecBase(x, y, z, w)
    {
    }
};

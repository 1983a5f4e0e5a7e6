#pragma once

#include "meridane/base/values/VbBox.h"
#include "meridane/base/values/VbMatrix.h"
#include "meridane/base/values/VbPlane.h"
#include "meridane/base/values/VbRotation.h"
#include "meridane/base/values/VbVec.h"
#include "meridane/scene/components/FieldComponents.h"
#include "meridane/scene/text/Flag.h"

#include <cmath>
#include <concepts>
#include <cstddef>
#include <limits>
#include <span>

namespace meridane {

/// A type of component: its limits and the conversion from `double`.
template <typename T>
struct ComponentNumber {
    static constexpr double lowest = static_cast<double>(std::numeric_limits<T>::lowest());
    static constexpr double highest = static_cast<double>(std::numeric_limits<T>::max());

    static bool fits(double value) noexcept
    {
        if constexpr (std::floating_point<T>)
            return !std::isfinite(value) || (value >= lowest && value <= highest);
        else
            return value >= lowest && value <= highest && value == std::trunc(value);
    }
    static T from(double value) noexcept { return static_cast<T>(value); }
    static double to(T value) noexcept { return static_cast<double>(value); }
};
template <>
struct ComponentNumber<Flag> {
    static constexpr double lowest = 0;
    static constexpr double highest = 1;

    static bool fits(double value) noexcept { return value == 0 || value == 1; }
    static Flag from(double value) noexcept { return value != 0; }
    static double to(Flag value) noexcept { return value ? 1 : 0; }
};

template <typename T>
constexpr FieldComponents::Number numberOf() noexcept
{
    using Number = FieldComponents::Number;
    if constexpr (std::same_as<T, float>)
        return Number::Float;
    else if constexpr (std::same_as<T, double>)
        return Number::Double;
    else if constexpr (std::same_as<T, short>)
        return Number::Short;
    else if constexpr (std::same_as<T, unsigned short>)
        return Number::UShort;
    else if constexpr (std::same_as<T, int>)
        return Number::Int;
    else if constexpr (std::same_as<T, unsigned int>)
        return Number::UInt;
    else {
        static_assert(std::same_as<T, Flag>);
        return Number::Flag;
    }
}

/// How a value is divided into components. A value is put together from all of them.
template <typename Value>
struct ComponentParts {
    using Part = Value;
    static constexpr std::size_t count = 1;
    static Part get(const Value& value, std::size_t /*component*/) noexcept { return value; }
    static Value join(std::span<const Part, count> parts) noexcept { return parts[0]; }
};

/// Vectors and colours.
template <typename Value>
requires requires
{
    typename Value::Component;
}
struct ComponentParts<Value> {
    using Part = typename Value::Component;
    static constexpr std::size_t count = Value::count;
    static Part get(const Value& value, std::size_t component) noexcept { return value[component]; }
    static Value join(std::span<const Part, count> parts) noexcept
    {
        Value value;
        for (std::size_t i = 0; i < count; ++i)
            value[i] = parts[i];
        return value;
    }
};

template <>
struct ComponentParts<VbRotation> {
    using Part = float;
    static constexpr std::size_t count = 4;
    static Part get(const VbRotation& value, std::size_t component) noexcept
    {
        return component < 3 ? value.getAxis()[component] : value.getAngle();
    }
    static VbRotation join(std::span<const Part, count> parts) noexcept
    {
        return {VbVec3f(parts[0], parts[1], parts[2]), parts[3]};
    }
};

template <>
struct ComponentParts<VbPlane> {
    using Part = float;
    static constexpr std::size_t count = 4;
    static Part get(const VbPlane& value, std::size_t component) noexcept
    {
        return component < 3 ? value.getNormal()[component] : value.getDistanceFromOrigin();
    }
    static VbPlane join(std::span<const Part, count> parts) noexcept
    {
        return {VbVec3f(parts[0], parts[1], parts[2]), parts[3]};
    }
};

template <>
struct ComponentParts<VbMatrix> {
    using Part = float;
    static constexpr std::size_t count = 16;
    static Part get(const VbMatrix& value, std::size_t component) noexcept
    {
        return value[component / 4][component % 4];
    }
    static VbMatrix join(std::span<const Part, count> parts) noexcept
    {
        VbMatrix value;
        for (std::size_t i = 0; i < count; ++i)
            value[i / 4][i % 4] = parts[i];
        return value;
    }
};

/// Both corners of a box.
template <typename Box, typename Corner>
struct BoxParts {
    using Part = typename Corner::Component;
    static constexpr std::size_t dimensions = Corner::count;
    static constexpr std::size_t count = 2 * dimensions;
    static Part get(const Box& value, std::size_t component) noexcept
    {
        return component < dimensions ? value.getMin()[component] : value.getMax()[component - dimensions];
    }
    static Box join(std::span<const Part, count> parts) noexcept
    {
        return {ComponentParts<Corner>::join(parts.template first<dimensions>()),
            ComponentParts<Corner>::join(parts.template last<dimensions>())};
    }
};
template <>
struct ComponentParts<VbBox2f> : BoxParts<VbBox2f, VbVec2f> {
};
template <>
struct ComponentParts<VbBox3s> : BoxParts<VbBox3s, VbVec3s> {
};

} // namespace meridane

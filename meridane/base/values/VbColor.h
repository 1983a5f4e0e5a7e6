#pragma once

#include "meridane/base/values/VbVec.h"

/// Red, green and blue, each from 0 to 1 in what is shown; values outside are kept as they are.
class VbColor : public VbVec3f {
public:
    constexpr VbColor() noexcept = default;
    /// The colour with these components, which aren't limited.
    constexpr VbColor(float red, float green, float blue) noexcept
        : VbVec3f(red, green, blue)
    {
    }
    /// The components as red, green and blue.
    constexpr explicit VbColor(const VbVec3f& components) noexcept
        : VbVec3f(components)
    {
    }
};

/// Red, green, blue and opacity, each from 0 to 1 in what is shown; values outside are kept as they are.
class VbColorRGBA : public VbVec4f {
public:
    /// Opaque black.
    constexpr VbColorRGBA() noexcept
        : VbVec4f(0, 0, 0, 1)
    {
    }
    /// The colour with these components, which aren't limited; an alpha of 1 is opaque.
    constexpr VbColorRGBA(float red, float green, float blue, float alpha) noexcept
        : VbVec4f(red, green, blue, alpha)
    {
    }
    /// The components as red, green, blue and opacity.
    constexpr explicit VbColorRGBA(const VbVec4f& components) noexcept
        : VbVec4f(components)
    {
    }
};

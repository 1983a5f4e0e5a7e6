#pragma once

#include "meridane/base/values/VbBox.h"
#include "meridane/base/values/VbColor.h"
#include "meridane/base/values/VbMatrix.h"
#include "meridane/base/values/VbName.h"
#include "meridane/base/values/VbPlane.h"
#include "meridane/base/values/VbRotation.h"
#include "meridane/base/values/VbString.h"
#include "meridane/scene/text/Flag.h"

#include <array>
#include <bit>
#include <concepts>
#include <cstdint>
#include <limits>
#include <random>
#include <string>

/// Random values of every type, the same ones in each run. Awkward values come often: limits, zeros of both signs,
/// infinities, NaN of both signs and kinds, denormal numbers, texts full of quotes and escapes.
class RandomValues {
public:
    explicit RandomValues(unsigned int seed)
        : m_engine(seed)
    {
    }

    /// 0 to `limit - 1`.
    std::size_t below(std::size_t limit) { return m_engine() % limit; }

    template <std::integral Number>
    void fill(Number& value)
    {
        constexpr std::array edges{std::numeric_limits<Number>::min(), std::numeric_limits<Number>::max(), Number(0)};
        const std::size_t edge = below(4 * edges.size());
        value = edge < edges.size() ? edges[edge] : static_cast<Number>(m_engine());
    }
    void fill(float& value) { value = edgeOf<float>(std::bit_cast<float>(static_cast<std::uint32_t>(m_engine()))); }
    void fill(double& value)
    {
        value = edgeOf<double>(std::bit_cast<double>((std::uint64_t{m_engine()} << 32U) | m_engine()));
    }
    void fill(meridane::Flag& value) { value = below(2) == 0; }

    void fill(VbString& value)
    {
        static constexpr std::array pieces{"\"", "\\", "\n", "\t", "\r", " ", ",", "[", "]", "#", "{", "}", "|", "=",
            "a", "Z", "0", "é", "Ω", "日", "🙂"};
        std::string text;
        for (std::size_t count = below(12); count > 0; --count)
            text += pieces[below(pieces.size())];
        if (below(8) == 0)
            text += '\0';
        value = VbString(std::string_view(text));
    }
    void fill(VbName& value)
    {
        std::string latin1;
        for (std::size_t count = below(12); count > 0; --count)
            latin1 += static_cast<char>(1 + below(255));
        value = VbName(latin1.c_str());
    }

    template <typename Vector, typename Component, std::size_t Count>
    void fill(meridane::VecBase<Vector, Component, Count>& value)
    {
        for (std::size_t i = 0; i < Count; ++i)
            fill(value[i]);
    }
    void fill(VbRotation& value)
    {
        VbVec3f axis;
        float radians = 0;
        fill(axis);
        fill(radians);
        value.setValue(axis, radians);
    }
    void fill(VbPlane& value)
    {
        VbVec3f normal;
        float distance = 0;
        fill(normal);
        fill(distance);
        value = VbPlane(normal, distance);
    }
    void fill(VbMatrix& value)
    {
        for (std::size_t row = 0; row < 4; ++row) {
            for (float& element : value[row])
                fill(element);
        }
    }
    void fill(VbBox2f& value)
    {
        VbVec2f min;
        VbVec2f max;
        fill(min);
        fill(max);
        value = VbBox2f(min, max);
    }
    void fill(VbBox3s& value)
    {
        VbVec3s min;
        VbVec3s max;
        fill(min);
        fill(max);
        value = VbBox3s(min, max);
    }

private:
    template <typename Number>
    Number edgeOf(Number otherwise)
    {
        using Limits = std::numeric_limits<Number>;
        constexpr std::array edges{Number(0), Number(1), Number(0.1), Limits::infinity(), Limits::quiet_NaN(),
            Limits::signaling_NaN(), Limits::denorm_min(), Limits::min(), Limits::max(), Limits::epsilon()};
        const std::size_t edge = below(2 * edges.size());
        const Number value = edge < edges.size() ? edges[edge] : otherwise;
        return below(2) == 0 ? -value : value;
    }

    std::mt19937 m_engine;
};

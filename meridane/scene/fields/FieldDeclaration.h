#pragma once

#include "meridane/scene/fields/FieldFacts.h"

#include <algorithm>
#include <numbers>

namespace meridane {

/// What a node class writes where it declares a field: the name, and what people have to know to edit it.
///
///     NxSFFloat shininess{this, {"shininess", "How sharp highlights are, from wide to small.", range(0, 1)}, 0.2F};
///     NxSFVec3f position{this, {"position", "Where the camera is.", NxUnit::Metres}, VbVec3f(0, 0, 1)};
///     NxSFFloat weight{this, "weight"};
///
/// After the description come, in any order, a unit and what the functions below return. A name alone converts to a
/// declaration without facts. It is read only while the class is being described: a node that is made later costs
/// nothing more with facts than without.
class FieldDeclaration {
public:
    /// The name must be a literal.
    constexpr FieldDeclaration(const char* name) noexcept // NOLINT(google-explicit-constructor): the short form
        : m_name(name)
    {
    }
    /// Both texts must be literals. The description is one sentence with a full stop.
    template <typename... Facts>
    constexpr FieldDeclaration(const char* name, const char* description, const Facts&... facts) noexcept
        : m_name(name)
    {
        m_facts.description = description;
        (declare(facts), ...);
        m_facts.softMinimum = std::max(m_facts.softMinimum, m_facts.hardMinimum);
        m_facts.softMaximum = std::min(m_facts.softMaximum, m_facts.hardMaximum);
    }

    /// The name of the field, a literal.
    [[nodiscard]] constexpr const char* name() const noexcept { return m_name; }
    /// The facts, with the soft range within the hard one.
    [[nodiscard]] constexpr const NxFieldFacts& facts() const noexcept { return m_facts; }

    /// The same declaration of a field whose text is the path of a file.
    [[nodiscard]] constexpr FieldDeclaration ofFile() const noexcept
    {
        FieldDeclaration result = *this;
        result.m_facts.isFile = true;
        return result;
    }

private:
    constexpr void declare(NxUnit unit) noexcept { m_facts.unit = unit; }
    template <typename Fact>
    constexpr void declare(const Fact& fact) noexcept
    {
        fact(m_facts);
    }

    const char* m_name;
    NxFieldFacts m_facts;
};

/// In radians.
inline constexpr double degree = std::numbers::pi / 180;

/// The hard range: both limits make sense.
[[nodiscard]] constexpr auto range(double minimum, double maximum) noexcept
{
    return [=](NxFieldFacts& facts) {
        facts.hardMinimum = minimum;
        facts.hardMaximum = maximum;
    };
}

/// The hard range without its limits.
[[nodiscard]] constexpr auto between(double minimum, double maximum) noexcept
{
    return [=](NxFieldFacts& facts) {
        facts.hardMinimum = minimum;
        facts.hardMaximum = maximum;
        facts.excludesMinimum = facts.excludesMaximum = true;
    };
}

/// A hard range that has only a lower limit, which makes sense.
[[nodiscard]] constexpr auto atLeast(double minimum) noexcept
{
    return [=](NxFieldFacts& facts) { facts.hardMinimum = minimum; };
}

/// A hard range that has only a lower limit, which makes no sense.
[[nodiscard]] constexpr auto above(double minimum) noexcept
{
    return [=](NxFieldFacts& facts) {
        facts.hardMinimum = minimum;
        facts.excludesMinimum = true;
    };
}

/// The soft range, where it is narrower than the hard one.
[[nodiscard]] constexpr auto softRange(double minimum, double maximum) noexcept
{
    return [=](NxFieldFacts& facts) {
        facts.softMinimum = minimum;
        facts.softMaximum = maximum;
    };
}

/// By how much a step changes a number.
[[nodiscard]] constexpr auto step(double size) noexcept
{
    return [=](NxFieldFacts& facts) { facts.step = size; };
}

/// A text that is the path of a file. Fields of the class `NxSFFilePathString` are paths without it.
inline constexpr auto filePath = [](NxFieldFacts& facts) { facts.isFile = true; };

} // namespace meridane

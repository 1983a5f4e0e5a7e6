#include "meridane/scene/check/detail/FieldRange.h"

#include <algorithm>
#include <cmath>

namespace meridane {
namespace {

/// A number as short as it can be, such as "0.5".
std::string numberText(double number)
{
    std::string text = std::to_string(number);
    text.erase(text.find_last_not_of('0') + 1);
    if (!text.empty() && text.back() == '.')
        text.pop_back();
    return text;
}

/// The number as a float keeps it. GCC 12 drops the conversion of two numbers that follow each other in memory, unless
/// it is in a function of its own.
[[gnu::noinline]] double asFloat(double number)
{
    return static_cast<double>(static_cast<float>(number));
}

} // namespace

FieldRange::FieldRange(const FieldComponents& components, const NxFieldFacts& facts)
    : m_facts(facts)
{
    if (components.number() == FieldComponents::Number::Float) {
        // Half of pi as a float is greater than as a double.
        m_facts.hardMinimum = asFloat(facts.hardMinimum);
        m_facts.hardMaximum = asFloat(facts.hardMaximum);
    }
    // In a rotation it holds for the angle alone.
    const int last = components.count() - 1;
    if (components.name(last) == "angle")
        m_onlyComponent = last;
}

bool FieldRange::contains(int component, double number) const noexcept
{
    return (m_onlyComponent >= 0 && component != m_onlyComponent) || m_facts.isInHardRange(number);
}

double FieldRange::limited(double number) const noexcept
{
    return std::clamp(number, m_facts.hardMinimum, m_facts.hardMaximum);
}

std::string FieldRange::text() const
{
    const bool hasMinimum = std::isfinite(m_facts.hardMinimum);
    const bool hasMaximum = std::isfinite(m_facts.hardMaximum);
    const std::string minimum = numberText(m_facts.hardMinimum);
    const std::string maximum = numberText(m_facts.hardMaximum);
    if (hasMinimum && hasMaximum && isClosed())
        return "from " + minimum + " to " + maximum;
    std::string text;
    if (hasMinimum)
        text = (m_facts.excludesMinimum ? "above " : "at least ") + minimum;
    if (hasMaximum)
        text += (text.empty() ? "" : " and ") + std::string(m_facts.excludesMaximum ? "below " : "at most ") + maximum;
    return text;
}

} // namespace meridane

#include "meridane/query/detail/ValueTest.h"

#include "meridane/query/detail/FieldTexts.h"
#include "meridane/scene/components/FieldComponents.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace meridane {
namespace {

using Comparison = ValueTest::Comparison;

bool holds(Comparison comparison, double value, double number)
{
    switch (comparison) {
    case Comparison::Equal:
        return value == number || (std::isnan(value) && std::isnan(number));
    case Comparison::NotEqual:
        return !holds(Comparison::Equal, value, number);
    case Comparison::Less:
        return value < number;
    case Comparison::LessOrEqual:
        return value <= number;
    case Comparison::Greater:
        return value > number;
    case Comparison::GreaterOrEqual:
        return value >= number;
    }
    return false;
}

} // namespace

ValueTest::ValueTest(Comparison comparison, TextPattern text, std::optional<double> number)
    : m_comparison(comparison)
    , m_text(std::move(text))
    , m_number(number)
{
}

bool ValueTest::matches(const NxField& field) const
{
    const FieldComponents* const components = FieldComponents::of(field);
    if (components == nullptr)
        return matchesTexts(field);
    if (m_number && matchesNumbers(field, *components))
        return true;
    // Names of enumerations, and true and false.
    const bool hasNames
        = components->number() == FieldComponents::Number::Flag || components->number() == FieldComponents::Number::Int;
    return !m_number && hasNames && matchesTexts(field);
}

bool ValueTest::matchesNumbers(const NxField& field, const FieldComponents& components) const
{
    constexpr int rowsAtOnce = 1024;
    std::array<double, rowsAtOnce> numbers; // NOLINT(cppcoreguidelines-pro-type-member-init): read fills it
    // A field of floats that shows 0.1 has a number that is close to it.
    const bool isFloat = components.number() == FieldComponents::Number::Float && !components.refusal(*m_number);
    const double number = isFloat ? static_cast<double>(static_cast<float>(*m_number)) : *m_number;
    const int rows = components.rows(field);
    for (int row = 0; row < rows;) {
        const int count = std::min(rows - row, rowsAtOnce);
        const auto part = std::span(numbers).first(static_cast<std::size_t>(count));
        for (int component = 0; component < components.count(); ++component) {
            components.read(field, row, component, part);
            if (std::ranges::any_of(part, [&](double value) { return holds(m_comparison, value, number); }))
                return true;
        }
        row += count;
    }
    return false;
}

bool ValueTest::matchesTexts(const NxField& field) const
{
    if (m_comparison != Comparison::Equal && m_comparison != Comparison::NotEqual)
        return false;
    const bool isEqual = m_comparison == Comparison::Equal;
    return anyValueText(field, [this, isEqual](std::string_view text) { return m_text.isEqualTo(text) == isEqual; });
}

} // namespace meridane

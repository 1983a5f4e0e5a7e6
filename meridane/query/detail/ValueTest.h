#pragma once

#include "meridane/query/detail/TextPattern.h"

#include <cstdint>
#include <optional>

class NxField;

namespace meridane {

class FieldComponents;

/// A comparison with the values of fields. It holds if it holds for one of a field's numbers or texts.
class ValueTest {
public:
    enum class Comparison : std::uint8_t { Equal, NotEqual, Less, LessOrEqual, Greater, GreaterOrEqual };

    /// `number` is what the text means as a number, if it is one. The greater and the less need it.
    ValueTest(Comparison comparison, TextPattern text, std::optional<double> number);

    [[nodiscard]] bool matches(const NxField& field) const;

private:
    [[nodiscard]] bool matchesNumbers(const NxField& field, const FieldComponents& components) const;
    [[nodiscard]] bool matchesTexts(const NxField& field) const;

    Comparison m_comparison;
    TextPattern m_text;
    std::optional<double> m_number;
};

} // namespace meridane

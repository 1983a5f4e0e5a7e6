#pragma once

#include "meridane/scene/components/FieldComponents.h"
#include "meridane/scene/fields/FieldFacts.h"

#include <string>

namespace meridane {

/// The hard range of a field as its numbers can keep it.
class FieldRange {
public:
    FieldRange(const FieldComponents& components, const NxFieldFacts& facts);

    /// Whether a finite number may be in that component.
    [[nodiscard]] bool contains(int component, double number) const noexcept;
    /// Whether each number that isn't in the range can be replaced by a limit.
    [[nodiscard]] bool isClosed() const noexcept { return !m_facts.excludesMinimum && !m_facts.excludesMaximum; }
    /// The number in the range that is closest to it; only for a closed range.
    [[nodiscard]] double limited(double number) const noexcept;
    /// Such as "from 0 to 1" or "above 0".
    [[nodiscard]] std::string text() const;

private:
    NxFieldFacts m_facts;
    int m_onlyComponent = -1; // if it holds for one alone
};

} // namespace meridane

#pragma once

#include "orvane/app/input/NumberLimits.h"

class NxField;

namespace orvane {

/// Whether the facts of the field's range and unit hold for that component: in a rotation only for the angle.
[[nodiscard]] bool hasFacts(const NxField& field, int component);

/// Which numbers a component of a field takes: what its type can hold, within the hard range of the field's facts. A
/// field without numbers has no limits.
[[nodiscard]] NumberLimits limitsOf(const NxField& field, int component);

} // namespace orvane

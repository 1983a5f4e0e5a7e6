#pragma once

#include "FieldEditors/FieldRange.h"

class NxField;

namespace orvane {

/// The range of a float or double field, chosen by the type of its node. `plainRow` is the row for all other nodes:
/// "floatField" or "doubleField".
///
/// Contract: every field of a complexity, material or directional light node gets the range of the complexity's value,
/// whatever the field's name.
/// Contract: that range has no bounds of a double, so a double field of these nodes gets 0 to 0, bounded.
[[nodiscard]] FieldRange realFieldRange(const NxField& field, const char* plainRow);

/// The one range that all integer fields start with, short and unsigned ones included.
[[nodiscard]] FieldRange integerFieldRange();

} // namespace orvane

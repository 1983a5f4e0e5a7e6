#pragma once

#include "FieldEditors/FieldRange.h"

class NxField;

namespace orvane {

/// The range of a float or double field, chosen by the type of the node that owns it; `plainRow` is the row that serves
/// any other node ("floatField" or "doubleField").
///
/// Every field of a complexity, material or directional light node gets the one row of the complexity's value: the
/// field's own name isn't consulted, and that row has no bounds of a double, so a double gets 0 to 0, bounded. Both are
/// meant.
[[nodiscard]] FieldRange realFieldRange(const NxField& field, const char* plainRow);

/// The one range that all integer fields start with, short and unsigned ones included.
[[nodiscard]] FieldRange integerFieldRange();

} // namespace orvane

#pragma once

#include "meridane/scene/fields/FieldFacts.h"

#include <QString>

class NxField;

namespace orvane {

/// Which values make sense and which are useful, such as "0 to 100, useful 10 to 90" or "above 0"; for a field with an
/// enumeration its names. Empty if nothing is declared.
[[nodiscard]] QString rangeText(const NxField& field, const NxFieldFacts& facts);

/// The unit in a word, such as "radians"; empty for none.
[[nodiscard]] QString unitText(NxUnit unit);

} // namespace orvane

#pragma once

#include <QString>

class NxField;

namespace orvane {

/// The beginning of a field's text form: up to `length` characters, with an ellipsis behind a text that was cut. The
/// time it takes depends on `length`, not on the size of the value.
[[nodiscard]] QString beginningOf(const NxField& field, qsizetype length);

/// The name of a field's class, as users know it.
[[nodiscard]] QString typeName(const NxField& field);

} // namespace orvane

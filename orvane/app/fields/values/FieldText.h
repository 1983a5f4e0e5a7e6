#pragma once

#include "orvane/app/scene/NodeName.h"

#include <QString>

class NxField;
class NxMField;

namespace orvane {

/// The beginning of a field's text form: up to `length` characters, with an ellipsis behind a text that was cut. The
/// time it takes depends on `length`, not on the size of the value.
[[nodiscard]] QString beginningOf(const NxField& field, qsizetype length);

/// The name of a field's class, as users know it.
[[nodiscard]] QString typeName(const NxField& field);

/// How many rows a list has, and of what, such as "1,000,000 × Vec3f".
[[nodiscard]] QString rowCountText(const NxMField& list);

} // namespace orvane

#pragma once

#include "orvane/app/base/Result.h"

#include <string_view>
#include <vector>

namespace meridane {
class FieldComponents;
}

namespace orvane {

/// The numbers of a value, or of the rows of a list one after the other, from a text that `pastedValue` describes. The
/// failure says in which row what is wrong.
[[nodiscard]] Result<std::vector<double>> pastedNumbers(
    const meridane::FieldComponents& components, std::string_view text, bool isList);

} // namespace orvane

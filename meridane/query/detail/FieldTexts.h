#pragma once

#include <functional>
#include <string>
#include <string_view>

class NxField;

namespace meridane {

/// The beginning of a field's value as text, about 4 KiB. Texts and names are without quotes.
[[nodiscard]] std::string beginningOfValue(const NxField& field);
/// Whether one of a field's values, as text, passes the test: of a list the first 1,000.
[[nodiscard]] bool anyValueText(const NxField& field, const std::function<bool(std::string_view)>& test);

} // namespace meridane

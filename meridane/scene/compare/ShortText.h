#pragma once

#include <cstddef>
#include <string>
#include <string_view>

class NxField;

namespace meridane {

/// The text form of a field's value. One of more than about `length` bytes is shortened to a part that differs from
/// `other`, or to its beginning if that is null. The time depends on the size of the values only where they are equal.
[[nodiscard]] std::string shortValue(const NxField& field, const NxField* other, std::size_t length);

/// The same for a text.
[[nodiscard]] std::string shortText(std::string_view text, std::string_view other, std::size_t length);

} // namespace meridane

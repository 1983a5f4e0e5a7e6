#pragma once

#include <cstdint>

class NxField;

namespace meridane {

/// A hash of the default of a field, by which it is noticed that a class has other defaults than before.
[[nodiscard]] std::uint64_t hashOfDefault(const NxField& field);

} // namespace meridane

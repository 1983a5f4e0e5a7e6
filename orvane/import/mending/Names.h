#pragma once

#include "meridane/base/values/VbString.h"

#include <string_view>

#include <assimp/types.h>

namespace orvane {

/// Whether the import library made that name up, for a part that has none in its file.
[[nodiscard]] bool isMadeUpName(std::string_view name);

/// The name of a part; empty if the import library made it up.
[[nodiscard]] VbString toName(const aiString& name);

} // namespace orvane

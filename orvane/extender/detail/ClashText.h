#pragma once

#include <QString>

#include <optional>

namespace orvane {

/// What the user should know of the classes of nodes and fields that were refused since the last call, because another
/// library has a class of that name: a text that goes on after a plug-in's name, in one line; nothing if there were
/// none.
[[nodiscard]] std::optional<QString> takeClashText();

} // namespace orvane

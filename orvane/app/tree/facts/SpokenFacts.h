#pragma once

#include <QString>

class NxNode;

namespace orvane {

/// What a row of the tree shows of a node beside its name, for people who can't see it: class, number of children,
/// whether it is hidden or has ignored fields.
[[nodiscard]] QString spokenFacts(NxNode& node, bool isHidden);

} // namespace orvane

#pragma once

#include "meridane/scene/compare/NxSceneDifferences.h"

#include <QString>

/// The differences of two scenes as they are shown to users, each text in one line without control characters.
namespace orvane {

/// The kind in one or two words, such as "added".
[[nodiscard]] QString kindText(NxSceneDifference::Kind kind);
/// The path of the node, with the field behind a dot.
[[nodiscard]] QString pathText(const NxSceneDifferences& differences, const NxSceneDifference& difference);
/// What one of the scenes has, shortened.
[[nodiscard]] QString sideText(
    const NxSceneDifferences& differences, const NxSceneDifference& difference, NxSceneDifferences::Side side);
/// Kind, path and both texts, separated by tabs.
[[nodiscard]] QString differenceLine(const NxSceneDifferences& differences, const NxSceneDifference& difference);

} // namespace orvane

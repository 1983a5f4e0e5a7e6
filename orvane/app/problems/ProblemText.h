#pragma once

#include "meridane/scene/check/NxSceneCheck.h"

#include <QString>

/// The problems of a scene as they are shown to users, each text in one line without control characters.
namespace orvane {

[[nodiscard]] QString severityName(NxSeverity severity);
[[nodiscard]] QString sentenceOf(const NxSceneProblem& problem);
/// What the mend of a problem does; empty if it has none.
[[nodiscard]] QString mendText(const NxSceneProblem& problem);
[[nodiscard]] QString identifierOf(const NxSceneProblem& problem);
/// The names on the way to the node, and its field: much like its path, but made without a look at its siblings.
[[nodiscard]] QString roughPlace(const NxSceneCheck& check, const NxGroup& scene, const NxSceneProblem& problem);
/// Severity, identifier and sentence, separated by tabs: what follows the path in a line of the command line.
[[nodiscard]] QString lineEnd(const NxSceneProblem& problem);

} // namespace orvane

#pragma once

#include "meridane/scene/check/NxSceneProblem.h"

namespace meridane {

class MendRecorder;

/// Mends a problem of the values of one node. Returns false and changes nothing if there is no safe mend for it, or it
/// isn't there any more.
bool mendValues(const NxSceneProblem& problem, MendRecorder& recorder);

} // namespace meridane

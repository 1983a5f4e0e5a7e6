#pragma once

#include "meridane/scene/check/NxProblemKind.h"

class NxMesh;

namespace meridane {

class MendRecorder;

/// Mends a problem of the lists of a mesh, so that it is drawn as before. Returns false and changes nothing if that
/// isn't possible, or the problem isn't there.
bool mendMesh(NxMesh& mesh, NxProblemKind kind, MendRecorder& recorder);

} // namespace meridane

#pragma once

#include "meridane/scene/fields/list/NxMFVec3f.h"

/// A list of colours; usable as a list of vectors.
class NxMFColor : public NxMFVec3f {
    NX_FIELD(NxMFColor)

public:
    using NxMFVec3f::NxMFVec3f;
};

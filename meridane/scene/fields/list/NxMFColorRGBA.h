#pragma once

#include "meridane/scene/fields/list/NxMFVec4f.h"

/// A list of colours with their opacity; usable as a list of vectors.
class NxMFColorRGBA : public NxMFVec4f {
    NX_FIELD(NxMFColorRGBA)

public:
    using NxMFVec4f::NxMFVec4f;

    /// New values are opaque black.
    void insertSpace(int start, int count) override;
};

#pragma once

#include "meridane/scene/fields/ListField.h"

extern template class meridane::ListField<VbVec2i32>;

/// A list of vectors of two 32-bit integers.
class NxMFVec2i32 : public meridane::ListField<VbVec2i32> {
    NX_FIELD(NxMFVec2i32)

public:
    using ListField::ListField;
};

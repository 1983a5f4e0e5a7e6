#pragma once

#include "meridane/scene/fields/SingleField.h"

extern template class meridane::SingleField<VbVec2i32>;

/// A single vector of two 32-bit integers.
class NxSFVec2i32 : public meridane::SingleField<VbVec2i32> {
    NX_FIELD(NxSFVec2i32)

public:
    using SingleField::SingleField;

    using SingleField::setValue;
    /// Sets both components and notifies the observers once.
    void setValue(int x, int y) { setValue(VbVec2i32(x, y)); }
};

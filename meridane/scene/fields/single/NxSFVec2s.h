#pragma once

#include "meridane/scene/fields/SingleField.h"

extern template class meridane::SingleField<VbVec2s>;

/// A single vector of two 16-bit integers.
class NxSFVec2s : public meridane::SingleField<VbVec2s> {
    NX_FIELD(NxSFVec2s)

public:
    using SingleField::SingleField;

    using SingleField::setValue;
    /// Sets both components and notifies the observers once.
    void setValue(short x, short y) { setValue(VbVec2s(x, y)); }
};

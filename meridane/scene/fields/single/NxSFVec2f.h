#pragma once

#include "meridane/scene/fields/SingleField.h"

extern template class meridane::SingleField<VbVec2f>;

/// A single vector of two floats.
class NxSFVec2f : public meridane::SingleField<VbVec2f> {
    NX_FIELD(NxSFVec2f)

public:
    using SingleField::SingleField;

    using SingleField::setValue;
    /// Sets both components and notifies the observers once.
    void setValue(float x, float y) { setValue(VbVec2f(x, y)); }
};

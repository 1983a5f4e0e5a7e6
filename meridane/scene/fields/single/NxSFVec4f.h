#pragma once

#include "meridane/scene/fields/SingleField.h"

extern template class meridane::SingleField<VbVec4f>;

/// A single vector of four floats.
class NxSFVec4f : public meridane::SingleField<VbVec4f> {
    NX_FIELD(NxSFVec4f)

public:
    using SingleField::SingleField;

    using SingleField::setValue;
    /// Sets all components and notifies the observers once.
    void setValue(float x, float y, float z, float w) { setValue(VbVec4f(x, y, z, w)); }
};

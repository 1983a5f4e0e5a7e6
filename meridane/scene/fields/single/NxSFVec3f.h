#pragma once

#include "meridane/scene/fields/SingleField.h"

extern template class meridane::SingleField<VbVec3f>;

/// A single vector of three floats.
class NxSFVec3f : public meridane::SingleField<VbVec3f> {
    NX_FIELD(NxSFVec3f)

public:
    using SingleField::SingleField;

    using SingleField::setValue;
    /// Sets all components and notifies the observers once.
    void setValue(float x, float y, float z) { setValue(VbVec3f(x, y, z)); }
};

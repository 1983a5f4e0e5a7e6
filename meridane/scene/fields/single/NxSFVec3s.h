#pragma once

#include "meridane/scene/fields/SingleField.h"

extern template class meridane::SingleField<VbVec3s>;

/// A single vector of three 16-bit integers.
class NxSFVec3s : public meridane::SingleField<VbVec3s> {
    NX_FIELD(NxSFVec3s)

public:
    using SingleField::SingleField;

    using SingleField::setValue;
    /// Sets all components and notifies the observers once.
    void setValue(short x, short y, short z) { setValue(VbVec3s(x, y, z)); }
};

#pragma once

#include "meridane/scene/fields/SingleField.h"

extern template class meridane::SingleField<VbMatrix>;

/// A single matrix of four by four floats.
class NxSFMatrix : public meridane::SingleField<VbMatrix> {
    NX_FIELD(NxSFMatrix)

public:
    using SingleField::SingleField;

    using SingleField::setValue;
    /// Takes the elements row by row.
    void setValue(float a00, float a01, float a02, float a03, float a10, float a11, float a12, float a13, float a20,
        float a21, float a22, float a23, float a30, float a31, float a32, float a33)
    {
        setValue(VbMatrix(a00, a01, a02, a03, a10, a11, a12, a13, a20, a21, a22, a23, a30, a31, a32, a33));
    }
};

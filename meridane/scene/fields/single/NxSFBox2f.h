#pragma once

#include "meridane/scene/fields/SingleField.h"

extern template class meridane::SingleField<VbBox2f>;

/// A single rectangle of floats.
class NxSFBox2f : public meridane::SingleField<VbBox2f> {
    NX_FIELD(NxSFBox2f)

public:
    using SingleField::SingleField;

    using SingleField::setValue;
    void setValue(float xMin, float yMin, float xMax, float yMax) { setValue(VbBox2f({xMin, yMin}, {xMax, yMax})); }
};

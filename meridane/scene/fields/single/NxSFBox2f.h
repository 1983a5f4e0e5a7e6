#pragma once

#include "meridane/scene/fields/SingleField.h"

extern template class meridane::SingleField<VbBox2f>;

/// A single rectangle of floats.
class NxSFBox2f : public meridane::SingleField<VbBox2f> {
    NX_FIELD(NxSFBox2f)

public:
    using SingleField::SingleField;

    using SingleField::setValue;
    /// Sets both corners. They are kept as given, also when they are the wrong way round.
    void setValue(float xMin, float yMin, float xMax, float yMax) { setValue(VbBox2f({xMin, yMin}, {xMax, yMax})); }
};

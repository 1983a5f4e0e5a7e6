#pragma once

#include "meridane/scene/fields/SingleField.h"

extern template class meridane::SingleField<VbBox3s>;

/// A single box of 16-bit integers.
class NxSFBox3s : public meridane::SingleField<VbBox3s> {
    NX_FIELD(NxSFBox3s)

public:
    using SingleField::SingleField;

    using SingleField::setValue;
    /// Sets both corners. They are kept as given, also when they are the wrong way round.
    void setValue(short xMin, short yMin, short zMin, short xMax, short yMax, short zMax)
    {
        setValue(VbBox3s({xMin, yMin, zMin}, {xMax, yMax, zMax}));
    }
};

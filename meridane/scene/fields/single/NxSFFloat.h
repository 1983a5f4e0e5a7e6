#pragma once

#include "meridane/scene/fields/SingleField.h"

extern template class meridane::SingleField<float>;

/// A single 32-bit floating-point number.
class NxSFFloat : public meridane::SingleField<float> {
    NX_FIELD(NxSFFloat)

public:
    using SingleField::SingleField;
};

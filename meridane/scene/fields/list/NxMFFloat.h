#pragma once

#include "meridane/scene/fields/ListField.h"

extern template class meridane::ListField<float>;

/// A list of 32-bit floating-point numbers.
class NxMFFloat : public meridane::ListField<float> {
    NX_FIELD(NxMFFloat)

public:
    using ListField::ListField;
};

#pragma once

#include "meridane/scene/fields/ListField.h"

extern template class meridane::ListField<double>;

/// A list of 64-bit floating-point numbers.
class NxMFDouble : public meridane::ListField<double> {
    NX_FIELD(NxMFDouble)

public:
    using ListField::ListField;
};

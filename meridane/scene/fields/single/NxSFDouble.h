#pragma once

#include "meridane/scene/fields/SingleField.h"

extern template class meridane::SingleField<double>;

/// A single 64-bit floating-point number.
class NxSFDouble : public meridane::SingleField<double> {
    NX_FIELD(NxSFDouble)

public:
    using SingleField::SingleField;
};

#pragma once

#include "meridane/scene/fields/ListField.h"

extern template class meridane::ListField<int>;

/// A list of 32-bit integers.
class NxMFInt32 : public meridane::ListField<int> {
    NX_FIELD(NxMFInt32)

public:
    using ListField::ListField;
};

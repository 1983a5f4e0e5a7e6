#pragma once

#include "meridane/scene/fields/ListField.h"

extern template class meridane::ListField<unsigned int>;

/// A list of 32-bit integers without a sign.
class NxMFUInt32 : public meridane::ListField<unsigned int> {
    NX_FIELD(NxMFUInt32)

public:
    using ListField::ListField;
};

#pragma once

#include "meridane/scene/fields/ListField.h"

extern template class meridane::ListField<unsigned short>;

/// A list of 16-bit integers without a sign.
class NxMFUShort : public meridane::ListField<unsigned short> {
    NX_FIELD(NxMFUShort)

public:
    using ListField::ListField;
};

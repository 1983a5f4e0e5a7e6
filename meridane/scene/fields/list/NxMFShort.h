#pragma once

#include "meridane/scene/fields/ListField.h"

extern template class meridane::ListField<short>;

/// A list of 16-bit integers.
class NxMFShort : public meridane::ListField<short> {
    NX_FIELD(NxMFShort)

public:
    using ListField::ListField;
};

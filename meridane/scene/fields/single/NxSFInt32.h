#pragma once

#include "meridane/scene/fields/SingleField.h"

extern template class meridane::SingleField<int>;

/// A single 32-bit integer.
class NxSFInt32 : public meridane::SingleField<int> {
    NX_FIELD(NxSFInt32)

public:
    using SingleField::SingleField;
};

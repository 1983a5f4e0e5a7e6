#pragma once

#include "meridane/scene/fields/SingleField.h"

extern template class meridane::SingleField<unsigned int>;

/// A single 32-bit integer without a sign.
class NxSFUInt32 : public meridane::SingleField<unsigned int> {
    NX_FIELD(NxSFUInt32)

public:
    using SingleField::SingleField;
};

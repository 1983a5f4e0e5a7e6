#pragma once

#include "meridane/scene/fields/SingleField.h"

extern template class meridane::SingleField<unsigned short>;

/// A single 16-bit integer without a sign.
class NxSFUShort : public meridane::SingleField<unsigned short> {
    NX_FIELD(NxSFUShort)

public:
    using SingleField::SingleField;
};

#pragma once

#include "meridane/scene/fields/SingleField.h"

extern template class meridane::SingleField<short>;

/// A single 16-bit integer.
class NxSFShort : public meridane::SingleField<short> {
    NX_FIELD(NxSFShort)

public:
    using SingleField::SingleField;
};

#pragma once

#include "meridane/scene/fields/ListField.h"

extern template class meridane::ListField<meridane::Flag>;

/// A list of booleans.
class NxMFBool : public meridane::ListField<meridane::Flag> {
    NX_FIELD(NxMFBool)

public:
    using ListField::ListField;
};

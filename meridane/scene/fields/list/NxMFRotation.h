#pragma once

#include "meridane/scene/fields/ListField.h"

extern template class meridane::ListField<VbRotation>;

/// A list of rotations.
class NxMFRotation : public meridane::ListField<VbRotation> {
    NX_FIELD(NxMFRotation)

public:
    using ListField::ListField;
};

#pragma once

#include "meridane/scene/fields/SingleField.h"

extern template class meridane::SingleField<VbRotation>;

/// A single rotation about an axis.
class NxSFRotation : public meridane::SingleField<VbRotation> {
    NX_FIELD(NxSFRotation)

public:
    using SingleField::SingleField;
};

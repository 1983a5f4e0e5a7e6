#pragma once

#include "meridane/scene/fields/SingleField.h"

extern template class meridane::SingleField<VbPlane>;

/// A single plane.
class NxSFPlane : public meridane::SingleField<VbPlane> {
    NX_FIELD(NxSFPlane)

public:
    using SingleField::SingleField;
};

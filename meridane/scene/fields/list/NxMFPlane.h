#pragma once

#include "meridane/scene/fields/ListField.h"

extern template class meridane::ListField<VbPlane>;

/// A list of planes.
class NxMFPlane : public meridane::ListField<VbPlane> {
    NX_FIELD(NxMFPlane)

public:
    using ListField::ListField;
};

#pragma once

#include "meridane/scene/fields/ListField.h"

extern template class meridane::ListField<VbVec3f>;

/// A list of vectors of three floats.
class NxMFVec3f : public meridane::ListField<VbVec3f> {
    NX_FIELD(NxMFVec3f)

public:
    using ListField::ListField;
};

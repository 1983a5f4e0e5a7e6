#pragma once

#include "meridane/scene/fields/ListField.h"

extern template class meridane::ListField<VbVec2f>;

/// A list of vectors of two floats.
class NxMFVec2f : public meridane::ListField<VbVec2f> {
    NX_FIELD(NxMFVec2f)

public:
    using ListField::ListField;
};

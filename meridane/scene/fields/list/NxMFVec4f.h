#pragma once

#include "meridane/scene/fields/ListField.h"

extern template class meridane::ListField<VbVec4f>;

/// A list of vectors of four floats.
class NxMFVec4f : public meridane::ListField<VbVec4f> {
    NX_FIELD(NxMFVec4f)

public:
    using ListField::ListField;
};

#pragma once

#include "meridane/scene/fields/ListField.h"

extern template class meridane::ListField<VbVec2s>;

/// A list of vectors of two 16-bit integers.
class NxMFVec2s : public meridane::ListField<VbVec2s> {
    NX_FIELD(NxMFVec2s)

public:
    using ListField::ListField;
};

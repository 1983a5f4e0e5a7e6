#pragma once

#include "meridane/scene/fields/ListField.h"

extern template class meridane::ListField<VbMatrix>;

/// A list of matrices.
class NxMFMatrix : public meridane::ListField<VbMatrix> {
    NX_FIELD(NxMFMatrix)

public:
    using ListField::ListField;
};

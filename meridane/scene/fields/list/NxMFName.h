#pragma once

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/ListField.h"

extern template class meridane::ListField<VbName>;

/// A list of interned names.
class NxMFName : public meridane::ListField<VbName> {
    NX_FIELD(NxMFName)

public:
    using ListField::ListField;
};

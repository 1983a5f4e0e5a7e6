#pragma once

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/SingleField.h"

extern template class meridane::SingleField<VbName>;

/// A single interned name.
class NxSFName : public meridane::SingleField<VbName> {
    NX_FIELD(NxSFName)

public:
    using SingleField::SingleField;
};

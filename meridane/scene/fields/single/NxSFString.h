#pragma once

#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/SingleField.h"

extern template class meridane::SingleField<VbString>;

/// A single text.
class NxSFString : public meridane::SingleField<VbString> {
    NX_FIELD(NxSFString)

public:
    using SingleField::SingleField;
};

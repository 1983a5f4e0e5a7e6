#pragma once

#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/ListField.h"

extern template class meridane::ListField<VbString>;

/// A list of texts.
class NxMFString : public meridane::ListField<VbString> {
    NX_FIELD(NxMFString)

public:
    using ListField::ListField;
};

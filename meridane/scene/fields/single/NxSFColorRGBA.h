#pragma once

#include "meridane/scene/fields/SingleField.h"

extern template class meridane::SingleField<VbColorRGBA>;

/// A single colour with its opacity.
class NxSFColorRGBA : public meridane::SingleField<VbColorRGBA> {
    NX_FIELD(NxSFColorRGBA)

public:
    using SingleField::SingleField;
};

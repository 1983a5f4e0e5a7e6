#pragma once

#include "meridane/scene/fields/SingleField.h"

extern template class meridane::SingleField<VbColor>;

/// A single colour.
class NxSFColor : public meridane::SingleField<VbColor> {
    NX_FIELD(NxSFColor)

public:
    using SingleField::SingleField;
};

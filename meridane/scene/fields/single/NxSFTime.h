#pragma once

#include "meridane/scene/fields/SingleField.h"

extern template class meridane::SingleField<double>;

/// A point in time or a span of it, in seconds.
class NxSFTime : public meridane::SingleField<double> {
    NX_FIELD(NxSFTime)

public:
    using SingleField::SingleField;
};

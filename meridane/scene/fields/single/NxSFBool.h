#pragma once

#include "meridane/scene/fields/SingleField.h"

extern template class meridane::SingleField<meridane::Flag>;

/// A single boolean.
class NxSFBool : public meridane::SingleField<meridane::Flag> {
    NX_FIELD(NxSFBool)

public:
    using SingleField::SingleField;

    /// 0 or 1.
    [[nodiscard]] int getValue() const noexcept { return SingleField::getValue() ? 1 : 0; }
    /// Any number but 0 is true.
    void setValue(int value) { SingleField::setValue(value != 0); }
};

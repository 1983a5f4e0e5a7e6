#pragma once

#include "meridane/scene/fields/NxField.h"

/// The root of all fields that hold a single value.
class NxSField : public NxField {
public:
    [[nodiscard]] static NxType getClassTypeId();

protected:
    using NxField::NxField;
};

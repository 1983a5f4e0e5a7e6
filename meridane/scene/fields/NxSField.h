#pragma once

#include "meridane/scene/fields/NxField.h"

/// The root of all fields that hold a single value.
class NxSField : public NxField {
public:
    /// The run-time type of all single values, an abstract one.
    [[nodiscard]] static NxType getClassTypeId();

protected:
    using NxField::NxField;
};

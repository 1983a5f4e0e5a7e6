#pragma once

#include "meridane/scene/fields/NxFieldSensor.h"

/// A reference to a field that becomes null when the field is destroyed. It ignores changes of the field.
class FieldWatch final : public NxFieldSensor {
public:
    explicit FieldWatch(NxField* field = nullptr) { attach(field); }

    void notify() override { }
};

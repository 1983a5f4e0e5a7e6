#pragma once

#include "meridane/scene/fields/NxFieldSensor.h"

/// A reference to a field that becomes null when the field dies. Changes of the field don't matter to it.
class FieldWatch final : public NxFieldSensor {
public:
    explicit FieldWatch(NxField* field = nullptr) { attach(field); }

    void notify() override { }
};

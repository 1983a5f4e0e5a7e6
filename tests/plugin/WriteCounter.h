#pragma once

#include "meridane/scene/fields/NxFieldSensor.h"

/// Counts how often a field is written, also when the editor's own sensor hears of several writes in one call.
class WriteCounter final : public NxFieldSensor {
public:
    explicit WriteCounter(NxField& field) { attach(&field); }
    void schedule() override { ++writes; }

    int writes = 0;
};

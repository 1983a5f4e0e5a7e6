#pragma once

#include "FieldEditors/SFWidgets/DvSF2iSpinBox.h"

/// Edits two 32-bit integers with spin boxes of their whole range.
class DvSFVec2i32Widget final : public DvSF2iSpinBox {
public:
    explicit DvSFVec2i32Widget(const char* name = nullptr);
    ~DvSFVec2i32Widget() override;

    void load() override;
    void updateFromField() override;
    void applyChanges() override;
};

#pragma once

#include "FieldEditors/SFWidgets/DvSF2iSpinBox.h"

/// Edits two 16-bit integers with spin boxes of their whole range.
class DvSFVec2sWidget final : public DvSF2iSpinBox {
public:
    explicit DvSFVec2sWidget(const char* name = nullptr);
    ~DvSFVec2sWidget() override;

    void load() override;
    void updateFromField() override;
    void applyChanges() override;
};

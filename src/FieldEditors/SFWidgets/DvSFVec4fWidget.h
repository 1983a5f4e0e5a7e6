#pragma once

#include "FieldEditors/SFWidgets/DvSF4fBox.h"

/// Edits four floats.
class DvSFVec4fWidget final : public DvSF4fBox {
public:
    explicit DvSFVec4fWidget(const char* name = nullptr);
    ~DvSFVec4fWidget() override;

    void load() override;
    void updateFromField() override;
    void applyChanges() override;
};

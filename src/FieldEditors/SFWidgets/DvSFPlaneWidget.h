#pragma once

#include "FieldEditors/SFWidgets/DvSF4fBox.h"

/// Edits a plane: its normal and its distance from the origin. A normal of no length is kept as it is.
class DvSFPlaneWidget final : public DvSF4fBox {
public:
    explicit DvSFPlaneWidget(const char* name = nullptr);
    ~DvSFPlaneWidget() override;

    void load() override;
    void updateFromField() override;
    void applyChanges() override;
};

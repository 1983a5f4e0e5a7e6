#pragma once

#include "FieldEditors/SFWidgets/DvPopupWidget.h"

/// Edits a matrix of four by four floats.
class DvSFMatrixWidget final : public DvPopupWidget {
public:
    explicit DvSFMatrixWidget(const char* name = nullptr);
    ~DvSFMatrixWidget() override;

    void load() override;
    void updateFromField() override;

    using DvPopupWidget::applyChanges;
    /// Writes all lines to the field. The lines stay as they are.
    void applyChanges() override;
};

#pragma once

#include "FieldEditors/SFWidgets/DvPopupWidget.h"

/// Edits a box of 16-bit integers: its minimum in the first row, its maximum in the second.
class DvSFBox3sWidget final : public DvPopupWidget {
    Q_OBJECT

public:
    explicit DvSFBox3sWidget(const char* name = nullptr);
    ~DvSFBox3sWidget() override;

    void load() override;
    void updateFromField() override;

    using DvPopupWidget::applyChanges;

public Q_SLOTS:
    /// Writes all lines to the field. The lines stay as they are.
    void applyChanges() override;
};

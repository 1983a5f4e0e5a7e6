#pragma once

#include "FieldEditors/SFWidgets/DvPopupWidget.h"

/// Edits a rectangle of floats: its minimum in the first row, its maximum in the second.
class DvSFBox2fWidget final : public DvPopupWidget {
    Q_OBJECT

public:
    explicit DvSFBox2fWidget(const char* name = nullptr);
    ~DvSFBox2fWidget() override;

    void load() override;
    void updateFromField() override;

    using DvPopupWidget::applyChanges;

public Q_SLOTS:
    /// Writes all lines to the field. The lines stay as they are.
    void applyChanges() override;
};

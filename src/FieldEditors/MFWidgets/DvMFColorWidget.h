#pragma once

#include "FieldEditors/MFWidgets/DvMFVec3fWidget.h"

/// Edits a list of colours: a cell that shows the colour and opens the colour dialog, and a cell for each component.
class DvMFColorWidget final : public DvMFVec3fWidget {
public:
    explicit DvMFColorWidget(const char* name = nullptr);
    ~DvMFColorWidget() override;

    void load() override;
    void setRowColor(int row, const VbVec4f& value) override;
    QString getCellValue(int row, int column) override;
    bool prepareForField(NxField* field) override;
    /// Takes components from 0 to 1 only and ignores any other.
    void setRowComponent(float value, int row, int component) override;
};

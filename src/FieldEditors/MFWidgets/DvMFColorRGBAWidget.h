#pragma once

#include "FieldEditors/MFWidgets/DvMFVec4fWidget.h"

/// Edits a list of colours with their opacity, as for colours without it, but takes components of any size.
class DvMFColorRGBAWidget final : public DvMFVec4fWidget {
public:
    explicit DvMFColorRGBAWidget(const char* name = nullptr);
    ~DvMFColorRGBAWidget() override;

    void load() override;
    void setRowColor(int row, const VbVec4f& value) override;
    QString getCellValue(int row, int column) override;
    bool prepareForField(NxField* field) override;
};

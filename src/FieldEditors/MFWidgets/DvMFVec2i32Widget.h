#pragma once

#include "FieldEditors/MFWidgets/DvMFieldWidget.h"

/// Edits a list of vectors of two 32-bit integers, with a column for each component.
class DvMFVec2i32Widget final : public DvMFieldWidget {
public:
    explicit DvMFVec2i32Widget(const char* name = nullptr);
    ~DvMFVec2i32Widget() override;

    void load() override;
    void swapRows(int first, int second) override;
    void reservedRowOperation() override;
    void setCellValue(int row, int column, QString value) override;
    QString getCellValue(int row, int column) override;
    int getCellAlignment() override;
    bool prepareForField(NxField* field) override;
};

#pragma once

#include "FieldEditors/MFWidgets/DvMFieldWidget.h"

/// Edits a list of vectors of two 16-bit integers, with a column for each component.
class DvMFVec2sWidget final : public DvMFieldWidget {
public:
    explicit DvMFVec2sWidget(const char* name = nullptr);
    ~DvMFVec2sWidget() override;

    void load() override;
    void swapRows(int first, int second) override;
    void reservedRowOperation() override;
    void setCellValue(int row, int column, QString value) override;
    QString getCellValue(int row, int column) override;
    int getCellAlignment() override;
    bool prepareForField(NxField* field) override;
};

#pragma once

#include "FieldEditors/MFWidgets/DvMFieldWidget.h"

/// Edits any list by the text forms of its values, for the fields that have no editor of their own.
class DvMFDefaultFieldWidget final : public DvMFieldWidget {
public:
    explicit DvMFDefaultFieldWidget(const char* name = nullptr);
    ~DvMFDefaultFieldWidget() override;

    void load() override;
    void swapRows(int first, int second) override;
    void reservedRowOperation() override;
    void setCellValue(int row, int column, QString value) override;
    QString getCellValue(int row, int column) override;
    bool prepareForField(NxField* field) override;
};

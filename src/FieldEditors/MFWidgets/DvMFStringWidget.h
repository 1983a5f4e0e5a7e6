#pragma once

#include "FieldEditors/MFWidgets/DvMFieldWidget.h"

/// Edits a list of texts, each as it is, without quotes.
class DvMFStringWidget final : public DvMFieldWidget {
public:
    explicit DvMFStringWidget(const char* name = nullptr);
    ~DvMFStringWidget() override;

    void load() override;
    void swapRows(int first, int second) override;
    void reservedRowOperation() override;
    void setCellValue(int row, int column, QString value) override;
    QString getCellValue(int row, int column) override;
    bool prepareForField(NxField* field) override;
};

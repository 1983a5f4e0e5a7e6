#pragma once

#include "FieldEditors/MFWidgets/DvMFieldWidget.h"

/// Edits a list of planes: the normal and the distance from the origin.
///
/// Contract: the table shows only the first component of the normal. The other cells are blank and open with an empty
/// line, but a typed number is written.
class DvMFPlaneWidget final : public DvMFieldWidget {
public:
    explicit DvMFPlaneWidget(const char* name = nullptr);
    ~DvMFPlaneWidget() override;

    void load() override;
    void swapRows(int first, int second) override;
    void reservedRowOperation() override;
    void setCellValue(int row, int column, QString value) override;
    QString getCellValue(int row, int column) override;
    int getCellAlignment() override;
    bool prepareForField(NxField* field) override;
};

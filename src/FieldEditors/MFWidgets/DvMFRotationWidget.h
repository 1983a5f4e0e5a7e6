#pragma once

#include "FieldEditors/MFWidgets/DvMFieldWidget.h"

/// Edits a list of rotations by their quaternions.
///
/// Contract: the table shows only the first component of the quaternion. The other cells are blank and open with an
/// empty line; "y" and "z" write the second and third component, and a number typed as "radians" is dropped.
class DvMFRotationWidget final : public DvMFieldWidget {
public:
    explicit DvMFRotationWidget(const char* name = nullptr);
    ~DvMFRotationWidget() override;

    void load() override;
    void swapRows(int first, int second) override;
    void reservedRowOperation() override;
    void setCellValue(int row, int column, QString value) override;
    QString getCellValue(int row, int column) override;
    int getCellAlignment() override;
    bool prepareForField(NxField* field) override;
};

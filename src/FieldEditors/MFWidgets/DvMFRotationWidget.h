#pragma once

#include "FieldEditors/MFWidgets/DvMFieldWidget.h"

/// Edits a list of rotations by their quaternions.
///
/// The table shows the first component of the quaternion only. The other cells are blank and open with an empty line;
/// "y" and "z" take the second and third component, and what is typed as "radians" is dropped.
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

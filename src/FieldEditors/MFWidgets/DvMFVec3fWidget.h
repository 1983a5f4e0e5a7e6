#pragma once

#include "FieldEditors/MFWidgets/DvMFieldWidget.h"

/// Edits a list of vectors of three floats, with a column for each component.
class DvMFVec3fWidget : public DvMFieldWidget {
public:
    explicit DvMFVec3fWidget(const char* name = nullptr);
    /// `tableKind` is the number of an `orvane::TableKind`, as for the base.
    DvMFVec3fWidget(int tableKind, const char* name);
    ~DvMFVec3fWidget() override;

    void load() override;
    void swapRows(int first, int second) override;
    void reservedRowOperation() override;
    void setCellValue(int row, int column, QString value) override;
    QString getCellValue(int row, int column) override;
    int getCellAlignment() override;
    bool prepareForField(NxField* field) override;

    /// Writes one component of a row and pushes the command.
    virtual void setRowComponent(float value, int row, int component);
};

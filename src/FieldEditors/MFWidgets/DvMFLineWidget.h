#pragma once

#include "FieldEditors/MFWidgets/DvMFieldWidget.h"

/// The base of the editors of plain numbers: one column with the text form of each row's value, as the field writes it.
///
/// Contract: an edited cell writes the field and pushes no command, so the command history can't undo it.
class DvMFLineWidget : public DvMFieldWidget {
    Q_OBJECT

public:
    explicit DvMFLineWidget(const char* name = nullptr);
    ~DvMFLineWidget() override;

    void load() override;
    /// Exchanges two rows without a command; does nothing if one of them doesn't exist.
    void swapRows(int first, int second) override;
    void reservedRowOperation() override;
    /// Writes a row, whatever the column.
    void setCellValue(int row, int column, QString value) override;
    QString getCellValue(int row, int column) override;
    bool prepareForField(NxField* field) override;

protected:
    /// Gives the table its one column and no rows.
    void setUpTable();
};

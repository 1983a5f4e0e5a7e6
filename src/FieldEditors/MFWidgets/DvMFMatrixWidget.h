#pragma once

#include "FieldEditors/MFWidgets/DvTablePopupWidget.h"

/// Edits a list of matrices of four by four floats, the current one in a popup.
///
/// Contract: every row of the table shows the text of the whole list, cut to its cell.
/// Contract: the line in row r and column c of the grid writes the element in row c and column r of the matrix.
class DvMFMatrixWidget final : public DvTablePopupWidget {
public:
    explicit DvMFMatrixWidget(const char* name = nullptr);
    ~DvMFMatrixWidget() override;

    void load() override;
    void swapRows(int first, int second) override;
    void reservedRowOperation() override;
    /// Writes all lines of the popup to a row.
    void setCellValue(int row, int column, QString value) override;
    /// The text form of the whole list, whatever the cell.
    QString getCellValue(int row, int column) override;
    int getCellAlignment() override;
    bool prepareForField(NxField* field) override;
    QString getPopupCellValue(int row, int index) override;

    /// At least so many characters from the beginning of the cells' text, or all of it if it is shorter. The time
    /// depends on that number, not on the length of the list.
    [[nodiscard]] QString beginning(int characters);

private:
    QString m_beginning; // as long as the revision is that of the field
    unsigned m_beginningRevision = 0;
};

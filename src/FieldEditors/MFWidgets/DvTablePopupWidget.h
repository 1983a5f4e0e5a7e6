#pragma once

#include "FieldEditors/MFWidgets/DvMFieldWidget.h"

#include <QPixmap>

#include <vector>

class DvTablePopupLineEdit;
class QFrame;
class QPushButton;

/// Base of the editors of a list whose values are too large for a table row: the table only shows the rows, and a
/// button opens a popup with a grid of lines for the numbers of the current row.
///
/// Contract: any change of a line writes the whole row, also while the popup fills the lines one after the other. So
/// opening the popup changes the row unless the lines show it already.
class DvTablePopupWidget : public DvMFieldWidget {
    Q_OBJECT

public:
    DvTablePopupWidget(int rows, int columns, const char* name);
    ~DvTablePopupWidget() override;

    void load() override;

    /// The text of the line of that index for a row of the field.
    [[nodiscard]] virtual QString getPopupCellValue(int row, int index);

    /// Gives every line a validator of its own. `kind` is the number of an `orvane::ValidatorKind`; `None` removes the
    /// validators, and any other number does nothing.
    void setPopupValidators(int kind);
    /// The row whose numbers the popup shows and writes; -1 for none.
    [[nodiscard]] int currentRow() const;

public Q_SLOTS:
    /// Opens the popup with the numbers of the current row, or closes it.
    void setEditFrame();

protected:
    QPushButton* m_editButton = nullptr;
    QFrame* m_popupFrame = nullptr;
    std::vector<DvTablePopupLineEdit*> m_popupEdits; // column by column; the popup's
    QPixmap m_editPixmap;
    int m_popupRows;
    int m_popupColumns;

private:
    void buildButton();
    void buildPopup();
};

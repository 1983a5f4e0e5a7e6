#pragma once

#include "FieldEditors/SFWidgets/DvSFLineWidget.h"

#include <vector>

/// Base of the editors of a value with more numbers than fit on one line: the line shows the text form, and a button
/// opens a popup with a grid of lines, one for each number.
///
/// A concrete editor gives the size of the grid, calls `setLinesValidator` at the end of its `load`, and fills and
/// reads the lines. A value is changed in the grid only; the line is disabled.
class DvPopupWidget : public DvSFLineWidget {
    Q_OBJECT

public:
    DvPopupWidget(int rows, int columns, const char* name);
    ~DvPopupWidget() override;

    void load() override;
    /// Whether a line of the grid holds typed text that hasn't been replaced since. The line of the text form doesn't
    /// count.
    [[nodiscard]] bool edited() override;

    /// Gives every line a validator of its own. `kind` is the number of an `orvane::ValidatorKind`; `None` removes the
    /// validators, and any other number does nothing.
    void setLinesValidator(int kind);
    /// Shows the beginning of each line's text.
    void resetLinesCursor();

public Q_SLOTS:
    /// Opens the popup at the button, with the field's current value, or closes it.
    void managePopFramePos();

protected:
    QPushButton* m_editButton = nullptr;
    QFrame* m_popupFrame = nullptr;
    std::vector<QLineEdit*> m_lines; // row by row; the frame's
    QPixmap m_editIcon;
    int m_rows;
    int m_columns;

private:
    void buildButton();
    void buildPopup();
};

#pragma once

#include "FieldEditors/MFWidgets/DvMFieldTable.h"

/// The table of a list of colours, whose first column shows each row's colour. A click there opens the colour dialog.
class DvMFColorTable final : public DvMFieldTable {
    Q_OBJECT

public:
    DvMFColorTable(DvMFieldWidget* editor, QWidget* parent, const char* name);

public Q_SLOTS:
    /// Asks the user for the colour of a row. Only the first column has any.
    void getColorFromEditor(int row, int col);
};

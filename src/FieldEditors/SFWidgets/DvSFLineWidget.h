#pragma once

#include "FieldEditors/SFWidgets/DvSFieldWidget.h"

class QLineEdit;

/// Edits any single value through its text form, and writes the field with each keystroke. It is the editor of all
/// fields that have none of their own, and the base of the editors that add a popup to the line.
class DvSFLineWidget : public DvSFieldWidget {
    Q_OBJECT

public:
    explicit DvSFLineWidget(const char* name = nullptr);

    void load() override;
    /// Puts the cursor back where the user last had it.
    void updateFromField() override;
    [[nodiscard]] bool edited() override;

    // The one without an argument does nothing here, since the keys have written the text already. Return and leaving
    // the line call it for the classes that override it.
    using DvSFieldWidget::applyChanges;

public Q_SLOTS:
    /// Writes the text of the line to the field and pushes a command; the argument isn't read.
    virtual void applyChanges(const QString& text);
    /// Keeps the position of the cursor.
    virtual void setCursorPosition(int oldPos, int newPos);

protected:
    QLineEdit* lineEdit = nullptr;
    int m_cursorPosition = 0;
};

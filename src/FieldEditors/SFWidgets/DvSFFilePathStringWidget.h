#pragma once

#include "FieldEditors/SFWidgets/DvSFieldWidget.h"

class QLineEdit;

/// Edits the path of a file, typed or chosen in a dialog. A typed path is written to the field when editing of the line
/// finishes, a chosen one at once. The file need not exist.
class DvSFFilePathStringWidget final : public DvSFieldWidget {
    Q_OBJECT

public:
    explicit DvSFFilePathStringWidget(const char* name = nullptr);

    void load() override;
    void updateFromField() override;
    void applyChanges() override;

    // In the order of the meta object.
public Q_SLOTS: // NOLINT(readability-redundant-access-specifiers)
    void openFileDialog();
    [[nodiscard]] bool edited() override;

private:
    QLineEdit* lineEdit = nullptr;
    QPushButton* m_openFileButton = nullptr;
};

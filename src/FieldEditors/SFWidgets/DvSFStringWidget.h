#pragma once

#include "FieldEditors/SFWidgets/DvSFieldWidget.h"

class QLineEdit;

/// Edits a text. The field is written when editing of the line finishes: on Return, and when the focus leaves it.
class DvSFStringWidget final : public DvSFieldWidget {
    Q_OBJECT

public:
    explicit DvSFStringWidget(const char* name = nullptr);

    void load() override;
    void updateFromField() override;
    void applyChanges() override;
    [[nodiscard]] bool edited() override;

private:
    QLineEdit* lineEdit = nullptr;
};

#pragma once

#include "FieldEditors/SFWidgets/DvSFieldWidget.h"

class QLineEdit;

/// Edits a name. The field is written when editing of the line finishes: on Return, and when the focus leaves it. What
/// a name can't hold, anything outside Latin-1, is lost then.
class DvSFNameWidget final : public DvSFieldWidget {
    Q_OBJECT

public:
    explicit DvSFNameWidget(const char* name = nullptr);

    void load() override;
    void updateFromField() override;
    void applyChanges() override;
    [[nodiscard]] bool edited() override;

private:
    QLineEdit* lineEdit = nullptr;
};

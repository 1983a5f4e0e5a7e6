#pragma once

#include "FieldEditors/SFWidgets/DvSFieldWidget.h"

class QLineEdit;

/// Edits a name. The field is written when editing of the line finishes: on Return, and when the focus leaves it.
/// Characters outside Latin-1, which a name can't hold, are lost then.
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

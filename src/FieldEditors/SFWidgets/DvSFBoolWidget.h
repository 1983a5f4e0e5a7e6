#pragma once

#include "FieldEditors/SFWidgets/DvSFieldWidget.h"

class QCheckBox;

/// Edits a boolean with a check box.
class DvSFBoolWidget final : public DvSFieldWidget {
    Q_OBJECT

public:
    explicit DvSFBoolWidget(const char* name = nullptr);

    void load() override;
    void updateFromField() override;
    void applyChanges() override;

private:
    QCheckBox* m_box = nullptr;
};

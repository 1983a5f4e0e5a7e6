#pragma once

#include "FieldEditors/SFWidgets/DvSFieldWidget.h"

class QComboBox;

/// Edits a value of an enumeration by choosing one of its names.
class DvSFEnumWidget final : public DvSFieldWidget {
    Q_OBJECT

public:
    explicit DvSFEnumWidget(const char* name = nullptr);

    void load() override;
    /// Offers the names of the field's enumeration.
    void setField(NxField* field) override;
    void updateFromField() override;
    void applyChanges() override;

private:
    QComboBox* m_comboBox = nullptr;
};

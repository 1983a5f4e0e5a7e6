#pragma once

#include "FieldEditors/SFWidgets/DvSFieldWidget.h"

class DvRealSlider;

/// Edits a single-precision number with a slider whose range follows from the node that owns the field.
class DvSFFloatWidget final : public DvSFieldWidget {
    Q_OBJECT

public:
    explicit DvSFFloatWidget(const char* name = nullptr);

    void load() override;
    void setField(NxField* field) override;
    void updateFromField() override;
    void applyChanges() override;
    [[nodiscard]] bool edited() override;

private:
    DvRealSlider* m_slider = nullptr; // the edit area, once there is a field
};

#pragma once

#include "FieldEditors/SFWidgets/DvSFieldWidget.h"

class DvIntSlider;

/// Edits a 32-bit integer with a slider whose range grows with the values that it shows.
class DvSFInt32Widget final : public DvSFieldWidget {
    Q_OBJECT

public:
    explicit DvSFInt32Widget(const char* name = nullptr);

    void load() override;
    void updateFromField() override;
    void applyChanges() override;
    [[nodiscard]] bool edited() override;

private:
    DvIntSlider* m_slider = nullptr; // the edit area, once loaded
};

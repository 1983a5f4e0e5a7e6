#pragma once

#include "FieldEditors/SFWidgets/DvSFieldWidget.h"

class DvIntSlider;

/// Edits a 16-bit integer with a slider whose range grows with the values that it shows.
class DvSFShortWidget final : public DvSFieldWidget {
    Q_OBJECT

public:
    explicit DvSFShortWidget(const char* name = nullptr);

    void load() override;
    void updateFromField() override;
    void applyChanges() override;
    [[nodiscard]] bool edited() override;

private:
    DvIntSlider* m_slider = nullptr; // the edit area, once loaded
};

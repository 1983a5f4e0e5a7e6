#pragma once

#include "FieldEditors/SFWidgets/DvSFieldWidget.h"

class DvUIntSlider;

/// Edits an unsigned 16-bit integer with a slider whose range grows with the values that it shows.
class DvSFUShortWidget final : public DvSFieldWidget {
    Q_OBJECT

public:
    explicit DvSFUShortWidget(const char* name = nullptr);

    void load() override;
    void updateFromField() override;
    void applyChanges() override;
    [[nodiscard]] bool edited() override;

private:
    DvUIntSlider* m_slider = nullptr; // the edit area, once loaded
};

#pragma once

#include "FieldEditors/SFWidgets/DvSFieldWidget.h"

class DvSFImageLabel;

/// Shows an image as a thumbnail, and enlarged while the mouse is over it. There is no value to edit here, so nothing
/// but the two buttons changes the field.
class DvSFImageWidget final : public DvSFieldWidget {
public:
    explicit DvSFImageWidget(const char* name = nullptr);

    void load() override;
    void updateFromField() override;
    void applyChanges() override;

private:
    DvSFImageLabel* m_imageBox = nullptr;
};

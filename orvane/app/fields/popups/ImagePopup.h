#pragma once

#include "orvane/app/fields/popups/PopupFrame.h"

class NxSFImage;

/// An image as large as the screen has room for, at most 512 pixels high and wide, with its size and channels. Any
/// click beside its buttons, and Escape, close it.
class ImagePopup : public PopupFrame {
    Q_OBJECT

public:
    static constexpr int largestSide = 512;

    /// Takes a copy of what it shows. `canPaste` says whether the clipboard has an image.
    ImagePopup(const NxSFImage& image, bool canPaste, QWidget* parent);

    /// What a button of the popup asks for, once it has closed.
    enum class Wish { ChooseFile, Paste, Clear };

Q_SIGNALS:
    void wished(ImagePopup::Wish wish);

protected:
    void mousePressEvent(QMouseEvent* event) override;

private:
    void buildButtons(bool canPaste, bool canClear);
};

#pragma once

#include "orvane/app/fields/popups/PopupFrame.h"

class NxSFImage;

/// An image as large as the screen has room for, at most 512 pixels high and wide, with its size and channels. Any
/// click and Escape close it.
class ImagePopup : public PopupFrame {
    Q_OBJECT

public:
    static constexpr int largestSide = 512;

    /// Takes a copy of what it shows.
    ImagePopup(const NxSFImage& image, QWidget* parent);

protected:
    void mousePressEvent(QMouseEvent* event) override;
};

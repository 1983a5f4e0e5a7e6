#pragma once

#include "meridane/scene/fields/NxFieldSensor.h"

#include <QPixmap>

#include <map>
#include <memory>

class NxSFImage;

/// The thumbnails of images, each made once until its field changes. Thread of the user interface only.
class ImageThumbnails {
public:
    ImageThumbnails();
    ImageThumbnails(const ImageThumbnails&) = delete;
    ImageThumbnails& operator=(const ImageThumbnails&) = delete;
    ~ImageThumbnails();

    /// The image of a field in a square of that many pixels; null for an empty image. The field may be destroyed later.
    [[nodiscard]] const QPixmap& thumbnail(const NxSFImage& field, int side);
    /// How many thumbnails have been made, for tests.
    [[nodiscard]] int made() const noexcept { return m_made; }

private:
    struct Entry {
        Entry();

        NxFieldSensor sensor;
        QPixmap pixmap;
        int side = 0;
        bool isValid = false;
    };

    std::map<const NxSFImage*, std::unique_ptr<Entry>> m_entries;
    int m_made = 0;
};

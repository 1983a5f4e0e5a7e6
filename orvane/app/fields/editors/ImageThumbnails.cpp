#include "orvane/app/fields/editors/ImageThumbnails.h"

#include "orvane/extender/ImageSample.h"

#include "meridane/scene/fields/single/NxSFImage.h"

#include <algorithm>

namespace {

/// More are made again when they are seen again.
constexpr std::size_t mostThumbnails = 500;

} // namespace

ImageThumbnails::ImageThumbnails() = default;
ImageThumbnails::~ImageThumbnails() = default;

ImageThumbnails::Entry::Entry()
    : sensor([](void* data, NxSensor* /*sensor*/) { static_cast<Entry*>(data)->isValid = false; }, this)
{
}

const QPixmap& ImageThumbnails::thumbnail(const NxSFImage& field, int side)
{
    if (m_entries.size() > mostThumbnails)
        m_entries.clear();
    std::unique_ptr<Entry>& entry = m_entries[&field];
    if (entry == nullptr)
        entry = std::make_unique<Entry>();
    // A new field may have the place of one that was destroyed, which detached the sensor.
    if (entry->sensor.getAttachedField() != &field) {
        entry->sensor.attach(const_cast<NxSFImage*>(&field));
        entry->isValid = false;
    }
    if (!entry->isValid || entry->side != side) {
        QImage sample = orvane::sampledImage(field, {side, side});
        // The pixels of a small image are seen as squares.
        if (const int factor = side / std::max({sample.width(), sample.height(), 1}); !sample.isNull() && factor > 1)
            sample = sample.scaled(sample.size() * factor);
        entry->pixmap = QPixmap::fromImage(sample);
        entry->side = side;
        entry->isValid = true;
        ++m_made;
    }
    return entry->pixmap;
}

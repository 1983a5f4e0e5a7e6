#pragma once

#include <QImage>
#include <QSize>
#include <QString>

class NxSFImage;

namespace orvane {

/// The image of a field at most as large as `room`, upright. The time it takes depends on `room`, not on the size of
/// the image. Null for an empty image.
[[nodiscard]] QImage sampledImage(const NxSFImage& field, const QSize& room);
/// Such as "640 × 480, RGB"; "no image" for an empty one.
[[nodiscard]] QString imageDescription(const NxSFImage& field);

} // namespace orvane

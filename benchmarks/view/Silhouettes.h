#pragma once

#include <QImage>

namespace bench {

/// The silhouette of what a picture shows before that background, as a grey image: 0 for background, 255 for the rest.
[[nodiscard]] QImage silhouetteOf(const QImage& picture, QRgb background);

/// The same of a picture with smooth edges in which everything has one colour. Pixels with another one are on the edge:
/// they get the value 128.
[[nodiscard]] QImage smoothSilhouetteOf(const QImage& picture, QRgb background);

/// How many pixels two silhouettes of the same size differ by: the most of all regions of neighbouring pixels at which
/// they disagree; pixels on an edge agree with all others. A region differs by the greatest distance of its pixels from
/// one where the other silhouette agrees. But it differs by no more than its own width and height: where two objects
/// overlap by a fraction of a pixel, a gap may open that is far from any other gap, although both objects are almost
/// where they were.
[[nodiscard]] int differenceOf(const QImage& silhouette, const QImage& other);

} // namespace bench

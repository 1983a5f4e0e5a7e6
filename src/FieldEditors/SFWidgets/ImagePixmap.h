#pragma once

class NxField;
class QPixmap;

namespace orvane {

/// The picture of an image field, with rows counted upwards for three and four components and downwards for one and
/// two. Two components are read as one pixel of 5, 6 and 5 bits. Empty for a field of another type, for an image
/// without data, and when there isn't the memory.
///
/// The pixmap has data of its own: the field may change, and no other copy is left behind.
[[nodiscard]] QPixmap imagePixmap(const NxField& field);

} // namespace orvane

#pragma once

#include "orvane/app/base/Result.h"

#include <QString>

class QImage;

namespace orvane {

/// Fails unless the extension of the file's name is that of a format for pictures.
Result<> checkPictureName(const QString& fileName);
/// Whether the format that the name's extension names can hold transparent pixels.
[[nodiscard]] bool canBeTransparent(const QString& fileName);
/// Writes the picture in the format that the extension names. An old file of that name is replaced once the new one is
/// complete.
Result<> writePicture(const QImage& picture, const QString& fileName);

} // namespace orvane

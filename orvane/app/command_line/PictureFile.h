#pragma once

#include <QString>

#include <optional>

class QPixmap;

namespace orvane {

/// The message that the extension of the file's name names no format of pictures, or nothing.
[[nodiscard]] std::optional<QString> checkPictureName(const QString& fileName);
/// Writes the picture in the format that the extension names; an old file of that name stays until the new one is
/// whole. The result is the message of the failure, or nothing.
[[nodiscard]] std::optional<QString> writePicture(const QPixmap& picture, const QString& fileName);

} // namespace orvane

#pragma once

#include <QString>

namespace orvane {

/// Whether a message of Qt is one that doesn't help a user. The image editor causes the last one when it sets a colour
/// of an image without a colour table.
[[nodiscard]] inline bool isQtNoise(const QString& text)
{
    return text.contains(QLatin1String("propagateSizeHints")) || text.startsWith(QLatin1String("QStandardPaths:"))
        || text == QLatin1String("QImage::setColor: Index out of bound 0");
}

} // namespace orvane

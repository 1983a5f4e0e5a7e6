#pragma once

#include <QString>

class QMimeData;

namespace orvane {

/// The local file that is dragged, if it is exactly one; otherwise empty.
[[nodiscard]] QString draggedFile(const QMimeData& data);

} // namespace orvane

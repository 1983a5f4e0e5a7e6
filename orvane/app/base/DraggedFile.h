#pragma once

#include <QString>

class QMimeData;

namespace orvane {

/// The format of nodes on the clipboard or under way by drag and drop.
[[nodiscard]] QString nodeMimeType();
/// Whether files are dragged, and not nodes that other programs may take as a file.
[[nodiscard]] bool hasFiles(const QMimeData& data);
/// The local file that is dragged, if it is exactly one; otherwise empty.
[[nodiscard]] QString draggedFile(const QMimeData& data);

} // namespace orvane

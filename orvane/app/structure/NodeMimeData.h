#pragma once

#include "orvane/app/base/DraggedFile.h"
#include "orvane/app/base/Result.h"

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxNode.h"

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <vector>

class QMimeData;

/// Nodes on the clipboard or under way by drag and drop: the text of a scene file, as plain text and in a form of the
/// tool's own, which also knows where the nodes are from.
namespace orvane {

/// The most text in bytes that is put on the clipboard or read from it.
inline constexpr std::size_t mostNodeText = std::size_t(64) << 20U;

/// Where nodes are from.
struct NodeOrigin {
    QString folder; ///< from which relative file paths in them count; empty for a scene without one
    QByteArray scene; ///< names a scene that is open in some window; empty if it isn't known
    std::vector<quint64> numbers; ///< the nodes' numbers in the journal of that scene
};

/// Fails if the nodes are too large, or can't be written.
[[nodiscard]] Result<std::unique_ptr<QMimeData>> nodeMimeData(
    std::span<const NxRef<NxNode>> nodes, const NodeOrigin& origin);

/// The nodes as the text of a scene file. Relative paths, which count from that folder, become absolute ones. Fails as
/// `nodeMimeData` does.
[[nodiscard]] Result<std::string> nodeFileText(std::span<const NxRef<NxNode>> nodes, const QString& folder);

/// What there is to be pasted.
struct NodeText {
    std::string text; ///< with the first line of a scene file
    NodeOrigin origin;
    int addedLines = 0; ///< of the text, which the user doesn't know
};

/// Whether there may be nodes.
[[nodiscard]] bool hasNodes(const QMimeData& data);
/// The name of the scene that the nodes are from; empty if it isn't known.
[[nodiscard]] QByteArray sceneOf(const QMimeData& data);
/// Fails if there are none, or too much text.
[[nodiscard]] Result<NodeText> nodeText(const QMimeData& data);

} // namespace orvane

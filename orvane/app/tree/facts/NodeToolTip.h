#pragma once

#include <QString>

class NxNode;

namespace meridane {

class NodeFigures;

} // namespace meridane

namespace orvane {

/// What a tool tip says of a node at once: class, name and description, the number of its children, and which of its
/// fields are ignored. Plain text.
[[nodiscard]] QString nodeToolTip(NxNode& node);
/// The lines about what is in and below a node; empty if there is no mesh.
[[nodiscard]] QString figuresText(const meridane::NodeFigures& figures);

} // namespace orvane

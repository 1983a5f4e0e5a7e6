#pragma once

#include "meridane/gl/places/NodeFigures.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxNode.h"

#include <QBasicTimer>
#include <QLabel>

#include <memory>

namespace nodes {

/// A text about the meshes in and below a node: how many, their triangles, and the box around them in the units of the
/// group above. It is worked out in slices, so that the window never waits for it.
class BelowFacts : public QLabel {
    Q_OBJECT

public:
    BelowFacts();

    /// Works it out again. The last text is shown until the next one is complete.
    void setNode(NxNode& node);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void advance();

    NxRef<NxNode> m_node;
    std::unique_ptr<meridane::NodeFigures> m_figures; // while it works
    QBasicTimer m_timer;
};

} // namespace nodes

#pragma once

#include "meridane/scene/check/NxSceneCheck.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxNode.h"

#include <QBasicTimer>
#include <QLabel>

#include <memory>

namespace nodes {

/// What is wrong with a node, a sentence a line; it is checked in slices. The checks are those of the Problems dock.
class NodeProblems : public QLabel {
    Q_OBJECT

public:
    NodeProblems();

    /// Checks it again. The last text is shown until the check is complete.
    void setNode(NxNode& node);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void advance();

    NxRef<NxNode> m_node;
    std::unique_ptr<NxSceneCheck> m_check; // while it works
    QBasicTimer m_timer;
};

} // namespace nodes

#pragma once

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxNode.h"

#include <QBasicTimer>
#include <QObject>

#include <vector>

/// Deletes the nodes of scenes that were closed, a slice at a time, so that a scene of a million nodes doesn't block
/// the window.
///
/// A node that is referred to from elsewhere loses one reference only. The destructor deletes what is left.
class SceneDisposal : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;
    ~SceneDisposal() override;

    /// Takes over the caller's reference; null is ignored.
    void dispose(NxRef<NxNode> node);
    /// Does all that is left now.
    void finish();
    [[nodiscard]] bool isBusy() const noexcept { return !m_nodes.empty(); }

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void takeOneApart();

    /// A stack: a group stays until it has no children.
    std::vector<NxRef<NxNode>> m_nodes;
    QBasicTimer m_timer;
};

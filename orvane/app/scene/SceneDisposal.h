#pragma once

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxNode.h"

#include <QBasicTimer>
#include <QObject>

#include <vector>

/// Takes apart scenes that nobody needs any more, a slice at a time, so that a scene of a million nodes dies without
/// stopping the window.
///
/// A node that somebody else refers to is only let go. What is left when the disposal dies, dies at once.
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

#pragma once

#include "orvane/app/base/SliceClock.h"

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
    /// `clock` measures the slices.
    explicit SceneDisposal(SliceClock::Clock clock = &std::chrono::steady_clock::now);
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
    SliceClock::Clock m_clock;
    QBasicTimer m_timer;
};

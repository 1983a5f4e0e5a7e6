#pragma once

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxNode.h"

#include <QBasicTimer>
#include <QLabel>

#include <chrono>

namespace nodes {

/// A text about a node that is worked out in slices, so that the window never waits for it.
class SlicedText : public QLabel {
    Q_OBJECT

public:
    /// Works it out again. The last text is shown until the next one is complete.
    void setNode(NxNode& node);

protected:
    /// `waiting` is shown until the first text of a node is complete.
    explicit SlicedText(const QString& waiting);

    /// Begins with a node.
    virtual void begin(NxNode& node) = 0;
    /// Works for about as long as `slice`. Returns whether it is done.
    [[nodiscard]] virtual bool advance(std::chrono::microseconds slice) = 0;
    /// The text, once it is done. Called once, and may drop what was needed.
    [[nodiscard]] virtual QString finish() = 0;

    void timerEvent(QTimerEvent* event) override;

private:
    void work();

    QString m_waiting;
    NxRef<NxNode> m_node;
    QBasicTimer m_timer;
    bool m_isWorking = false;
};

} // namespace nodes

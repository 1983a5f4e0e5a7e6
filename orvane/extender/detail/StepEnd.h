#pragma once

#include "meridane/scene/journal/JournalListener.h"

#include <QObject>

class NxDelayQueue;
class UserActionTracker;

/// Finds the end of a step of the history: when the action of the user has ended, and the observers of what it changed
/// have been called.
///
/// Thread of the user interface only.
class StepEnd : public QObject, public meridane::JournalListener {
    Q_OBJECT

public:
    /// Both live longer.
    StepEnd(const UserActionTracker& tracker, const NxDelayQueue& queue);

    /// Something changes now, or may have come to its end.
    void lookLater();
    /// Looks later after a write.
    void aboutToChange(const meridane::PlaceChange& change) noexcept override;

Q_SIGNALS:
    /// Something has changed.
    void changed();
    /// The step has ended.
    void ended();

protected:
    bool event(QEvent* event) override;

private:
    const UserActionTracker& m_tracker;
    const NxDelayQueue& m_queue;
    bool m_isPosted = false;
};

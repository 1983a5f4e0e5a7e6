#pragma once

#include "orvane/app/base/SliceClock.h"

#include <QBasicTimer>
#include <QObject>

class OrvServices;

/// Goes through the undo history, step by step in slices, so that the window stays lively and the picture follows.
class StepTravel : public QObject {
    Q_OBJECT

public:
    /// The services live longer. `clock` measures the slices.
    explicit StepTravel(
        OrvServices& services, QObject* parent = nullptr, SliceClock::Clock clock = &std::chrono::steady_clock::now);

    /// Goes to the state after that many steps. The first slice runs at once. Another goal takes the place of the one
    /// before. Ends early when someone else changes the history.
    void goTo(int position);
    void stop();
    [[nodiscard]] bool isUnderway() const noexcept { return m_timer.isActive(); }
    [[nodiscard]] int goal() const noexcept { return m_goal; }

Q_SIGNALS:
    /// It has arrived, or was stopped.
    void ended();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void runSlice();
    [[nodiscard]] bool move();

    OrvServices& m_services;
    SliceClock::Clock m_clock;
    QBasicTimer m_timer;
    int m_goal = 0;
    int m_expected = 0; // the position that the last slice has left
    bool m_isMoving = false;
};

#pragma once

#include <QObject>

#include <algorithm>
#include <chrono>

/// A clock for long work that is done in slices. A millisecond passes between two readings, however fast the machine
/// is.
class StepClock {
public:
    static std::chrono::steady_clock::time_point now()
    {
        return std::chrono::steady_clock::time_point(std::chrono::milliseconds(++s_readings));
    }

    [[nodiscard]] static int readings() { return s_readings; }

private:
    static inline int s_readings = 0;
};

/// Counts the turns of the event loop, and the readings of the clock in each.
class TurnCounter : public QObject {
public:
    TurnCounter() { startTimer(0); }

    [[nodiscard]] int turns() const { return m_turns; }
    /// The most readings in one turn.
    [[nodiscard]] int mostReadings() const { return m_mostReadings; }

protected:
    void timerEvent(QTimerEvent* /*event*/) override
    {
        ++m_turns;
        m_mostReadings = std::max(m_mostReadings, StepClock::readings() - m_lastReadings);
        m_lastReadings = StepClock::readings();
    }

private:
    int m_turns = 0;
    int m_mostReadings = 0;
    int m_lastReadings = StepClock::readings();
};

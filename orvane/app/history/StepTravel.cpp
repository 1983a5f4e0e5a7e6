#include "orvane/app/history/StepTravel.h"

#include "orvane/extender/OrvServices.h"
#include "orvane/extender/OrvStepList.h"

#include <QScopedValueRollback>
#include <QTimerEvent>

#include <algorithm>
#include <cstdlib>

StepTravel::StepTravel(OrvServices& services, QObject* parent, SliceClock::Clock clock)
    : QObject(parent)
    , m_services(services)
    , m_clock(clock)
{
    connect(&services.steps(), &OrvStepList::changed, this, &StepTravel::stop);
}

void StepTravel::goTo(int position)
{
    if (m_isMoving)
        return; // asked by a slot of its own moves
    const OrvStepList& steps = m_services.steps();
    m_goal = std::clamp(position, 0, steps.count());
    m_expected = steps.position();
    m_timer.start(0, this);
    runSlice();
}

void StepTravel::stop()
{
    if (!m_timer.isActive())
        return;
    m_timer.stop();
    Q_EMIT ended();
}

void StepTravel::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_timer.timerId())
        runSlice();
}

void StepTravel::runSlice()
{
    const QScopedValueRollback moving(m_isMoving, true);
    const SliceClock slice(m_clock);
    bool goesOn = m_services.steps().position() == m_expected;
    while (goesOn && isUnderway() && m_services.steps().position() != m_goal) {
        goesOn = move();
        if (slice.isSpent())
            break;
    }
    m_expected = m_services.steps().position();
    if (!goesOn || m_expected == m_goal)
        stop();
}

// Returns whether that was one step.
bool StepTravel::move()
{
    const int position = m_services.steps().position();
    if (position > m_goal)
        m_services.undo();
    else
        m_services.redo();
    return std::abs(m_services.steps().position() - position) == 1;
}

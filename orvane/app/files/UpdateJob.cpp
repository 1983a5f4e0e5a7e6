#include "orvane/app/files/UpdateJob.h"

#include <QGuiApplication>

#include <new>

UpdateJob::UpdateJob(const std::shared_ptr<NxSceneUpdate>& update, const QString& fileName, SliceClock::Clock clock)
    : SceneJob(fileName)
    , m_update(update)
    , m_clock(clock)
{
}

void UpdateJob::start()
{
    startSlices();
}

void UpdateJob::readSlice()
{
    // What is dragged now changes the scene all the time.
    if (QGuiApplication::mouseButtons() != Qt::NoButton)
        return;
    try {
        if (m_update->step(SliceClock(m_clock)) == NxSceneUpdate::State::Working) {
            Q_EMIT progressed(m_update->progress());
            return;
        }
    } catch (const std::bad_alloc&) {
        failToRead({{}, 0, 0,
            tr("%1: the comparison with the open scene doesn't fit in memory").arg(fileName()).toStdString()});
        return;
    }
    finish();
}

#include "orvane/app/files/FileJob.h"

#include "orvane/app/base/TextConversion.h"

#include <QTimerEvent>

void FileJob::cancel()
{
    if (m_ended)
        return;
    end();
    QMetaObject::invokeMethod(this, &FileJob::cancelled, Qt::QueuedConnection);
}

void FileJob::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_slices.timerId())
        runSlice();
}

void FileJob::startSlices()
{
    if (!m_ended)
        m_slices.start(0, this);
}

void FileJob::pauseSlices()
{
    m_slices.stop();
}

void FileJob::finish()
{
    end();
    Q_EMIT progressed(1);
    Q_EMIT finished();
}

void FileJob::fail(const QString& message)
{
    if (m_ended)
        return;
    end();
    Q_EMIT failed(message);
}

void FileJob::end()
{
    m_ended = true;
    m_slices.stop();
    release();
}

void SceneJob::failToRead(NxReadFailure failure)
{
    m_failure = std::move(failure);
    fail(orvane::toQString(m_failure.text()));
}

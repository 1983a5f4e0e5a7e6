#include "orvane/app/files/FileJob.h"

#include "orvane/app/base/SliceClock.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/extender/OrvDocument.h"

#include "meridane/scene/journal/Journal.h"

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

SceneJob::SceneJob(const QString& fileName)
    : FileJob(fileName)
{
}

SceneJob::~SceneJob() = default;

QString SceneJob::warningText() const
{
    return QStringLiteral("%1: %2").arg(fileName(), m_warnings.join(QStringLiteral("; ")));
}

void SceneJob::finishAtOnceWith(const NxRef<NxGroup>& scene)
{
    m_read = {scene, OrvDocument::makeJournal(*scene), content(), m_isConverted};
    finish();
}

void SceneJob::finishWith(const NxRef<NxGroup>& scene)
{
    m_numbered = {scene, std::make_shared<meridane::Journal>(*scene), content(), m_isConverted};
    startSlices();
}

void SceneJob::setNote(const orvane::SpaceNote& note)
{
    m_note = orvane::toQString(note.text);
    m_isConverted = note.isConverted;
}

void SceneJob::runSlice()
{
    if (m_numbered.journal == nullptr) {
        readSlice();
    } else if (!m_numbered.journal->run(SliceClock::length)) {
        m_read = std::exchange(m_numbered, {});
        finish();
    }
}

void SceneJob::failToRead(NxReadFailure failure)
{
    m_failure = std::move(failure);
    fail(orvane::toQString(m_failure.text()));
}

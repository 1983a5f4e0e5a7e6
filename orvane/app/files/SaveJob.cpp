#include "orvane/app/files/SaveJob.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/scene/ScenePaths.h"

SaveJob::SaveJob(
    const NxRef<NxGroup>& scene, const QString& fileName, const QString& pathFolder, SliceClock::Clock clock)
    : FileJob(fileName)
    , m_clock(clock)
    , m_scene(scene)
    , m_pathFolder(pathFolder)
{
}

SaveJob::~SaveJob() = default;

void SaveJob::start()
{
    m_writer = std::make_unique<NxSceneWriter>(m_scene.get());
    m_writer->setPathMap(orvane::pathMap(m_pathFolder, orvane::folderOf(fileName())));
    m_timer.start(0, this);
}

void SaveJob::cancel()
{
    if (!m_timer.isActive())
        return; // ended, or cancelled already
    m_timer.stop();
    m_file.reset();
    QMetaObject::invokeMethod(this, &SaveJob::cancelled, Qt::QueuedConnection);
}

void SaveJob::timerEvent(QTimerEvent*)
{
    bool done = false;
    const std::optional<std::string> message = writeSlice(done);
    if (!message && !done) {
        Q_EMIT progressed(m_writer->progress());
        return;
    }
    m_timer.stop();
    m_file.reset();
    if (message)
        Q_EMIT failed(orvane::toQString(*message));
    else
        Q_EMIT finished();
}

std::optional<std::string> SaveJob::writeSlice(bool& done)
{
    if (m_file == nullptr) {
        m_file = std::make_unique<meridane::FileReplacer>();
        if (auto message = m_file->open(orvane::toStdFileName(fileName())))
            return message;
    }
    std::string text;
    const bool more = m_writer->step(text, SliceClock(m_clock));
    // What can't be written whole must not replace the old file.
    if (!m_writer->failure().empty())
        return orvane::toStdFileName(fileName()) + ": " + m_writer->failure();
    if (auto message = m_file->write(text.data(), text.size()))
        return message;
    done = !more;
    return done ? m_file->commit() : std::nullopt;
}

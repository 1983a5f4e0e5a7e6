#include "orvane/app/files/SaveJob.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/scene/ScenePaths.h"

#include <optional>
#include <string>

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
    startSlices();
}

void SaveJob::release()
{
    m_file.reset();
}

void SaveJob::runSlice()
{
    const auto progress = writeSlice();
    if (!progress)
        fail(progress.error());
    else if (progress.value() == Progress::Done)
        finish();
    else
        Q_EMIT progressed(m_writer->progress());
}

orvane::Result<SaveJob::Progress> SaveJob::writeSlice()
{
    const std::string name = orvane::toStdFileName(fileName());
    std::optional<std::string> failure;
    if (m_file == nullptr) {
        m_file = std::make_unique<meridane::FileReplacer>();
        failure = m_file->open(name);
    }
    std::string text;
    const bool more = !failure && m_writer->step(text, SliceClock(m_clock));
    // What can't be written whole must not replace the old file.
    if (!failure && !m_writer->failure().empty())
        failure = name + ": " + m_writer->failure();
    if (!failure)
        failure = m_file->write(text.data(), text.size());
    m_hasher.add(text);
    if (!failure && !more)
        failure = m_file->commit();
    if (failure)
        return orvane::Failure{orvane::toQString(*failure)};
    if (more)
        return Progress::Working;
    setContent(m_hasher.hash());
    return Progress::Done;
}

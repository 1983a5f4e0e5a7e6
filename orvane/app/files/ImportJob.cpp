#include "orvane/app/files/ImportJob.h"

#include "orvane/app/base/SliceClock.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/transfer/WorkTime.h"

#include "meridane/base/NxPreferences.h"

namespace {

QStringList argumentsFor(const QString& fileName)
{
    QStringList arguments{QStringLiteral("--packed"), QStringLiteral("--read"), orvane::absoluteFileName(fileName)};
    if (NxPreferences::getBool("ORVANE_KEEP_GROUPS", 0) != 0)
        arguments += QStringLiteral("--keep-groups");
    const VbString space = NxPreferences::getString("ORVANE_MODEL_SPACE", VbString("convert"));
    if (space == VbString("axes") || space == VbString("keep"))
        arguments << QStringLiteral("--space") << orvane::toQString(space.view());
    return arguments;
}

} // namespace

ImportJob::ImportJob(const QString& fileName, const HelperOptions& options)
    : SceneJob(fileName)
    , m_hasher(orvane::toStdFileName(fileName))
    , m_helper(options, argumentsFor(fileName), orvane::modelSize(orvane::toStdFileName(fileName)))
{
    connect(&m_helper, &HelperProcess::outputGrew, this, &ImportJob::takeOutput);
    connect(&m_helper, &HelperProcess::ended, this, [this] {
        m_helperEnded = true;
        if (m_reader)
            finishWhenAllIsDone();
        else
            startReading();
    });
    connect(&m_helper, &HelperProcess::failed, this, [this](const QString& reason, bool byHelper) {
        failToImport(byHelper ? reason : QStringLiteral("%1: %2").arg(this->fileName(), reason));
    });
}

ImportJob::~ImportJob() = default;

void ImportJob::start()
{
    Q_EMIT progressed(-1);
    startSlices();
}

void ImportJob::hashFile()
{
    const auto state = m_hasher.step(SliceClock());
    if (state == meridane::FileHasher::State::Working)
        return;
    // A file that can't be read is reported by the helper.
    if (state == meridane::FileHasher::State::Done)
        setContent(m_hasher.hash());
    pauseSlices();
    m_helper.start();
}

void ImportJob::takeOutput()
{
    const std::string bytes = m_helper.takeOutput();
    if (m_reader) {
        failForNoScene(tr("there are bytes behind its end"));
        return;
    }
    m_parts.take(bytes);
    // Output that doesn't begin like a packed scene may be followed by the helper's own message.
    if (m_parts.isComplete() || (m_parts.isBroken() && m_parts.hasBegun()))
        startReading();
}

void ImportJob::startReading()
{
    QStringList warnings;
    for (const std::string& warning : m_parts.warnings())
        warnings += orvane::toQString(warning);
    setWarnings(warnings);
    setNote(m_parts.note());
    m_reader = std::make_unique<orvane::PackedSceneReader>(std::move(m_parts));
    startSlices();
}

void ImportJob::readSlice()
{
    if (m_reader == nullptr)
        return hashFile();
    using State = orvane::PackedSceneReader::State;
    switch (m_reader->step(SliceClock::length)) {
    case State::Working:
        Q_EMIT progressed(m_reader->progress());
        break;
    case State::Done:
        pauseSlices();
        finishWhenAllIsDone();
        break;
    case State::Failed:
        failForNoScene(orvane::toQString(m_reader->failure()));
        break;
    }
}

void ImportJob::finishWhenAllIsDone()
{
    // A helper that fails after its last byte may have written anything.
    if (!m_helperEnded || m_reader->state() != orvane::PackedSceneReader::State::Done)
        return;
    finishWith(m_reader->takeScene());
}

void ImportJob::failForNoScene(const QString& reason)
{
    failToImport(tr("%1: the import helper sent something that isn't a scene: %2").arg(fileName(), reason));
}

void ImportJob::failToImport(const QString& message)
{
    failToRead({{}, 0, 0, message.toStdString()});
}

void ImportJob::release()
{
    m_helper.kill();
    m_reader.reset();
}

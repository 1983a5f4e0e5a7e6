#include "orvane/app/files/LoadJob.h"

#include "orvane/app/base/TextConversion.h"

#include "meridane/base/errors/NxReadError.h"
#include "meridane/base/values/MessageText.h"

#include <exception>

using meridane::withoutMarkup;

namespace {

constexpr std::size_t chunk = 1 << 20;
/// The share of the progress that goes to bringing the file into memory.
constexpr double readingShare = 0.1;

} // namespace

LoadJob::LoadJob(const QString& fileName, SliceClock::Clock clock)
    : SceneJob(fileName)
    , m_clock(clock)
{
}

LoadJob::~LoadJob() = default;

void LoadJob::start()
{
    m_timer.start(0, this);
}

void LoadJob::cancel()
{
    if (!m_timer.isActive())
        return; // ended, or cancelled already
    m_timer.stop();
    m_reader.reset();
    QMetaObject::invokeMethod(this, &LoadJob::cancelled, Qt::QueuedConnection);
}

void LoadJob::timerEvent(QTimerEvent*)
{
    if (m_reader == nullptr)
        readBytes();
    else
        readScene();
}

void LoadJob::readBytes()
{
    const SliceClock slice(m_clock);
    if (!m_opened && !open())
        return;
    while (!m_atEnd && !slice.isSpent()) {
        if (const auto message = m_file.read(m_bytes, chunk, m_atEnd))
            return fail(*message);
        if (m_bytes.size() > largestFile)
            return failForSize();
    }
    if (m_atEnd)
        m_reader = std::make_unique<NxSceneReader>(std::move(m_bytes), orvane::toStdFileName(fileName()));
    else if (m_file.size() > 0)
        Q_EMIT progressed(readingShare * static_cast<double>(m_bytes.size()) / static_cast<double>(m_file.size()));
}

bool LoadJob::open()
{
    constexpr std::size_t beginning = 4096;
    const std::string name = orvane::toStdFileName(fileName());
    m_opened = true;
    auto message = m_file.open(name);
    if (!message)
        message = m_file.read(m_bytes, chunk, m_atEnd);
    if (message) {
        fail(*message);
        return false;
    }
    if (const auto failure = NxSceneReader::checkBeginning(m_bytes.substr(0, beginning), name)) {
        fail(*failure);
        return false;
    }
    if (m_file.size() > largestFile) {
        failForSize();
        return false;
    }
    try {
        // One block for all, which isn't moved as it grows.
        m_bytes.reserve(m_file.size() + chunk);
    } catch (const std::exception&) {
        fail(name + ": the file doesn't fit in memory");
        return false;
    }
    return true;
}

void LoadJob::failForSize()
{
    fail(orvane::toStdFileName(fileName()) + ": the file has more than 4 GiB, which is the most that is read");
}

void LoadJob::readScene()
{
    switch (m_reader->step(SliceClock(m_clock))) {
    case NxSceneReader::State::Working:
        Q_EMIT progressed(readingShare + (1 - readingShare) * m_reader->progress());
        break;
    case NxSceneReader::State::Failed:
        fail(NxReadFailure(m_reader->failure()));
        break;
    case NxSceneReader::State::Done:
        m_timer.stop();
        setScene(m_reader->takeScene());
        Q_EMIT finished();
        break;
    }
}

void LoadJob::fail(const std::string& message)
{
    m_timer.stop();
    NxReadError::post(VbString(), 0, 0, VbString(withoutMarkup(message)));
    Q_EMIT failed(orvane::toQString(message));
}

void LoadJob::fail(const NxReadFailure& failure)
{
    m_timer.stop();
    NxReadError::post(
        VbString(withoutMarkup(failure.file)), failure.line, failure.column, VbString(withoutMarkup(failure.message)));
    Q_EMIT failed(orvane::toQString(failure.text()));
}

#include "orvane/app/LoadJob.h"

#include "orvane/app/TextConversion.h"

#include "meridane/base/MessageText.h"
#include "meridane/base/NxReadError.h"

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
    if (!m_opened) {
        if (const auto message = m_file.open(orvane::toStdFileName(fileName()))) {
            fail(*message);
            return;
        }
        m_opened = true;
    }
    const SliceClock slice(m_clock);
    bool atEnd = false;
    while (!atEnd && !slice.isSpent()) {
        if (const auto message = m_file.read(m_bytes, chunk, atEnd)) {
            fail(*message);
            return;
        }
    }
    if (atEnd)
        m_reader = std::make_unique<NxSceneReader>(std::move(m_bytes), orvane::toStdFileName(fileName()));
    else if (m_file.size() > 0)
        Q_EMIT progressed(readingShare * static_cast<double>(m_bytes.size()) / static_cast<double>(m_file.size()));
}

void LoadJob::readScene()
{
    switch (m_reader->step(SliceClock(m_clock))) {
    case NxSceneReader::State::Working:
        Q_EMIT progressed(readingShare + (1 - readingShare) * m_reader->progress());
        break;
    case NxSceneReader::State::Failed: {
        const NxReadFailure failure = m_reader->failure();
        NxReadError::post(VbString(withoutMarkup(failure.file)), failure.line, failure.column,
            VbString(withoutMarkup(failure.message)));
        m_timer.stop();
        Q_EMIT failed(orvane::toQString(failure.text()));
        break;
    }
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

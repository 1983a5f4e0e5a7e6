#include "orvane/app/recovery/RecoverJob.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/files/LoadJob.h"

#include <utility>

namespace {

constexpr std::size_t chunk = std::size_t{1} << 20;

} // namespace

RecoverJob::RecoverJob(const QString& recoveryFileName, const QString& displayName)
    : SceneJob(displayName)
    , m_recoveryFileName(recoveryFileName)
{
}

RecoverJob::~RecoverJob() = default;

void RecoverJob::start()
{
    Q_EMIT progressed(-1);
    startSlices();
}

void RecoverJob::release()
{
    if (m_base != nullptr)
        m_base.release()->deleteLater(); // it may be inside one of its signals
    m_replay.reset();
}

void RecoverJob::readSlice()
{
    if (m_reader == nullptr)
        readBytes();
    else if (m_replay == nullptr)
        readEntries();
    else
        replay();
}

void RecoverJob::readBytes()
{
    const SliceClock slice;
    std::optional<std::string> failure;
    if (!std::exchange(m_opened, true))
        failure = m_file.open(orvane::toStdFileName(m_recoveryFileName));
    bool atEnd = false;
    while (!failure && !atEnd && !slice.isSpent())
        failure = m_file.read(m_bytes, chunk, atEnd);
    if (failure)
        failToRecover(orvane::toQString(*failure));
    else if (atEnd)
        m_reader = std::make_unique<meridane::RecoveryFileReader>(std::move(m_bytes));
}

void RecoverJob::readEntries()
{
    using State = meridane::RecoveryFileReader::State;
    const State state = m_reader->step(SliceClock());
    if (state == State::Failed)
        return failToRecover(orvane::toQString(m_reader->failure()));
    if (state != State::Done)
        return;
    if (description().base == meridane::RecoveryDescription::Base::File)
        readBase();
    else
        m_replay = std::make_unique<meridane::RecoveryReplay>(*m_reader, NxRef<NxGroup>());
}

void RecoverJob::readBase()
{
    pauseSlices();
    m_base = std::make_unique<LoadJob>(orvane::fromStdFileName(description().fileName));
    connect(m_base.get(), &FileJob::finished, this, &RecoverJob::takeBase);
    connect(m_base.get(), &FileJob::failed, this, &RecoverJob::failToRecover);
    m_base->start();
}

void RecoverJob::takeBase()
{
    const ReadScene base = m_base->take();
    m_base.release()->deleteLater();
    if (base.content != description().fileHash)
        return failToRecover(tr("its file has changed since then"));
    m_replay = std::make_unique<meridane::RecoveryReplay>(*m_reader, base.scene);
    startSlices();
}

void RecoverJob::replay()
{
    using State = meridane::RecoveryReplay::State;
    switch (m_replay->step(SliceClock())) {
    case State::Working:
        Q_EMIT progressed(m_replay->progress());
        break;
    case State::Failed:
        failToRecover(orvane::toQString(m_replay->failure()));
        break;
    case State::Done:
        if (!description().fileName.empty())
            setContent(description().fileHash);
        finishWith(m_replay->takeScene());
        break;
    }
}

void RecoverJob::failToRecover(const QString& reason)
{
    failToRead({{}, 0, 0, tr("%1 can't be recovered: %2").arg(fileName(), reason).toStdString()});
}

#include "orvane/app/recovery/RecoveryScan.h"

#include "orvane/app/base/SliceClock.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/recovery/RecoveryFolder.h"

#include <QTimerEvent>

#include <algorithm>
#include <utility>

namespace {

constexpr std::size_t scannedAtOnce = std::size_t{1} << 20;

} // namespace

struct RecoveryScan::Work {
    std::unique_ptr<LockedFile> file;
    meridane::FileReader bytesReader;
    std::string bytes;
    std::unique_ptr<meridane::RecoveryFileReader> reader; // once the bytes are there
    std::unique_ptr<meridane::FileHasher> base; // once the entries are read, if they begin from a file
    bool isOpen = false;
};

RecoveryScan::RecoveryScan(QObject* parent)
    : QObject(parent)
{
}

RecoveryScan::~RecoveryScan() = default;

void RecoveryScan::start(const RecoveryFolder& folder)
{
    m_waiting = folder.lockAbandoned();
    std::ranges::reverse(m_waiting);
    startNext();
    m_slices.start(0, this);
}

void RecoveryScan::startNext()
{
    m_work.reset();
    if (m_waiting.empty())
        return;
    m_work = std::make_unique<Work>();
    m_work->file = std::move(m_waiting.back());
    m_waiting.pop_back();
}

void RecoveryScan::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_slices.timerId())
        return;
    if (m_work == nullptr) {
        m_slices.stop();
        Q_EMIT finished();
    } else if (m_work->reader == nullptr) {
        readBytes();
    } else if (m_work->base == nullptr) {
        readEntries();
    } else {
        hashBase();
    }
}

void RecoveryScan::readBytes()
{
    const SliceClock slice;
    std::optional<std::string> failure;
    if (!std::exchange(m_work->isOpen, true))
        failure = m_work->bytesReader.open(orvane::toStdFileName(m_work->file->fileName()));
    bool atEnd = false;
    while (!failure && !atEnd && !slice.isSpent())
        failure = m_work->bytesReader.read(m_work->bytes, scannedAtOnce, atEnd);
    if (failure)
        end(orvane::toQString(*failure));
    else if (atEnd)
        m_work->reader = std::make_unique<meridane::RecoveryFileReader>(std::move(m_work->bytes));
}

void RecoveryScan::readEntries()
{
    using State = meridane::RecoveryFileReader::State;
    const State state = m_work->reader->step(SliceClock());
    if (state == State::Working)
        return;
    if (state == State::Failed)
        return end(orvane::toQString(m_work->reader->failure()));
    const meridane::RecoveryDescription& description = m_work->reader->description();
    if (m_work->reader->commit().steps == 0) {
        m_work->file->remove();
        startNext();
    } else if (description.base == meridane::RecoveryDescription::Base::File) {
        m_work->base = std::make_unique<meridane::FileHasher>(description.fileName);
    } else {
        end({});
    }
}

void RecoveryScan::hashBase()
{
    using State = meridane::FileHasher::State;
    const State state = m_work->base->step(SliceClock());
    if (state == State::Failed)
        end(orvane::toQString(m_work->base->failure()));
    else if (state == State::Done)
        end(m_work->base->hash() == m_work->reader->description().fileHash ? QString()
                                                                           : tr("its file has changed since then"));
}

void RecoveryScan::end(const QString& problem)
{
    auto scene = std::make_shared<AbandonedScene>();
    if (m_work->reader != nullptr && m_work->reader->hasDescription()) {
        scene->displayName = orvane::toQString(m_work->reader->description().displayName);
        scene->fileName = orvane::fromStdFileName(m_work->reader->description().fileName);
    }
    if (m_work->reader != nullptr && m_work->reader->state() == meridane::RecoveryFileReader::State::Done)
        scene->commit = m_work->reader->commit();
    scene->file = std::move(m_work->file);
    scene->problem = problem;
    startNext();
    Q_EMIT found(scene);
}

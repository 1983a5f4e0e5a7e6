#include "orvane/app/files/disk/FileCheck.h"

#include "orvane/app/base/TextConversion.h"

#include <QTimerEvent>

#include <sys/stat.h>

namespace {

// A file that is written all the time isn't waited for.
constexpr int mostRestarts = 3;

} // namespace

FileCheck::FileCheck(const QString& fileName, QObject* parent, SliceClock::Clock clock)
    : QObject(parent)
    , m_path(orvane::toStdFileName(fileName))
    , m_clock(clock)
{
}

FileCheck::~FileCheck() = default;

void FileCheck::start()
{
    m_timer.start(0, this);
}

void FileCheck::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_timer.timerId())
        return;
    using State = meridane::FileHasher::State;
    if (m_hasher == nullptr) {
        m_stamp = FileStamp::of(m_path);
        m_hasher = std::make_unique<meridane::FileHasher>(m_path);
    }
    const State state = m_hasher->step(SliceClock(m_clock));
    if (state == State::Working)
        return;
    const FileStamp stamp = FileStamp::of(m_path);
    if (stamp != m_stamp && m_restarts++ < mostRestarts) {
        m_hasher.reset(); // the hash may be that of one half of each content
        return;
    }
    m_timer.stop();
    Q_EMIT finished(state == State::Done ? DiskContent{DiskContent::Kind::File, m_hasher->hash(), {}} : failure());
}

DiskContent FileCheck::failure() const
{
    const QString reason = orvane::toQString(m_hasher->failure());
    if (!m_stamp.exists)
        return {DiskContent::Kind::Missing, {}, reason};
    return {S_ISREG(m_stamp.mode) ? DiskContent::Kind::Unreadable : DiskContent::Kind::NoFile, {}, reason};
}

#include "orvane/app/recovery/RecoveryWriterWork.h"

#include <QTimerEvent>

#include <utility>

RecoveryWriterWork::RecoveryWriterWork(std::unique_ptr<LockedFile> file)
    : m_file(std::move(file))
{
}

RecoveryWriterWork::~RecoveryWriterWork()
{
    if (m_syncTimer.isActive())
        sync();
}

void RecoveryWriterWork::append(const std::string& bytes)
{
    if (!m_hasFailed) {
        check(m_file->append(bytes));
        if (!m_hasFailed && !m_syncTimer.isActive())
            m_syncTimer.start(static_cast<int>(std::chrono::milliseconds(syncInterval).count()), this);
    }
    Q_EMIT written(bytes.size());
}

void RecoveryWriterWork::rename(const QString& fileName)
{
    sync();
    if (!m_hasFailed)
        check(m_file->rename(fileName));
    Q_EMIT written(0);
}

void RecoveryWriterWork::discard()
{
    m_syncTimer.stop();
    m_file->remove();
}

void RecoveryWriterWork::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_syncTimer.timerId())
        sync();
}

void RecoveryWriterWork::sync()
{
    m_syncTimer.stop();
    if (!m_hasFailed)
        check(m_file->sync());
}

void RecoveryWriterWork::check(const orvane::Result<>& result)
{
    if (result || std::exchange(m_hasFailed, true))
        return;
    m_syncTimer.stop();
    Q_EMIT failed(result.error());
}

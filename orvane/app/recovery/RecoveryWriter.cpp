#include "orvane/app/recovery/RecoveryWriter.h"

#include "orvane/app/recovery/RecoveryWriterWork.h"

#include <utility>

RecoveryWriter::RecoveryWriter(std::unique_ptr<LockedFile> file, QThread& thread)
    : m_fileName(file->fileName())
{
    m_work = new RecoveryWriterWork(std::move(file));
    m_work->moveToThread(&thread);
    connect(m_work, &RecoveryWriterWork::failed, this, &RecoveryWriter::failed);
    connect(m_work, &RecoveryWriterWork::written, this, [this](qulonglong bytes) {
        m_waitingBytes -= bytes;
        --m_waitingTasks;
        Q_EMIT written();
    });
}

RecoveryWriter::~RecoveryWriter()
{
    m_work->deleteLater();
}

void RecoveryWriter::append(std::string bytes)
{
    ++m_waitingTasks;
    m_waitingBytes += bytes.size();
    m_bytes += bytes.size();
    QMetaObject::invokeMethod(
        m_work, [work = m_work, bytes = std::move(bytes)] { work->append(bytes); }, Qt::QueuedConnection);
}

void RecoveryWriter::rename(const QString& fileName)
{
    m_fileName = fileName;
    ++m_waitingTasks;
    QMetaObject::invokeMethod(
        m_work, [work = m_work, fileName] { work->rename(fileName); }, Qt::QueuedConnection);
}

void RecoveryWriter::discard()
{
    QMetaObject::invokeMethod(m_work, &RecoveryWriterWork::discard, Qt::QueuedConnection);
}

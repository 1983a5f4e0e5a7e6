#include "orvane/app/recovery/RecoveryThread.h"

RecoveryThread::RecoveryThread()
    : m_end(new QObject)
{
    setObjectName(QStringLiteral("recovery"));
    m_end->moveToThread(this);
    connect(m_end, &QObject::destroyed, this, &QThread::quit, Qt::DirectConnection);
    start(QThread::LowPriority);
}

RecoveryThread::~RecoveryThread()
{
    // Behind all that waits, which `quit` alone would leave undone.
    m_end->deleteLater();
    wait();
}

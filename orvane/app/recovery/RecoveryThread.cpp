#include "orvane/app/recovery/RecoveryThread.h"

RecoveryThread::RecoveryThread()
{
    setObjectName(QStringLiteral("recovery"));
    start(QThread::LowPriority);
}

RecoveryThread::~RecoveryThread()
{
    // Behind all that waits, which `quit` alone would leave undone.
    auto* const last = new QObject;
    last->moveToThread(this);
    connect(last, &QObject::destroyed, this, &QThread::quit, Qt::DirectConnection);
    last->deleteLater();
    wait();
}

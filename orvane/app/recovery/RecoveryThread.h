#pragma once

#include <QThread>

/// The thread that writes to the disk. Its destructor waits until everything is written that was asked for.
class RecoveryThread : public QThread {
    Q_OBJECT

public:
    RecoveryThread();
    ~RecoveryThread() override;

private:
    QObject* m_end; // lives in the thread, which quits when it is deleted
};

#pragma once

#include <QFile>

#include <vector>

#include <sys/types.h>

/// The processes that this thread has started and that haven't ended.
inline std::vector<pid_t> childProcesses()
{
    std::vector<pid_t> pids;
    QFile file(QStringLiteral("/proc/thread-self/children"));
    if (file.open(QIODevice::ReadOnly)) {
        for (const QByteArray& pid : file.readAll().simplified().split(' ')) {
            if (pid.toInt() > 0)
                pids.push_back(pid.toInt());
        }
    }
    return pids;
}

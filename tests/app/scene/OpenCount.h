#pragma once

#include <QFile>
#include <QString>

#include <sys/inotify.h>
#include <unistd.h>

/// Counts how often a file is opened, by whomever, from its construction on.
class OpenCount {
public:
    explicit OpenCount(const QString& fileName)
        : m_descriptor(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    {
        m_watching = ::inotify_add_watch(m_descriptor, QFile::encodeName(fileName).constData(), IN_OPEN) >= 0;
    }
    ~OpenCount() { ::close(m_descriptor); }
    OpenCount(const OpenCount&) = delete;
    OpenCount& operator=(const OpenCount&) = delete;

    [[nodiscard]] bool isWatching() const { return m_watching; }
    /// The number since the last call.
    [[nodiscard]] int take() const
    {
        int count = 0;
        inotify_event event;
        while (::read(m_descriptor, &event, sizeof event) > 0)
            ++count;
        return count;
    }

private:
    int m_descriptor;
    bool m_watching;
};

#pragma once

#include "orvane/app/base/Result.h"

#include <QString>
#include <QStringList>

/// The folder with the local sockets of the running windows, one for each process: `orvane` in `XDG_RUNTIME_DIR`, or
/// `orvane-<user number>` in the folder for temporary files where the session has no such folder. Nobody but the user
/// can open it. Names begin with a mark of the display, so that a window on another screen is never asked.
class SocketFolder {
public:
    /// The folder of this session; made if there is none. Fails if it can't be kept private: it belongs to somebody
    /// else, others may open it, or it is no folder.
    [[nodiscard]] static orvane::Result<SocketFolder> open();
    /// The same with a given folder, for sockets of that display.
    [[nodiscard]] static orvane::Result<SocketFolder> open(const QString& path, const QString& display);

    [[nodiscard]] const QString& path() const noexcept { return m_path; }
    /// Where a process listens.
    [[nodiscard]] QString nameFor(qint64 process) const;
    /// The sockets on this display, the window that was used last first. Some may be left by processes that crashed.
    [[nodiscard]] QStringList sockets() const;
    /// Notes that the window that listens there is the one that was used last.
    static void touch(const QString& socket);

private:
    SocketFolder(QString path, QString mark);

    QString m_path;
    QString m_mark;
};

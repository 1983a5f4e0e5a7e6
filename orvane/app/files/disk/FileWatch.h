#pragma once

#include "orvane/app/files/disk/FileStamp.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>

/// Watches one file, also while it doesn't exist, is replaced by renaming, or is a link.
///
/// The system reports changes of the file and of its folder. Where it doesn't, as on network drives, the file's state
/// is asked for every two seconds. Thread of the user interface only.
class FileWatch : public QObject {
    Q_OBJECT

public:
    /// How long nothing must have happened to the file: it may still be written.
    static constexpr std::chrono::milliseconds quiet{200};
    static constexpr std::chrono::seconds pollInterval{2};

    explicit FileWatch(QObject* parent = nullptr);

    /// Watches that file, and no other any more; empty for none. `settled` follows even if nothing happens to it.
    void watch(const QString& fileName);

Q_SIGNALS:
    /// Something has happened to the file, and nothing more for a moment. The content may still be the same.
    void settled();

private:
    void notice();
    void watchPaths();
    void settle();

    QString m_fileName;
    FileStamp m_stamp;
    QFileSystemWatcher m_watcher;
    QTimer m_quiet;
    QTimer m_poll;
};

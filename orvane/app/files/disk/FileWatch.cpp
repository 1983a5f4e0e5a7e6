#include "orvane/app/files/disk/FileWatch.h"

#include "orvane/app/base/TextConversion.h"

#include <QFileInfo>
#include <QStorageInfo>

#include <algorithm>
#include <array>

namespace {

/// Whether other machines may change the file, which the system doesn't report.
bool isRemote(const QString& folder)
{
    static constexpr std::array names{"nfs", "cifs", "smb", "fuse", "9p", "afs", "ceph", "vboxsf"};
    const QByteArray type = QStorageInfo(folder).fileSystemType();
    return std::ranges::any_of(names, [&type](const char* name) { return type.startsWith(name); });
}

} // namespace

FileWatch::FileWatch(QObject* parent)
    : QObject(parent)
{
    m_quiet.setSingleShot(true);
    m_quiet.setInterval(quiet);
    m_poll.setInterval(pollInterval);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &FileWatch::notice);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &FileWatch::notice);
    connect(&m_poll, &QTimer::timeout, this, &FileWatch::notice);
    connect(&m_quiet, &QTimer::timeout, this, &FileWatch::settle);
}

void FileWatch::watch(const QString& fileName)
{
    m_fileName = fileName;
    m_quiet.stop();
    m_poll.stop();
    if (const QStringList paths = m_watcher.files() + m_watcher.directories(); !paths.isEmpty())
        m_watcher.removePaths(paths);
    if (m_fileName.isEmpty())
        return;
    m_stamp = FileStamp::of(orvane::toStdFileName(m_fileName));
    watchPaths();
    m_quiet.start();
}

void FileWatch::notice()
{
    watchPaths();
    // Other files of the folder don't matter.
    const FileStamp stamp = FileStamp::of(orvane::toStdFileName(m_fileName));
    if (stamp == m_stamp)
        return;
    m_stamp = stamp;
    m_quiet.start();
}

// A file that was renamed or deleted isn't watched any more, but another one of its name may be there.
void FileWatch::watchPaths()
{
    const QFileInfo file(m_fileName);
    const QString folder = file.absolutePath();
    QStringList paths{folder};
    if (file.exists())
        paths += {m_fileName, QFileInfo(file.canonicalFilePath()).absolutePath()};
    paths.removeDuplicates();
    bool areWatched = true;
    for (const QString& path : std::as_const(paths)) {
        const bool isWatched = m_watcher.files().contains(path) || m_watcher.directories().contains(path);
        areWatched = (isWatched || m_watcher.addPath(path)) && areWatched;
    }
    const bool polls = !areWatched || isRemote(folder);
    if (polls != m_poll.isActive())
        polls ? m_poll.start() : m_poll.stop();
}

void FileWatch::settle()
{
    // Not every write is reported.
    const FileStamp stamp = FileStamp::of(orvane::toStdFileName(m_fileName));
    if (stamp == m_stamp) {
        Q_EMIT settled();
        return;
    }
    m_stamp = stamp;
    m_quiet.start();
}

#include "orvane/app/instance/SocketFolder.h"

#include "orvane/app/base/TextConversion.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <cstring>
#include <string>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr mode_t socketFolderMode = 0700;
constexpr mode_t forOthers = 0077;

orvane::Failure folderFailure(const QString& path, const QString& reason)
{
    return orvane::Failure{QStringLiteral("%1: %2").arg(path, reason)};
}

bool isPrivate(const struct stat& status)
{
    return S_ISDIR(status.st_mode) && status.st_uid == ::geteuid() && (status.st_mode & forOthers) == 0;
}

/// The session's own folder, if it is one that nobody else can use.
QString runtimeFolder()
{
    QString path = qEnvironmentVariable("XDG_RUNTIME_DIR");
    struct stat status { };
    if (!QDir::isAbsolutePath(path) || ::stat(orvane::toStdFileName(path).c_str(), &status) != 0 || !isPrivate(status))
        return {};
    return path;
}

/// The screen of this process, whatever window system it uses.
QString displayName()
{
    QString wayland = qEnvironmentVariable("WAYLAND_DISPLAY");
    if (!wayland.isEmpty())
        return wayland;
    // Without the number of the screen: `:0` and `:0.0` are one display.
    const QString x = qEnvironmentVariable("DISPLAY");
    const qsizetype colon = x.lastIndexOf(u':');
    const qsizetype dot = x.indexOf(u'.', colon < 0 ? 0 : colon);
    return dot < 0 ? x : x.left(dot);
}

} // namespace

SocketFolder::SocketFolder(QString path, QString mark)
    : m_path(std::move(path))
    , m_mark(std::move(mark))
{
}

orvane::Result<SocketFolder> SocketFolder::open()
{
    const QString runtime = runtimeFolder();
    return open(runtime.isEmpty() ? QDir::tempPath() + QStringLiteral("/orvane-%1").arg(::geteuid())
                                  : runtime + QStringLiteral("/orvane"),
        displayName());
}

orvane::Result<SocketFolder> SocketFolder::open(const QString& path, const QString& display)
{
    const std::string name = orvane::toStdFileName(path);
    if (::mkdir(name.c_str(), socketFolderMode) != 0 && errno != EEXIST)
        return folderFailure(path, QString::fromLocal8Bit(std::strerror(errno)));
    // Not what a link leads to: in a folder that all share, anyone could have made it.
    struct stat status { };
    if (::lstat(name.c_str(), &status) != 0)
        return folderFailure(path, QString::fromLocal8Bit(std::strerror(errno)));
    if (!isPrivate(status))
        return folderFailure(path, QStringLiteral("this isn't a folder that only you can open"));
    constexpr qsizetype markLength = 8;
    const QByteArray hash = QCryptographicHash::hash(display.toUtf8(), QCryptographicHash::Sha1).toHex();
    return SocketFolder(path, QString::fromLatin1(hash.left(markLength)) + u'-');
}

QString SocketFolder::nameFor(qint64 process) const
{
    return m_path + u'/' + m_mark + QString::number(process);
}

QStringList SocketFolder::sockets() const
{
    QStringList result;
    // Sockets are "system" files; what isn't one is none of ours.
    for (const QFileInfo& file : QDir(m_path).entryInfoList({m_mark + u'*'}, QDir::System, QDir::Time)) {
        if (!file.isFile() && !file.isDir() && !file.isSymLink())
            result.append(file.filePath());
    }
    return result;
}

void SocketFolder::touch(const QString& socket)
{
    // It is only about the order of several windows, so a failure doesn't matter.
    static_cast<void>(::utimensat(AT_FDCWD, orvane::toStdFileName(socket).c_str(), nullptr, AT_SYMLINK_NOFOLLOW));
}

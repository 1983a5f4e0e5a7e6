#include "orvane/app/base/LockedFile.h"

#include "orvane/app/base/TextConversion.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int onlyForTheUser = 0600;

orvane::Failure failureOf(const QString& fileName, int error)
{
    return {QStringLiteral("%1: %2").arg(fileName, QString::fromLocal8Bit(std::strerror(error)))};
}

// Whether the descriptor is still that of the file of this name, which another process may have deleted.
bool isAt(int descriptor, const QString& fileName)
{
    struct stat here = {};
    struct stat there = {};
    return ::fstat(descriptor, &here) == 0 && ::stat(orvane::toStdFileName(fileName).c_str(), &there) == 0
        && here.st_dev == there.st_dev && here.st_ino == there.st_ino;
}

bool belongsToTheUser(int descriptor)
{
    struct stat status = {};
    return ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) && status.st_uid == ::geteuid();
}

} // namespace

LockedFile::LockedFile(QString fileName, int descriptor)
    : m_fileName(std::move(fileName))
    , m_descriptor(descriptor)
{
}

LockedFile::~LockedFile()
{
    ::close(m_descriptor);
}

orvane::Result<std::unique_ptr<LockedFile>> LockedFile::create(const QString& fileName)
{
    const std::string name = orvane::toStdFileName(fileName);
    const int descriptor = ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_APPEND, onlyForTheUser);
    if (descriptor < 0)
        return failureOf(fileName, errno);
    std::unique_ptr<LockedFile> file(new LockedFile(fileName, descriptor));
    if (::flock(descriptor, LOCK_EX | LOCK_NB) != 0)
        return file->failure();
    // Before the lock another process may have taken it for an abandoned file, and deleted it.
    if (!isAt(descriptor, fileName))
        return failureOf(fileName, ENOENT);
    return file;
}

std::unique_ptr<LockedFile> LockedFile::lock(const QString& fileName)
{
    // No waiting for a pipe, and no file of somebody else through a link.
    const int descriptor
        = ::open(orvane::toStdFileName(fileName).c_str(), O_RDWR | O_CLOEXEC | O_APPEND | O_NONBLOCK | O_NOFOLLOW);
    if (descriptor < 0)
        return nullptr;
    std::unique_ptr<LockedFile> file(new LockedFile(fileName, descriptor));
    const bool isMine
        = belongsToTheUser(descriptor) && ::flock(descriptor, LOCK_EX | LOCK_NB) == 0 && isAt(descriptor, fileName);
    return isMine ? std::move(file) : nullptr;
}

orvane::Result<> LockedFile::append(std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(m_descriptor, bytes.data(), bytes.size());
        if (written >= 0)
            bytes.remove_prefix(static_cast<std::size_t>(written));
        else if (errno != EINTR)
            return failure();
    }
    return {};
}

orvane::Result<> LockedFile::sync()
{
    if (::fdatasync(m_descriptor) == 0)
        return {};
    return failure();
}

orvane::Result<> LockedFile::rename(const QString& fileName)
{
    if (std::rename(orvane::toStdFileName(m_fileName).c_str(), orvane::toStdFileName(fileName).c_str()) != 0)
        return failure();
    m_fileName = fileName;
    return {};
}

void LockedFile::remove()
{
    if (isAt(m_descriptor, m_fileName))
        ::unlink(orvane::toStdFileName(m_fileName).c_str());
}

orvane::Failure LockedFile::failure() const
{
    return failureOf(m_fileName, errno);
}

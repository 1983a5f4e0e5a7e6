#include "meridane/base/Files.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <exception>
#include <functional>
#include <string_view>
#include <system_error>

#include <fcntl.h>
#include <linux/limits.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace meridane {

namespace {

std::string failure(const std::string& path, const std::string& reason)
{
    return (path.empty() ? std::string("no file name") : path) + ": " + reason;
}

std::string systemFailure(const std::string& path)
{
    return failure(path, std::generic_category().message(errno));
}

std::string folderOf(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? "." : path.substr(0, std::max<std::size_t>(slash, 1));
}

/// Follows symbolic links, even to a file that doesn't exist yet.
bool followLinks(std::string& path)
{
    constexpr int maxLinks = 40;
    for (int links = 0; links < maxLinks; ++links) {
        std::array<char, PATH_MAX> link;
        const ssize_t length = ::readlink(path.c_str(), link.data(), link.size());
        if (length < 0)
            return true; // no link, or no file
        const std::string target(link.data(), static_cast<std::size_t>(length));
        path = target.starts_with('/') ? target : folderOf(path).append(1, '/').append(target);
    }
    errno = ELOOP;
    return false;
}

/// A file has the same hidden name in each run, so that one left by a killed process is found again. It is short,
/// because the name of the file itself may have the maximum length.
std::string hiddenName(const std::string& target, int attempt)
{
    const std::string_view name = std::string_view(target).substr(target.rfind('/') + 1);
    return folderOf(target) + "/.mrd-" + std::to_string(std::hash<std::string_view>()(name)) + '-'
        + std::to_string(attempt) + ".tmp";
}

/// Removes a file of that name that isn't locked, because the process that made it was killed. Returns true if the name
/// is free.
bool removeAbandoned(const std::string& name)
{
    const int descriptor = ::open(name.c_str(), O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        return errno == ENOENT;
    struct stat locked { };
    struct stat named { };
    // With the lock held, the name can't be one that another process is about to give to a finished file.
    const bool abandoned = ::flock(descriptor, LOCK_EX | LOCK_NB) == 0 && ::fstat(descriptor, &locked) == 0
        && ::lstat(name.c_str(), &named) == 0 && locked.st_ino == named.st_ino && locked.st_dev == named.st_dev
        && S_ISREG(locked.st_mode) && locked.st_uid == ::geteuid();
    const bool removed = abandoned && ::unlink(name.c_str()) == 0;
    ::close(descriptor);
    return removed;
}

/// Locks a file that was just made. Returns false if another process has removed it as abandoned. On a file system
/// without locks that doesn't happen.
bool lockNew(int descriptor)
{
    struct stat status { };
    if (::flock(descriptor, LOCK_EX | LOCK_NB) != 0)
        return errno != EWOULDBLOCK;
    return ::fstat(descriptor, &status) == 0 && status.st_nlink > 0;
}

/// Makes a new file beside the target, open for writing, with these permissions reduced by the user's mask, and locks
/// it.
int createBeside(const std::string& target, std::string& name, mode_t mode)
{
    constexpr int maxAttempts = 1000;
    for (int attempt = 0; attempt < maxAttempts; ++attempt) {
        name = hiddenName(target, attempt);
        int descriptor = -1;
        do {
            descriptor = ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
            if (descriptor < 0 && errno != EEXIST)
                return -1;
        } while (descriptor < 0 && removeAbandoned(name));
        if (descriptor >= 0 && lockNew(descriptor))
            return descriptor;
        if (descriptor >= 0)
            ::close(descriptor);
    }
    errno = EEXIST;
    return -1;
}

constexpr const char* accessList = "system.posix_acl_access";

/// The access control list of a file; empty if it has none, or the file system doesn't support them.
std::string accessListOf(const std::string& path)
{
    std::string list(XATTR_SIZE_MAX, '\0');
    const ssize_t size = ::getxattr(path.c_str(), accessList, list.data(), list.size());
    list.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
    return list;
}

/// The permissions for a file whose group couldn't be set. The members of its present group had the rights of others,
/// and the members of the old group have them now.
mode_t withoutGroup(mode_t mode)
{
    const mode_t common = (mode >> 3U) & mode & S_IRWXO;
    return (mode & S_IRWXU) | (common << 3U) | common;
}

/// Syncs the folder, so that the new name of a file survives a power failure.
bool syncFolder(const std::string& folder)
{
    const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    // A folder that may be written but not read can't be synced, and some file systems don't sync folders.
    if (descriptor < 0)
        return errno == EACCES;
    const bool synced = ::fsync(descriptor) == 0 || errno == EINVAL;
    const int error = errno;
    ::close(descriptor);
    errno = error;
    return synced;
}

} // namespace

FileReader::~FileReader()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

std::optional<std::string> FileReader::open(const std::string& path)
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
    m_path = path;
    // Without waiting for the other end of a pipe, which is refused below.
    m_descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    struct stat status { };
    if (m_descriptor < 0 || ::fstat(m_descriptor, &status) != 0)
        return systemFailure(path);
    if (S_ISDIR(status.st_mode))
        return failure(path, "is a directory");
    if (!S_ISREG(status.st_mode))
        return failure(path, "isn't a regular file");
    m_size = static_cast<std::size_t>(status.st_size);
    return std::nullopt;
}

std::optional<std::string> FileReader::read(std::string& bytes, std::size_t count, bool& atEnd)
{
    atEnd = false;
    const std::size_t start = bytes.size();
    std::size_t filled = start;
    try {
        bytes.resize(start + count);
    } catch (const std::exception&) {
        return failure(m_path, "the file doesn't fit in memory");
    }
    while (filled < bytes.size()) {
        const ssize_t got = ::read(m_descriptor, bytes.data() + filled, bytes.size() - filled);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0) {
            const std::string message = systemFailure(m_path);
            bytes.resize(start);
            return message;
        }
        if (got == 0) {
            atEnd = true;
            break;
        }
        filled += static_cast<std::size_t>(got);
    }
    bytes.resize(filled);
    return std::nullopt;
}

FileReplacer::~FileReplacer()
{
    if (!m_temporary.empty())
        ::unlink(m_temporary.c_str());
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

std::optional<std::string> FileReplacer::open(const std::string& path)
{
    m_path = path;
    m_target = path;
    if (!followLinks(m_target))
        return systemFailure(path);
    struct stat old { };
    const bool replaces = ::stat(m_target.c_str(), &old) == 0;
    if (!replaces && errno != ENOENT)
        return systemFailure(path);
    if (replaces && S_ISDIR(old.st_mode))
        return failure(path, "is a directory");
    if (replaces && !S_ISREG(old.st_mode))
        return failure(path, "isn't a regular file");
    // Renaming only needs rights on the folder, but a write-protected file isn't replaced.
    if (replaces && ::faccessat(AT_FDCWD, m_target.c_str(), W_OK, AT_EACCESS) != 0)
        return systemFailure(path);
    if (replaces)
        m_oldAccess = Access{old.st_mode & 07777U, old.st_uid, old.st_gid, accessListOf(m_target)};
    std::string temporary;
    m_descriptor = createBeside(m_target, temporary, replaces ? 0600 : 0666);
    if (m_descriptor < 0)
        return systemFailure(path);
    m_temporary = temporary;
    return std::nullopt;
}

bool FileReplacer::adoptAccess() const
{
    if (!m_oldAccess)
        return true;
    struct stat present { };
    if (::fstat(m_descriptor, &present) != 0)
        return false;
    const bool owned = present.st_uid == m_oldAccess->owner
        || ::fchown(m_descriptor, m_oldAccess->owner, static_cast<gid_t>(-1)) == 0;
    const bool grouped = present.st_gid == m_oldAccess->group
        || ::fchown(m_descriptor, static_cast<uid_t>(-1), m_oldAccess->group) == 0;
    mode_t mode = m_oldAccess->mode;
    // With another owner or group these bits would give the rights of another user.
    if (!owned || !grouped)
        mode &= ~static_cast<mode_t>(S_ISUID | S_ISGID);
    if (!grouped)
        mode = withoutGroup(mode);
    if (m_oldAccess->list.empty())
        return ::fchmod(m_descriptor, mode) == 0;
    // With an access control list, the group bits of the mode are the mask of the list, not the rights of the group.
    const bool listed
        = grouped && ::fsetxattr(m_descriptor, accessList, m_oldAccess->list.data(), m_oldAccess->list.size(), 0) == 0;
    return ::fchmod(m_descriptor, listed ? mode : mode & S_IRWXU) == 0;
}

std::optional<std::string> FileReplacer::write(const char* bytes, std::size_t count)
{
    while (count > 0) {
        const ssize_t written = ::write(m_descriptor, bytes, count);
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return systemFailure(m_path);
        bytes += written;
        count -= static_cast<std::size_t>(written);
    }
    return std::nullopt;
}

std::optional<std::string> FileReplacer::commit()
{
    if (!adoptAccess() || ::fsync(m_descriptor) != 0)
        return systemFailure(m_path);
    // Closing the descriptor releases the lock, so it is closed after the renaming.
    if (std::rename(m_temporary.c_str(), m_target.c_str()) != 0)
        return systemFailure(m_path);
    m_temporary.clear();
    const int descriptor = m_descriptor;
    m_descriptor = -1;
    if (::close(descriptor) != 0)
        return systemFailure(m_path);
    if (!syncFolder(folderOf(m_target)))
        return systemFailure(m_path);
    return std::nullopt;
}

std::optional<std::string> readFile(const std::string& path, std::string& bytes)
{
    constexpr std::size_t slice = std::size_t{1} << 22U;
    FileReader reader;
    if (auto message = reader.open(path))
        return message;
    bytes.clear();
    try {
        bytes.reserve(reader.size() + slice);
    } catch (const std::exception&) {
        return failure(path, "the file doesn't fit in memory");
    }
    for (bool atEnd = false; !atEnd;) {
        if (auto message = reader.read(bytes, slice, atEnd))
            return message;
    }
    return std::nullopt;
}

} // namespace meridane

#include "orvane/app/problems/FileLook.h"

#include "orvane/app/base/TextConversion.h"

#include <QDir>

#include <cerrno>
#include <memory>
#include <unordered_map>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orvane {
namespace {

using State = NxFileFinding::State;

NxFileFinding unreadable(const QString& reason)
{
    return {State::Unreadable, reason.toStdString()};
}

} // namespace

NxFileFinding lookForFile(const QString& path)
{
    const std::string name = toStdFileName(path);
    // O_PATH opens without any effect on the file, and doesn't wait for it.
    const int descriptor = ::open(name.c_str(), O_PATH | O_CLOEXEC);
    if (descriptor < 0) {
        if (errno == ENOENT || errno == ENOTDIR)
            return {State::Missing, {}};
        return unreadable(QStringLiteral("can't be read: %1").arg(qt_error_string(errno)));
    }
    struct stat status { };
    const bool isKnown = ::fstat(descriptor, &status) == 0;
    ::close(descriptor);
    if (!isKnown || !S_ISREG(status.st_mode))
        return unreadable(QStringLiteral("isn't a regular file"));
    if (status.st_size == 0)
        return unreadable(QStringLiteral("is empty"));
    if (::access(name.c_str(), R_OK) != 0)
        return unreadable(QStringLiteral("can't be read: %1").arg(qt_error_string(errno)));
    return {};
}

NxFileFinder fileFinder(const QString& folder)
{
    // Shared by the copies of the function.
    const auto known = std::make_shared<std::unordered_map<std::string, NxFileFinding>>();
    return [folder, known](const std::string& path, bool /*isImage*/) {
        const auto [found, isNew] = known->try_emplace(path);
        if (isNew) {
            const QString name = toQString(path);
            if (folder.isEmpty() && QDir::isRelativePath(name))
                found->second = unreadable(QStringLiteral("is in no folder, since the scene isn't saved yet"));
            else
                found->second = lookForFile(QDir(folder).filePath(name));
        }
        return found->second;
    };
}

} // namespace orvane

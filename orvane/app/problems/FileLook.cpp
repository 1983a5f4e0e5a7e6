#include "orvane/app/problems/FileLook.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/images/ImageFile.h"
#include "orvane/app/images/ImageHeader.h"
#include "orvane/transfer/Picture.h"

#include <QCoreApplication>
#include <QDir>

#include <algorithm>
#include <cerrno>
#include <map>
#include <memory>
#include <string>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orvane {
namespace {

struct FileLookTexts {
    Q_DECLARE_TR_FUNCTIONS(FileLook)
};

using State = NxFileFinding::State;

NxFileFinding unreadable(const QString& reason)
{
    return {State::Unreadable, reason.toStdString()};
}

NxFileFinding unreadable()
{
    return unreadable(FileLookTexts::tr("can't be read: %1").arg(qt_error_string(errno)));
}

/// A descriptor that is closed at the end.
class Descriptor {
public:
    explicit Descriptor(int descriptor) noexcept
        : m_descriptor(descriptor)
    {
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }
    [[nodiscard]] int get() const noexcept { return m_descriptor; }

private:
    int m_descriptor;
};

/// What the header of an image file says about it.
NxFileFinding lookAtImage(int descriptor)
{
    const std::optional<StatedImageSize> size = statedImageSize([descriptor](std::uint64_t offset, std::size_t count) {
        std::string bytes(count, '\0');
        const ssize_t read = ::pread(descriptor, bytes.data(), count, static_cast<off_t>(offset));
        bytes.resize(static_cast<std::size_t>(std::max<ssize_t>(read, 0)));
        return bytes;
    });
    if (!size)
        return unreadable(FileLookTexts::tr("is in none of the image formats that can be read"));
    if (size->width == 0 || size->height == 0)
        return unreadable(FileLookTexts::tr("is broken: it doesn't state the size of its image"));
    if (!isUsablePictureSize(size->width, size->height))
        return unreadable(
            FileLookTexts::tr("has %1 by %2 pixels; images of more than %3 pixels, or %4 a side, aren't read")
                .arg(size->width)
                .arg(size->height)
                .arg(maxPicturePixels)
                .arg(maxPictureSide));
    NxFileFinding finding;
    finding.width = static_cast<int>(size->width);
    finding.height = static_cast<int>(size->height);
    return finding;
}

} // namespace

NxFileFinding lookForFile(const QString& path, bool isImage)
{
    const std::string name = toStdFileName(path);
    // O_PATH opens without any effect on the file, and doesn't wait for it.
    const Descriptor looked(::open(name.c_str(), O_PATH | O_CLOEXEC));
    if (looked.get() < 0)
        return errno == ENOENT || errno == ENOTDIR ? NxFileFinding{State::Missing, {}} : unreadable();
    struct stat status { };
    const bool isRegular = ::fstat(looked.get(), &status) == 0 && S_ISREG(status.st_mode);
    if (!isRegular || (isImage && ImageFile::isMadeUp(looked.get())))
        return unreadable(FileLookTexts::tr("isn't a regular file"));
    if (status.st_size == 0)
        return unreadable(FileLookTexts::tr("is empty"));
    if (::access(name.c_str(), R_OK) != 0)
        return unreadable();
    if (!isImage)
        return {};
    if (static_cast<std::size_t>(status.st_size) > maxPictureFileSize)
        return unreadable(FileLookTexts::tr("is larger than %1 MiB").arg(maxPictureFileSize >> 20));
    // The file that was looked at, not another one that has got its name meanwhile.
    const std::string link = "/proc/self/fd/" + std::to_string(looked.get());
    const Descriptor opened(::open(link.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    return opened.get() < 0 ? unreadable() : lookAtImage(opened.get());
}

NxFileFinder fileFinder(const QString& folder)
{
    // Shared by the copies of the function.
    const auto known = std::make_shared<std::map<std::pair<std::string, bool>, NxFileFinding>>();
    return [folder, known](const std::string& path, bool isImage) {
        const auto [found, isNew] = known->try_emplace({path, isImage});
        if (isNew) {
            const QString name = toQString(path);
            if (folder.isEmpty() && QDir::isRelativePath(name))
                found->second = unreadable(FileLookTexts::tr("is in no folder, since the scene isn't saved yet"));
            else
                found->second = lookForFile(QDir(folder).filePath(name), isImage);
        }
        return found->second;
    };
}

} // namespace orvane

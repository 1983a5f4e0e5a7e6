#include "orvane/app/images/ImageFile.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/images/ImageFolders.h"
#include "orvane/transfer/Picture.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace {

struct ImageFileTexts {
    Q_DECLARE_TR_FUNCTIONS(ImageFile)
};

QString linkOf(int descriptor)
{
    return QStringLiteral("/proc/self/fd/%1").arg(descriptor);
}

/// The path of an open file with all symbolic links resolved; empty when the system doesn't know it.
QString realPathOf(int descriptor)
{
    std::array<char, PATH_MAX> path{};
    const ssize_t length = ::readlink(linkOf(descriptor).toLatin1().constData(), path.data(), path.size());
    return length <= 0 ? QString() : orvane::fromStdFileName({path.data(), static_cast<std::size_t>(length)});
}

} // namespace

ImageFile::ImageFile(const QString& fileName, const ImageFolders& folders)
{
    const QString path = folders.pathOf(fileName);
    if (path.isEmpty())
        fail(ImageFileTexts::tr("the scene has no folder that it could be in; save the scene first"));
    else if (!folders.contain(path))
        refuse(path);
    else
        open(path, folders);
}

bool ImageFile::isMadeUp(int descriptor)
{
    struct statfs system { };
    constexpr std::array<decltype(system.f_type), 4> kinds{PROC_SUPER_MAGIC, SYSFS_MAGIC, DEBUGFS_MAGIC, TRACEFS_MAGIC};
    return ::fstatfs(descriptor, &system) != 0 || std::find(kinds.begin(), kinds.end(), system.f_type) != kinds.end();
}

ImageFile::~ImageFile()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

void ImageFile::open(const QString& path, const ImageFolders& folders)
{
    // O_PATH has no effect on the file, whatever it is, and doesn't wait. The file that was checked is then opened for
    // reading through its descriptor, so that it can't be another one that got its name meanwhile.
    const int looked = ::open(orvane::toStdFileName(path).c_str(), O_PATH | O_CLOEXEC);
    if (looked < 0) {
        fail(QStringLiteral("%1: %2").arg(path, qt_error_string(errno)));
        return;
    }
    const QString realPath = realPathOf(looked);
    if (!realPath.isEmpty() && !folders.containReal(realPath, path)) {
        refuse(realPath);
    } else if (isUsable(looked)) {
        m_descriptor = ::open(linkOf(looked).toLatin1().constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
        if (m_descriptor >= 0)
            m_state = State::Open;
        else
            fail(qt_error_string(errno));
    }
    ::close(looked);
}

bool ImageFile::isUsable(int descriptor)
{
    struct stat status { };
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode) || isMadeUp(descriptor))
        fail(ImageFileTexts::tr("it isn't a regular file"));
    else if (status.st_size == 0)
        fail(ImageFileTexts::tr("it is empty"));
    else if (static_cast<std::size_t>(status.st_size) > orvane::maxPictureFileSize)
        fail(ImageFileTexts::tr("it is larger than %1 MiB").arg(orvane::maxPictureFileSize >> 20));
    m_size = static_cast<std::size_t>(status.st_size);
    return m_problem.isEmpty();
}

void ImageFile::refuse(const QString& path)
{
    m_state = State::Outside;
    m_folder = QFileInfo(path).path();
}

void ImageFile::fail(const QString& problem)
{
    m_problem = problem;
}

bool ImageFile::read(std::string& bytes, std::size_t count)
{
    bytes.resize(std::min(count, m_size - m_position));
    ssize_t got = 0;
    do {
        got = ::read(m_descriptor, bytes.data(), bytes.size());
    } while (got < 0 && errno == EINTR);
    bytes.resize(got > 0 ? static_cast<std::size_t>(got) : 0);
    m_position += bytes.size();
    return got > 0;
}

void ImageFile::rewind()
{
    m_position = 0;
    ::lseek(m_descriptor, 0, SEEK_SET);
}

#include "orvane/app/files/disk/FileStamp.h"

#include <sys/stat.h>

namespace {

std::int64_t nanoseconds(const timespec& time)
{
    constexpr std::int64_t perSecond = 1'000'000'000;
    return std::int64_t{time.tv_sec} * perSecond + time.tv_nsec;
}

} // namespace

FileStamp FileStamp::of(const std::string& path)
{
    struct stat status { };
    if (::stat(path.c_str(), &status) != 0)
        return {};
    return {true, status.st_dev, status.st_ino, status.st_mode, status.st_size, nanoseconds(status.st_mtim),
        nanoseconds(status.st_ctim)};
}

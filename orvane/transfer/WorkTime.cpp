#include "orvane/transfer/WorkTime.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace orvane {
namespace {

namespace fs = std::filesystem;

constexpr std::chrono::seconds base{20};
constexpr std::chrono::seconds perMebibyte{2};
constexpr std::uintmax_t maxMebibytes = std::uintmax_t{1} << 20; // keeps the sum in range

std::uintmax_t sizeOf(const fs::path& path)
{
    std::error_code error;
    const bool regular = fs::is_regular_file(path, error);
    const std::uintmax_t size = regular ? fs::file_size(path, error) : 0;
    return error ? 0 : size;
}

} // namespace

std::chrono::seconds processorTimeFor(std::uintmax_t bytes) noexcept
{
    const std::uintmax_t mebibytes = std::min(bytes >> 20U, maxMebibytes);
    return base + perMebibyte * static_cast<std::chrono::seconds::rep>(mebibytes);
}

std::uintmax_t modelSize(const std::string& path)
{
    const fs::path model(path);
    std::uintmax_t size = sizeOf(model);
    std::error_code error;
    const fs::path folder = model.has_parent_path() ? model.parent_path() : fs::path(".");
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        const fs::path& other = entry->path();
        if (other.filename() != model.filename() && (other.stem() == model.stem() || other.extension() == ".bin"))
            size += sizeOf(other);
    }
    return size;
}

} // namespace orvane

#include "orvane/import/StandardStreams.h"

#include <cerrno>
#include <cstddef>
#include <cstring>

#include <unistd.h>

namespace orvane {

bool writeAll(std::string_view bytes, std::string& error)
{
    while (!bytes.empty()) {
        const ssize_t written = write(STDOUT_FILENO, bytes.data(), bytes.size());
        if (written > 0) {
            bytes.remove_prefix(static_cast<std::size_t>(written));
        } else if (errno != EINTR) {
            error = std::string("standard output: ") + std::strerror(errno);
            return false;
        }
    }
    return true;
}

bool readAll(std::string& bytes, std::string& error)
{
    constexpr std::size_t portion = std::size_t{1} << 16;
    for (;;) {
        const std::size_t size = bytes.size();
        bytes.resize(size + portion);
        const ssize_t count = read(STDIN_FILENO, bytes.data() + size, portion);
        bytes.resize(size + (count > 0 ? static_cast<std::size_t>(count) : 0));
        if (count == 0)
            return true;
        if (count < 0 && errno != EINTR) {
            error = std::string("standard input: ") + std::strerror(errno);
            return false;
        }
    }
}

} // namespace orvane

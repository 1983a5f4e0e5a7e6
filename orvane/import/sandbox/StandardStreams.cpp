#include "orvane/import/sandbox/StandardStreams.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstring>

#include <unistd.h>

namespace orvane {
namespace {

constexpr std::size_t portion = std::size_t{1} << 16;

/// Appends the available bytes, at most `count`. Returns false at the end of the input, and on failure with the reason.
bool readMore(std::string& bytes, std::size_t count, std::string& error)
{
    const std::size_t size = bytes.size();
    bytes.resize(size + count);
    ssize_t got = 0;
    do {
        got = read(STDIN_FILENO, bytes.data() + size, count);
    } while (got < 0 && errno == EINTR);
    bytes.resize(size + (got > 0 ? static_cast<std::size_t>(got) : 0));
    if (got < 0)
        error = std::string("standard input: ") + std::strerror(errno);
    return got > 0;
}

} // namespace

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
    while (readMore(bytes, portion, error)) { }
    return error.empty();
}

bool readCount(std::string& bytes, std::size_t count, std::string& error)
{
    bytes.clear();
    // Memory is allocated for bytes that have arrived, not for the promised number.
    while (bytes.size() < count && readMore(bytes, std::min(portion, count - bytes.size()), error)) { }
    if (bytes.size() < count && error.empty())
        error = "standard input: it ends in the middle";
    return error.empty();
}

bool readLine(std::string& line, std::size_t longest, std::string& error)
{
    line.clear();
    // Byte by byte, so that what follows the line stays in the pipe.
    while (readMore(line, 1, error)) {
        if (line.back() == '\n') {
            line.pop_back();
            return true;
        }
        if (line.size() == longest)
            break;
    }
    if (!line.empty() && error.empty())
        error = "standard input: it ends in the middle of a line, or the line is too long";
    return false;
}

} // namespace orvane

#pragma once

#include <cstdint>
#include <string>

#include <sys/types.h>

/// What the system says of a file. As long as it is the same, the content needn't be read again.
struct FileStamp {
    bool exists = false;
    dev_t device = 0;
    ino_t number = 0;
    mode_t mode = 0;
    off_t size = 0;
    std::int64_t changed = 0; // of the content, in nanoseconds
    std::int64_t touched = 0; // of anything, in nanoseconds

    friend bool operator==(const FileStamp&, const FileStamp&) = default;

    /// Symbolic links are followed.
    [[nodiscard]] static FileStamp of(const std::string& path);
};

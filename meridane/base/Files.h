#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include <sys/types.h>

/// Reads and replaces whole files, safely and in slices.
namespace meridane {

/// Reads a file slice by slice.
class FileReader {
public:
    FileReader() = default;
    ~FileReader();
    FileReader(const FileReader&) = delete;
    FileReader& operator=(const FileReader&) = delete;

    /// Opens a regular file. The result is the message of the failure, such as "model.mrd: No such file or directory"
    /// or "folder: is a directory", or nothing.
    [[nodiscard]] std::optional<std::string> open(const std::string& path);
    /// Appends up to `count` bytes to `bytes`; `atEnd` reports whether the end of the file was reached.
    [[nodiscard]] std::optional<std::string> read(std::string& bytes, std::size_t count, bool& atEnd);
    /// The size of the file in bytes, as it was when it was opened.
    [[nodiscard]] std::size_t size() const noexcept { return m_size; }

private:
    std::string m_path;
    int m_descriptor = -1;
    std::size_t m_size = 0;
};

/// Replaces a file as a whole or not at all: writes a new file beside it, syncs it to the disk and renames it into
/// place. The new file gets owner, group, permissions and access control list of the old one. If the user may not set
/// that owner or group, the permissions are reduced, so that nobody gains access. Symbolic links are followed; other
/// hard links to the file keep the old content. If there was an old file, only the user can read the new one before
/// `commit`. Without `commit`, the destructor removes the new file and the old one is unchanged. A killed process
/// leaves the old file too, and a hidden file beside it, which the next replacement of the same file removes.
class FileReplacer {
public:
    FileReplacer() = default;
    ~FileReplacer();
    FileReplacer(const FileReplacer&) = delete;
    FileReplacer& operator=(const FileReplacer&) = delete;

    /// The result of each operation is the message of the failure, with the file's name, or nothing.
    [[nodiscard]] std::optional<std::string> open(const std::string& path);
    /// Appends bytes to the new file. Only after `open` has succeeded.
    [[nodiscard]] std::optional<std::string> write(const char* bytes, std::size_t count);
    /// Syncs the new file to the disk and puts it in the place of the old one. Call it once, as the last operation.
    [[nodiscard]] std::optional<std::string> commit();

private:
    /// The access rights of the old file.
    struct Access {
        mode_t mode;
        uid_t owner;
        gid_t group;
        std::string list; // the access control list in the system's form; may be empty
    };

    [[nodiscard]] bool adoptAccess() const;

    std::string m_path; // as it was given, for messages
    std::string m_target; // the file itself, without symbolic links
    std::string m_temporary;
    int m_descriptor = -1;
    std::optional<Access> m_oldAccess; // nothing for a new file
};

/// Reads a whole file; the result is the message of the failure, or nothing.
[[nodiscard]] std::optional<std::string> readFile(const std::string& path, std::string& bytes);

} // namespace meridane

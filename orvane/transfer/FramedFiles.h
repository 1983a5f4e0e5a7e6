#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The format of several files in one stream of bytes.
///
/// The text "orvane-files 1" and a line feed, then for each file a line "file SIZE NAME" and its SIZE bytes, at last
/// the line "end". The first file is the requested one, the others are those that it refers to. A name is
/// UTF-8 and names a file of the same folder.
namespace orvane {

/// A file that isn't on the disk yet.
struct NamedFile {
    std::string name;
    std::string bytes;
};

/// The line before all files.
[[nodiscard]] std::string framedFilesStart();
/// The line before the bytes of a file.
[[nodiscard]] std::string framedFileHeader(std::string_view name, std::size_t size);
/// The line after the last file.
[[nodiscard]] std::string framedFilesEnd();

/// Splits framed files. Returns nothing unless the bytes are complete framed files: at least one, each name once, and
/// no name of a hidden file or of one in another folder.
[[nodiscard]] std::optional<std::vector<NamedFile>> unpackFramedFiles(std::string_view bytes);

} // namespace orvane

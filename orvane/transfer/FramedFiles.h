#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// How several files travel through one pipe.
///
/// The text "orvane-files 1" and a line feed, then for each file a line "file SIZE NAME" and its SIZE bytes, at last
/// the line "end". The first file is the one that was asked for, the others are those that it refers to. A name is
/// UTF-8 and names a file of the same folder.
namespace orvane {

/// A file that isn't on the disk yet.
struct NamedFile {
    std::string name;
    std::string bytes;
};

/// The line ahead of all files.
[[nodiscard]] std::string framedFilesStart();
/// The line ahead of the bytes of one file.
[[nodiscard]] std::string framedFileHeader(std::string_view name, std::size_t size);
/// The line behind the last file.
[[nodiscard]] std::string framedFilesEnd();

/// Takes framed files apart. Nothing, if the bytes are anything but whole framed files: at least one, each name once
/// and none that leads to another folder or to a hidden file.
[[nodiscard]] std::optional<std::vector<NamedFile>> unpackFramedFiles(std::string_view bytes);

} // namespace orvane

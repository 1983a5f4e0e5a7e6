#pragma once

#include <string>
#include <vector>

/// Restricts the files that this process can open.
namespace orvane {

/// From now on this process can only open files for reading, in these folders and below; files that are already open
/// remain open. If the kernel supports it, connections and signals to other processes are refused too. A folder that
/// can't be opened is left out. Returns false if the kernel, or a sandbox around this process, doesn't support this;
/// then nothing is restricted.
[[nodiscard]] bool restrictFiles(const std::vector<std::string>& readableFolders);

/// The folders that are needed to read this file: that of its path and, for a symbolic link, that of the target.
[[nodiscard]] std::vector<std::string> foldersOf(const std::string& path);

} // namespace orvane

#pragma once

#include <string>
#include <vector>

/// What this process may reach in the file system.
namespace orvane {

/// Lets this process, from now on, read the files in these folders and below, and open nothing else; files that are
/// open stay open. Where the kernel can, it also refuses connections, signals to other processes and the like. A
/// folder that can't be opened is left out. False when the kernel, or a sandbox around this process, has no such rules;
/// nothing is restricted then.
[[nodiscard]] bool restrictFiles(const std::vector<std::string>& readableFolders);

/// The folders that reading this file takes: the one that its path names and, for a symbolic link, the one that the
/// file is in.
[[nodiscard]] std::vector<std::string> foldersOf(const std::string& path);

} // namespace orvane

#pragma once

#include <chrono>
#include <cstdint>
#include <string>

/// The time limit of the helper depends on the size of its input, so that a small file can't keep a processor busy for
/// minutes and a large one can be read.
namespace orvane {

/// Processor time for a model or a scene of that many bytes: 20 s, and 2 s more for each MiB.
[[nodiscard]] std::chrono::seconds processorTimeFor(std::uintmax_t bytes) noexcept;

/// The bytes of a model: those of its file, and of the files beside it that have the same name but for the extension,
/// or the extension of binary data (`bin`). A missing file counts as 0.
[[nodiscard]] std::uintmax_t modelSize(const std::string& path);

} // namespace orvane

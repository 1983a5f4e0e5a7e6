#pragma once

#include "orvane/import/sandbox/ProcessLimits.h"

#include <optional>
#include <span>
#include <string>

/// What the helper was asked to do.
namespace orvane {

struct Arguments {
    enum class Task { Read, Write, Pictures, Formats, ShowSandbox, Help };

    Task task = Task::Help;
    /// Read: the path of the model. Write: the extension that names the format.
    std::string subject;
    /// Read: whether the scene goes out packed (see `PackedScene`) rather than as text.
    bool packed = false;
    /// Write: the name of the model's files without extension.
    std::string name = "model";
    ProcessLimits limits;
    /// Processor time to take at most, 0 for no limit; nothing for what the size of the input allows.
    std::optional<std::size_t> processorSeconds;
    /// The process to end with; 0 for none.
    std::size_t parent = 0;
};

/// How the helper is called, a few lines.
[[nodiscard]] const char* usage() noexcept;
/// Understands the arguments behind the program's name. Nothing for unusable ones, which `error` tells.
[[nodiscard]] std::optional<Arguments> parseArguments(std::span<const char* const> arguments, std::string& error);

} // namespace orvane

#pragma once

#include "orvane/import/mending/ImportOptions.h"
#include "orvane/import/sandbox/ProcessLimits.h"

#include <optional>
#include <span>
#include <string>

/// The command line of the helper.
namespace orvane {

struct Arguments {
    enum class Task { Read, Write, Pictures, Formats, ShowSandbox, Help };

    Task task = Task::Help;
    /// Read: the path of the model. Write: the extension that names the format.
    std::string subject;
    /// Read: what becomes of the model.
    ImportOptions import;
    std::string space = "convert"; // of it, as text
    /// Read: whether to write the scene packed (see `PackedScene`) rather than as text.
    bool packed = false;
    /// Write: the name of the model's files without extension.
    std::string name = "model";
    /// Whether subject and name were given with %41 for the byte 0x41; they are decoded here.
    bool encoded = false;
    ProcessLimits limits;
    /// The limit of processor time, 0 for none; without a value it follows from the size of the input.
    std::optional<std::size_t> processorSeconds;
    /// The process whose end also ends this one; 0 for none.
    std::size_t parent = 0;
};

/// The text of `--help`.
[[nodiscard]] const char* usage() noexcept;
/// Parses the arguments after the program's name. Returns nothing if they are wrong; then `error` says why.
[[nodiscard]] std::optional<Arguments> parseArguments(std::span<const char* const> arguments, std::string& error);

} // namespace orvane

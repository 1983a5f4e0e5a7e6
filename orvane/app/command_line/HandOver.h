#pragma once

#include "orvane/app/command_line/CommandLine.h"

#include <optional>

namespace orvane {

/// Hands the file of the command line to a running window, if that is asked for there or in the settings. Returns the
/// exit status of this process, or nothing where it must open a window of its own; messages are printed.
///
/// To be called before there is an application object.
[[nodiscard]] std::optional<int> handOver(const CommandLine& commandLine, char** argv);

} // namespace orvane

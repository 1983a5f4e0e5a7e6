#pragma once

#include "orvane/app/command_line/CommandLine.h"

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <optional>

class FileJob;
class QTextStream;
class Session;

/// Does what a command line asks for without a window: opens the file, sets fields, prints, writes.
///
/// Needs a core application; where the command line needs extensions, a widget application, on any platform.
class BatchRun {
public:
    /// Prints to `output`.
    BatchRun(const CommandLine& commandLine, QTextStream& output)
        : m_commandLine(commandLine)
        , m_output(output)
    {
    }

    /// The result is the one line that tells what went wrong, or nothing.
    [[nodiscard]] std::optional<QString> run();

    /// Prints the extensions, if that is asked for.
    void listExtensions(Session& session);
    /// Prints and exports what is asked for of a scene that is open and changed already; null for no scene.
    [[nodiscard]] std::optional<QString> writeOutput(const NxRef<NxGroup>& scene);

private:
    [[nodiscard]] static std::optional<QString> finish(FileJob& job);
    [[nodiscard]] std::optional<QString> startExtensions(Session& session);
    [[nodiscard]] std::optional<QString> runScene();
    [[nodiscard]] std::optional<QString> open(NxRef<NxGroup>& scene) const;

    const CommandLine& m_commandLine;
    QTextStream& m_output;
};

#pragma once

#include "orvane/app/command_line/CommandLine.h"

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"

class FileJob;
class QTextStream;
class Session;

/// Runs a command line without a window: opens the file, sets fields, prints, compares, checks, exports.
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

    /// Does all that is asked for, up to the first failure.
    orvane::Result<> run();

    /// Prints the extensions, if that is asked for.
    void listExtensions(Session& session);
    /// Prints and exports what is asked for of a scene that is open and changed already; null for no scene.
    orvane::Result<> writeOutput(const NxRef<NxGroup>& scene);
    /// The exit status of a run that didn't fail: 1 if the files that were compared differ; 1 if the scene that was
    /// checked has warnings and 2 if it has errors; else 0.
    [[nodiscard]] int status() const noexcept { return m_status; }

private:
    static orvane::Result<> finish(FileJob& job);
    orvane::Result<> startExtensions(Session& session);
    orvane::Result<> runScene();
    orvane::Result<> describeClasses();
    orvane::Result<> writeDifferences(const NxRef<NxGroup>& scene);
    orvane::Result<> writeProblems(const NxRef<NxGroup>& scene);
    [[nodiscard]] static orvane::Result<NxRef<NxGroup>> open(const QString& fileName);

    const CommandLine& m_commandLine;
    QTextStream& m_output;
    int m_status = 0;
};

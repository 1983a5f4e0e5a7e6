#pragma once

#include "orvane/app/CommandLine.h"

#include "meridane/scene/NxGroup.h"
#include "meridane/scene/NxRef.h"

#include <optional>

class FileJob;
class QTextStream;

/// Does what a command line asks for without a window: opens the file, sets fields, prints, writes.
///
/// Needs a core application; `--list-extensions` needs a widget application, on any platform.
class BatchRun {
public:
    /// Prints to `output`.
    explicit BatchRun(QTextStream& output)
        : m_output(output)
    {
    }

    /// The result is the one line that tells what went wrong, or nothing.
    [[nodiscard]] std::optional<QString> run(const CommandLine& commandLine);

private:
    [[nodiscard]] static std::optional<QString> finish(FileJob& job);
    [[nodiscard]] std::optional<QString> open(const QString& fileName);
    [[nodiscard]] std::optional<QString> store(const QString& fileName) const;
    [[nodiscard]] std::optional<QString> listExtensions(const CommandLine& commandLine);

    QTextStream& m_output;
    NxRef<NxGroup> m_scene;
};

#pragma once

#include <QString>

#include <optional>

class OrvPlugin;

namespace orvane {

/// A library and the plug-in that it has made.
///
/// The library stays mapped until the process ends. Others use parts of it longer than its plug-in object lives: the
/// code of commands and of their destructors, run-time types with their factories, meta-objects, text literals.
/// Unmapping it would leave all of these dangling, and would save nothing but address space.
struct PluginLibrary {
    /// The file's canonical path.
    QString fileName;
    OrvPlugin* plugin = nullptr;
    /// The library's `unloadPlugin`.
    void (*unloadPlugin)() = nullptr;
};

/// Either the library with its plug-in, on which `load` hasn't been called, or the message of the failure.
struct OpenedLibrary {
    PluginLibrary library;
    std::optional<QString> error;
};

/// Maps the library and calls it to make its plug-in. A plug-in that was built against another version of the interface
/// is destroyed again.
[[nodiscard]] OpenedLibrary openPluginLibrary(const QString& fileName);

} // namespace orvane

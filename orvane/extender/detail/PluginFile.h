#pragma once

#include <QString>
#include <QStringList>

namespace orvane {

/// What a plug-in's file says of itself. Loading a library runs its code, so this is read before.
struct PluginFile {
    /// The file is shorter than its own header says. To load it would end the process: the system maps the sizes in
    /// the header without comparing them with that of the file, and reading beyond the end of a file is a fatal error.
    bool isCutOff = false;
    /// It was built for another processor.
    bool isForeign = false;
    /// It is a library of 64 bits, for whatever processor.
    bool isLibrary = false;
    /// The stamps of its parts, each once (see PluginStamp.h); none for a library that was compiled without them.
    QStringList stamps;
};

/// Reads the headers and notes of a library. Nothing is found in a file that is no 64-bit ELF file, or can't be read.
[[nodiscard]] PluginFile readPluginFile(const QString& fileName);

} // namespace orvane

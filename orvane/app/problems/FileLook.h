#pragma once

#include "meridane/scene/check/NxFileFinding.h"

#include <QString>

/// Looking for the files that a scene names.
namespace orvane {

/// Whether the file of an absolute path exists and can be read. Has no effect on the file, whatever it is. Only if it
/// must be an image, its header is read, which has the size. May take as long as the file system does; may be called on
/// any thread.
[[nodiscard]] NxFileFinding lookForFile(const QString& path, bool isImage);

/// Looks for the files of a scene in that folder; empty for a scene without one, whose relative paths lead nowhere.
/// Remembers what it has found. It blocks, so it isn't for the window.
[[nodiscard]] NxFileFinder fileFinder(const QString& folder);

} // namespace orvane

#pragma once

#include "meridane/scene/file/NxSceneWriter.h"

#include <QString>

class NxGroup;

/// What becomes of the relative file paths of a scene when the scene gets to another folder.
namespace orvane {

/// The folder of a file; empty for no file.
[[nodiscard]] QString folderOf(const QString& fileName);

/// What a scene in the folder `to` has to name a file that a scene in the folder `from` names `path`. A relative path
/// where both have some folder in common below the root, else an absolute one, as for an empty `to`, a scene without a
/// folder. Absolute paths stay, and so do paths in a scene without a folder (an empty `from`), and what is no path of
/// this system.
[[nodiscard]] QString rebasedPath(const QString& path, const QString& from, const QString& to);

/// The same for everything that is written; null when nothing changes.
[[nodiscard]] NxSceneWriter::PathMap pathMap(const QString& from, const QString& to);

/// The same for the file paths of all nodes of a scene, which isn't part of an open one yet.
void rebasePaths(NxGroup& scene, const QString& from, const QString& to);

} // namespace orvane

#pragma once

#include "orvane/app/files/FileJob.h"

#include <memory>

namespace orvane {

/// The job that reads this file: a scene in our own format (`.mrd`), or a model for the import helper.
[[nodiscard]] std::unique_ptr<SceneJob> makeLoadJob(const QString& fileName);
/// The job that writes this file, in our own format or, as a model, through the import helper.
/// Relative file paths in the scene count from `pathFolder`; those that are written are valid in the file's folder.
[[nodiscard]] std::unique_ptr<FileJob> makeSaveJob(
    const NxRef<NxGroup>& scene, const QString& fileName, const QString& pathFolder);

} // namespace orvane

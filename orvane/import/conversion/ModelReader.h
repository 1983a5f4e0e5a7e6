#pragma once

#include "orvane/import/mending/ColorMending.h"
#include "orvane/import/mending/ImportOptions.h"
#include "orvane/import/mending/ImportWarnings.h"
#include "orvane/transfer/SpaceNote.h"

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <memory>
#include <string>
#include <vector>

namespace Assimp {
class Importer;
}

struct aiScene;

namespace orvane {

class ModelFiles;

/// Reads a foreign model. The destructor frees the data of the import library, which can take longer than writing the
/// scene; a process that is about to exit can skip it.
class ModelReader {
public:
    explicit ModelReader(const ImportOptions& options = {});
    ~ModelReader();

    /// Returns the scene, or null; then `error` begins with the file's name and says why. Files of textures aren't
    /// opened; embedded textures become images.
    [[nodiscard]] NxRef<NxGroup> read(const std::string& path, std::string& error);
    /// What the user should know of the model that was read last: what was left out or mended.
    [[nodiscard]] std::vector<std::string> warnings() const { return m_warnings.texts(); }
    /// What became of its unit and up axis, which the first node of the scene may convert.
    [[nodiscard]] const SpaceNote& note() const noexcept { return m_note; }

private:
    [[nodiscard]] const aiScene* readFile(const std::string& path, ModelFiles& files);
    [[nodiscard]] bool mend(aiScene& model, std::string& error);
    [[nodiscard]] const aiScene* readMended(const std::string& path, ModelFiles& files, std::string& error);

    std::unique_ptr<Assimp::Importer> m_importer;
    ImportOptions m_options;
    ImportWarnings m_warnings;
    SpaceNote m_note;
    ColorStorage m_colorStorage = ColorStorage::Usual;
};

} // namespace orvane

#include "orvane/import/conversion/ModelReader.h"

#include "orvane/import/conversion/ModelFiles.h"
#include "orvane/import/conversion/SceneBuilder.h"

#include "meridane/base/Files.h"

#include <algorithm>
#include <assimp/Importer.hpp>
#include <filesystem>

#include <assimp/postprocess.h>
#include <assimp/scene.h>

namespace orvane {
namespace {

// Equal vertices are merged, so that formats without indices give the same meshes as formats with them.
constexpr unsigned int steps
    = aiProcess_ValidateDataStructure | aiProcess_Triangulate | aiProcess_SortByPType | aiProcess_JoinIdenticalVertices;

bool hasModelExtension(const std::string& path)
{
    const std::string extension = std::filesystem::path(path).extension().string(); // with the dot, if any
    return extension.size() > 1 && Assimp::Importer().IsExtensionSupported(extension);
}

std::string failureText(const std::string& path, const Assimp::Importer& importer)
{
    std::string text = importer.GetErrorString();
    if (text.empty())
        return "the model can't be read";
    // The message of the library only repeats the path.
    if (text.starts_with("No suitable reader found"))
        return hasModelExtension(path) ? "the model is broken: it isn't in the format of its extension"
                                       : "this is in none of the model formats that can be read";
    std::replace_if(
        text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20; }, ' ');
    return "the model is broken: " + text;
}

} // namespace

ModelReader::ModelReader()
    : m_importer(std::make_unique<Assimp::Importer>())
{
}

ModelReader::~ModelReader() = default;

NxRef<NxGroup> ModelReader::read(const std::string& path, std::string& error)
{
    // The library has one message for every failure to open a file; the toolkit distinguishes them.
    if (const std::optional<std::string> failure = meridane::FileReader().open(path)) {
        error = *failure;
        return {};
    }
    m_importer->SetIOHandler(new ModelFiles(path)); // the importer's own
    const aiScene* model = m_importer->ReadFile(path, steps);
    if (model == nullptr || model->mRootNode == nullptr) {
        error = path + ": " + failureText(path, *m_importer);
        return {};
    }
    NxRef<NxGroup> scene = SceneBuilder(*model, std::filesystem::path(path).filename().string()).build(error);
    if (!scene)
        error = path + ": " + error;
    return scene;
}

} // namespace orvane

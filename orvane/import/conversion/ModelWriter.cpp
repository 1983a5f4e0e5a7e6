#include "orvane/import/conversion/ModelWriter.h"

#include "orvane/import/conversion/GltfAdditions.h"
#include "orvane/import/conversion/MemoryFiles.h"
#include "orvane/import/conversion/ModelBuilder.h"
#include "orvane/import/conversion/ModelFormats.h"
#include "orvane/import/mending/Texts.h"

#include <algorithm>
#include <assimp/Exporter.hpp>
#include <optional>
#include <span>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace orvane {
namespace {

ModelBuilder::Images imagesOf(std::string_view format)
{
    // Not inside "fbxa": the library writes such images in a way that it crashes on when it reads them.
    if (format == "glb2" || format == "gltf2")
        return ModelBuilder::Images::Inside;
    return format == "stlb" ? ModelBuilder::Images::Nowhere : ModelBuilder::Images::Beside;
}

// Formats that give black colours to meshes without colours if another mesh has some.
bool mixesColors(std::string_view format)
{
    return format == "obj" || format == "ply";
}

// Gives meshes without colours the colour of their material.
void completeColors(const aiScene& model)
{
    const std::span<aiMesh* const> meshes(model.mMeshes, model.mNumMeshes);
    if (std::none_of(meshes.begin(), meshes.end(), [](const aiMesh* mesh) { return mesh->HasVertexColors(0); }))
        return;
    for (aiMesh* mesh : meshes) {
        if (mesh->HasVertexColors(0))
            continue;
        aiColor4D color;
        const aiMaterial& material = *model.mMaterials[mesh->mMaterialIndex];
        material.Get(AI_MATKEY_COLOR_DIFFUSE, color);
        material.Get(AI_MATKEY_OPACITY, color.a);
        mesh->mColors[0] = new aiColor4D[mesh->mNumVertices];
        std::fill_n(mesh->mColors[0], mesh->mNumVertices, color);
    }
}

// That format identifies materials by name, and a material with two textures needs two names.
void makeMaterialNamesUnique(const aiScene& model)
{
    std::unordered_set<std::string> names;
    std::unordered_map<std::string, int> counts; // of materials that want the same name
    for (aiMaterial* material : std::span(model.mMaterials, model.mNumMaterials)) {
        aiString name;
        material->Get(AI_MATKEY_NAME, name);
        const std::string wanted(name.data, name.length);
        std::string unique = wanted;
        for (int& count = counts[wanted]; !names.insert(unique).second;)
            unique = wanted + "_" + std::to_string(++count + 1);
        name = toAiText(unique);
        material->AddProperty(&name, AI_MATKEY_NAME);
    }
}

} // namespace

std::vector<NamedFile> writeModel(
    NxGroup& scene, const std::string& extension, const std::string& name, std::string& error)
{
    const std::string format = exportFormat(extension);
    const std::string file = name + "." + extension;
    // The exporter merges the meshes of a node into the first one, even if other nodes use that.
    const bool isGltf = format == "glb2" || format == "gltf2";
    ModelBuilder builder(
        imagesOf(format), name, isGltf ? ModelBuilder::MeshesPerNode::One : ModelBuilder::MeshesPerNode::Many);
    const std::unique_ptr<aiScene> model = builder.build(scene, error);
    if (model == nullptr)
        return {};
    if (mixesColors(format))
        completeColors(*model);
    if (format == "obj")
        makeMaterialNamesUnique(*model);

    if (format == "fbxa") {
        // Centimetres in a unit: scenes are in metres.
        model->mMetaData = aiMetadata::Alloc(1);
        model->mMetaData->Set(0, "UnitScaleFactor", 100.0);
    }

    std::optional<GltfAdditions> additions;
    if (isGltf)
        additions.emplace(*model);

    Assimp::Exporter exporter;
    auto* files = new MemoryFiles; // the exporter's own
    exporter.SetIOHandler(files);
    if (exporter.Export(model.get(), format, file) != aiReturn_SUCCESS) {
        error = exporter.GetErrorString();
        return {};
    }
    std::vector<NamedFile> result = files->takeFiles();
    const auto main
        = std::find_if(result.begin(), result.end(), [&](const NamedFile& each) { return each.name == file; });
    if (main == result.end() || main->bytes.empty()) {
        error = "the export library wrote nothing";
        return {};
    }
    if (additions)
        additions->complete(main->bytes);
    std::rotate(result.begin(), main, main + 1);
    for (NamedFile& image : builder.takeImageFiles())
        result.push_back(std::move(image));
    return result;
}

} // namespace orvane

#include "orvane/import/mending/SideMending.h"

#include "orvane/import/mending/Lists.h"

#include <algorithm>
#include <vector>

#include <assimp/GltfMaterial.h>
#include <assimp/scene.h>

namespace orvane {
namespace {

/// The sums over some triangles.
struct Area {
    aiVector3t<double> vector; // twice the area, along the normal
    double size = 0; // twice the area

    /// As much of a closed surface faces any direction as faces away from it.
    [[nodiscard]] bool isClosed() const
    {
        constexpr double tolerance = 0.02;
        return vector.Length() <= tolerance * size;
    }
};

aiVector3t<double> wide(const aiVector3D& vector)
{
    return {static_cast<double>(vector.x), static_cast<double>(vector.y), static_cast<double>(vector.z)};
}

void addFaces(const aiMesh& mesh, Area& area)
{
    if (mesh.mVertices == nullptr)
        return;
    for (const aiFace& face : listOf(mesh.mFaces, mesh.mNumFaces)) {
        const auto indices = listOf(face.mIndices, face.mNumIndices);
        for (std::size_t corner = 2; corner < indices.size(); ++corner) {
            const aiVector3t<double> first = wide(mesh.mVertices[indices[0]]);
            const aiVector3t<double> normal
                = (wide(mesh.mVertices[indices[corner - 1]]) - first) ^ (wide(mesh.mVertices[indices[corner]]) - first);
            area.vector += normal;
            area.size += normal.Length();
        }
    }
}

bool isSingleSided(const aiMaterial& material)
{
    aiString mode;
    int isDoubleSided = 1;
    return material.Get(AI_MATKEY_GLTF_ALPHAMODE, mode) == aiReturn_SUCCESS
        && material.Get(AI_MATKEY_TWOSIDED, isDoubleSided) == aiReturn_SUCCESS && isDoubleSided == 0;
}

} // namespace

void mendSides(aiScene& model)
{
    const auto materials = listOf(model.mMaterials, model.mNumMaterials);
    std::vector<bool> areSingleSided(materials.size());
    std::transform(materials.begin(), materials.end(), areSingleSided.begin(),
        [](const aiMaterial* material) { return isSingleSided(*material); });
    std::vector<Area> areas(materials.size());
    for (const aiMesh* mesh : listOf(model.mMeshes, model.mNumMeshes)) {
        if (mesh->mMaterialIndex < materials.size() && areSingleSided[mesh->mMaterialIndex])
            addFaces(*mesh, areas[mesh->mMaterialIndex]);
    }
    for (std::size_t index = 0; index < materials.size(); ++index) {
        const bool isDoubleSided = true;
        if (areSingleSided[index] && !areas[index].isClosed())
            materials[index]->AddProperty(&isDoubleSided, 1, AI_MATKEY_TWOSIDED);
    }
}

} // namespace orvane

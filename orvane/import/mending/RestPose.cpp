#include "orvane/import/mending/RestPose.h"

#include "orvane/import/mending/Lists.h"
#include "orvane/import/mending/SourceFormat.h"
#include "orvane/import/mending/Texts.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <assimp/matrix3x3.h>
#include <assimp/scene.h>

namespace orvane {
namespace {

struct PlacedNodes {
    std::unordered_map<std::string_view, aiMatrix4x4> byName; // world transforms
    std::unordered_map<unsigned int, aiMatrix4x4> ofMeshes; // those of the first node that has the mesh
};

void place(const aiNode& node, const aiMatrix4x4& above, PlacedNodes& placed)
{
    const aiMatrix4x4 world = above * node.mTransformation;
    placed.byName.emplace(viewOf(node.mName), world);
    for (const unsigned int mesh : listOf(node.mMeshes, node.mNumMeshes))
        placed.ofMeshes.emplace(mesh, world);
    for (const aiNode* child : listOf(node.mChildren, node.mNumChildren)) {
        if (child != nullptr)
            place(*child, world, placed);
    }
}

bool isUsable(const aiMatrix4x4& matrix)
{
    const float size = matrix.Determinant();
    return std::isfinite(size) && size != 0;
}

/// From the positions of a mesh to where the bone holds them, in the space of the mesh's node.
std::optional<aiMatrix4x4> transformOf(const aiBone& bone, const aiMatrix4x4& toMesh, const PlacedNodes& placed)
{
    const auto node = placed.byName.find(viewOf(bone.mName));
    if (node == placed.byName.end())
        return std::nullopt;
    const aiMatrix4x4 transform = toMesh * node->second * bone.mOffsetMatrix;
    return isUsable(transform) ? std::optional(transform) : std::nullopt;
}

void poseMesh(aiMesh& mesh, const aiMatrix4x4& world, const PlacedNodes& placed)
{
    if (!isUsable(world) || mesh.mVertices == nullptr)
        return;
    aiMatrix4x4 toMesh = world;
    toMesh.Inverse();
    std::vector<aiMatrix4x4> sums(mesh.mNumVertices, aiMatrix4x4(0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0));
    std::vector<float> weights(mesh.mNumVertices);
    bool isMoved = false;
    for (const aiBone* bone : listOf(mesh.mBones, mesh.mNumBones)) {
        const auto transform = bone == nullptr ? std::nullopt : transformOf(*bone, toMesh, placed);
        if (!transform)
            return;
        isMoved = isMoved || !transform->Equal(aiMatrix4x4(), 1e-4F);
        for (const aiVertexWeight& weight : listOf(bone->mWeights, bone->mNumWeights)) {
            if (weight.mVertexId >= mesh.mNumVertices || !(weight.mWeight > 0))
                continue;
            sums[weight.mVertexId] = sums[weight.mVertexId] + *transform * weight.mWeight;
            weights[weight.mVertexId] += weight.mWeight;
        }
    }
    for (std::size_t index = 0; isMoved && index < sums.size(); ++index) {
        if (!(weights[index] > 0))
            continue;
        const aiMatrix4x4 transform = sums[index] * (1 / weights[index]);
        mesh.mVertices[index] = transform * mesh.mVertices[index];
        if (mesh.mNormals != nullptr)
            mesh.mNormals[index] = (aiMatrix3x3(transform) * mesh.mNormals[index]).NormalizeSafe();
    }
}

void addOffsets(std::span<aiVector3D> values, const aiVector3D* moved, std::span<const aiVector3D> base, float weight)
{
    if (moved == nullptr)
        return;
    for (std::size_t index = 0; index < values.size(); ++index)
        values[index] += (moved[index] - base[index]) * weight;
}

void morphMesh(aiMesh& mesh)
{
    const std::span<aiVector3D> positions = listOf(mesh.mVertices, mesh.mNumVertices);
    const std::span<aiVector3D> normals = listOf(mesh.mNormals, mesh.mNumVertices);
    const std::vector<aiVector3D> basePositions(positions.begin(), positions.end());
    const std::vector<aiVector3D> baseNormals(normals.begin(), normals.end());
    for (const aiAnimMesh* target : listOf(mesh.mAnimMeshes, mesh.mNumAnimMeshes)) {
        const bool isUsable = target != nullptr && target->mNumVertices == mesh.mNumVertices;
        if (!isUsable || !std::isfinite(target->mWeight) || target->mWeight == 0)
            continue;
        addOffsets(positions, target->mVertices, basePositions, target->mWeight);
        addOffsets(normals, target->mNormals, baseNormals, target->mWeight);
    }
}

std::string countText(std::size_t count, const char* one, const char* many)
{
    return std::to_string(count) + ' ' + (count == 1 ? one : many);
}

template <typename Count>
std::size_t meshesWith(const aiScene& model, const Count& count)
{
    const auto meshes = listOf(model.mMeshes, model.mNumMeshes);
    return static_cast<std::size_t>(std::count_if(
        meshes.begin(), meshes.end(), [&](const aiMesh* mesh) { return mesh != nullptr && count(*mesh) > 0; }));
}

} // namespace

void applyMorphs(aiScene& model)
{
    // The library's weights of other formats are those of an animation, or made up.
    if (!hasSourceFormat(model, "glTF2"))
        return;
    for (aiMesh* mesh : listOf(model.mMeshes, model.mNumMeshes)) {
        if (mesh != nullptr && mesh->mNumAnimMeshes > 0)
            morphMesh(*mesh);
    }
}

void poseSkins(aiScene& model)
{
    if (meshesWith(model, [](const aiMesh& mesh) { return mesh.mNumBones; }) == 0)
        return;
    PlacedNodes placed;
    place(*model.mRootNode, aiMatrix4x4(), placed);
    for (const auto& [index, world] : placed.ofMeshes) {
        if (index < model.mNumMeshes && model.mMeshes[index] != nullptr && model.mMeshes[index]->mNumBones > 0)
            poseMesh(*model.mMeshes[index], world, placed);
    }
}

void reportMotion(const aiScene& model, ImportWarnings& warnings)
{
    const std::size_t skins = meshesWith(model, [](const aiMesh& mesh) { return mesh.mNumBones; });
    const std::size_t morphs = meshesWith(model, [](const aiMesh& mesh) { return mesh.mNumAnimMeshes; });
    std::string text;
    const auto add = [&](std::size_t count, const char* one, const char* many) {
        if (count > 0)
            text.append(text.empty() ? "" : ", ").append(countText(count, one, many));
    };
    add(model.mNumAnimations, "animation", "animations");
    add(skins, "skinned mesh", "skinned meshes");
    add(morphs, "mesh with morph targets", "meshes with morph targets");
    if (!text.empty())
        warnings.add("the model is shown at rest, without the motion of " + text);
}

} // namespace orvane

#include "orvane/import/mending/ModelMending.h"

#include "orvane/import/mending/Lists.h"
#include "orvane/import/mending/Texts.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>

#include <assimp/scene.h>

namespace orvane {
namespace {

using NodeNames = std::unordered_set<std::string_view>;

template <typename Element>
void clear(Element**& elements, unsigned int& count)
{
    for (Element* element : listOf(elements, count))
        delete element;
    delete[] elements;
    elements = nullptr;
    count = 0;
}

/// Replaces missing elements by empty ones, so that the others keep their indices.
template <typename Element>
void fillGaps(Element** elements, unsigned int& count)
{
    count = static_cast<unsigned int>(listOf(elements, count).size());
    for (Element*& element : listOf(elements, count)) {
        if (element == nullptr)
            element = new Element;
    }
}

/// Removes elements, which aren't deleted, and keeps the order of the others.
template <typename Element, typename Condition>
void removeIf(Element* elements, unsigned int& count, const Condition& condition)
{
    const std::span<Element> all = listOf(elements, count);
    count = static_cast<unsigned int>(std::remove_if(all.begin(), all.end(), condition) - all.begin());
}

void removeFaces(aiMesh& mesh)
{
    delete[] mesh.mFaces;
    mesh.mFaces = nullptr;
    mesh.mNumFaces = 0;
}

bool fits(const aiFace& face, const aiMesh& mesh)
{
    const auto indices = listOf(face.mIndices, face.mNumIndices);
    return !indices.empty()
        && std::all_of(indices.begin(), indices.end(), [&](unsigned int index) { return index < mesh.mNumVertices; });
}

/// Returns the number of faces that were removed.
std::size_t removeUnusableFaces(aiMesh& mesh)
{
    const std::span<aiFace> faces = listOf(mesh.mFaces, mesh.mNumFaces);
    auto kept = std::find_if(faces.begin(), faces.end(), [&](const aiFace& face) { return !fits(face, mesh); });
    for (auto face = kept; face != faces.end(); ++face) {
        if (!fits(*face, mesh))
            continue;
        // Exchanged rather than assigned, which would copy the indices.
        std::swap(kept->mNumIndices, face->mNumIndices);
        std::swap(kept->mIndices, face->mIndices);
        ++kept;
    }
    mesh.mNumFaces = static_cast<unsigned int>(kept - faces.begin());
    return faces.size() - mesh.mNumFaces;
}

unsigned int primitivesOf(const aiMesh& mesh)
{
    unsigned int types = mesh.mPrimitiveTypes & aiPrimitiveType_NGONEncodingFlag;
    for (const aiFace& face : listOf(mesh.mFaces, mesh.mNumFaces))
        types |= static_cast<unsigned int>(AI_PRIMITIVE_TYPE_FOR_N_INDICES(face.mNumIndices));
    // Of an empty mesh as well: a step fails when it finds no type at all.
    return mesh.mNumFaces == 0 ? unsigned{aiPrimitiveType_POINT} : types;
}

void makeEmpty(aiMesh& mesh)
{
    mesh.mNumVertices = 0;
    removeFaces(mesh);
}

void mendMesh(aiMesh& mesh, ImportWarnings& warnings)
{
    clear(mesh.mBones, mesh.mNumBones);
    clear(mesh.mAnimMeshes, mesh.mNumAnimMeshes);
    if (mesh.mVertices == nullptr || mesh.mNumVertices == 0) {
        warnings.add("left out meshes without positions", viewOf(mesh.mName));
        makeEmpty(mesh);
    } else if (listOf(mesh.mFaces, mesh.mNumFaces).empty()) {
        removeFaces(mesh);
    } else if (removeUnusableFaces(mesh) > 0) {
        warnings.add("left out faces with an index out of range in the meshes", viewOf(mesh.mName));
        // Without a face, what is left isn't meant as points.
        if (mesh.mNumFaces == 0)
            makeEmpty(mesh);
    }
    mesh.mPrimitiveTypes = primitivesOf(mesh);
}

void mendNode(aiNode& node, const aiScene& model, NodeNames& names, ImportWarnings& warnings)
{
    names.insert(viewOf(node.mName));
    const unsigned int meshes = node.mNumMeshes;
    removeIf(node.mMeshes, node.mNumMeshes, [&](unsigned int index) { return index >= model.mNumMeshes; });
    if (node.mNumMeshes < meshes)
        warnings.add("left out meshes that don't exist in the nodes", viewOf(node.mName));
    removeIf(node.mChildren, node.mNumChildren, [](const aiNode* child) { return child == nullptr; });
    for (aiNode* child : listOf(node.mChildren, node.mNumChildren))
        mendNode(*child, model, names, warnings);
}

template <typename Element>
void mendPlaced(
    Element** elements, unsigned int& count, const NodeNames& names, std::string_view warning, ImportWarnings& warnings)
{
    const auto isUnplaced = [&](Element* element) {
        if (element != nullptr && names.contains(viewOf(element->mName)))
            return false;
        if (element != nullptr)
            warnings.add(warning, viewOf(element->mName));
        delete element;
        return true;
    };
    removeIf(elements, count, isUnplaced);
}

void checkBones(const aiScene& model, const NodeNames& names, ImportWarnings& warnings)
{
    for (const aiMesh* mesh : listOf(model.mMeshes, model.mNumMeshes)) {
        for (const aiBone* bone : listOf(mesh->mBones, mesh->mNumBones)) {
            if (bone != nullptr && !names.contains(viewOf(bone->mName)))
                warnings.add("left out bones without a node", viewOf(bone->mName));
        }
    }
}

} // namespace

void mendModel(aiScene& model, ImportWarnings& warnings)
{
    fillGaps(model.mMeshes, model.mNumMeshes);
    fillGaps(model.mMaterials, model.mNumMaterials);
    fillGaps(model.mTextures, model.mNumTextures);
    NodeNames names;
    mendNode(*model.mRootNode, model, names, warnings);
    mendPlaced(model.mLights, model.mNumLights, names, "left out lights without a node", warnings);
    mendPlaced(model.mCameras, model.mNumCameras, names, "left out cameras without a node", warnings);
    checkBones(model, names, warnings);
    for (aiMesh* mesh : listOf(model.mMeshes, model.mNumMeshes))
        mendMesh(*mesh, warnings);
}

bool hasContent(const aiScene& model)
{
    const auto meshes = listOf(model.mMeshes, model.mNumMeshes);
    return model.mNumLights > 0 || model.mNumCameras > 0
        || std::any_of(meshes.begin(), meshes.end(), [](const aiMesh* mesh) { return mesh->mNumVertices > 0; });
}

} // namespace orvane

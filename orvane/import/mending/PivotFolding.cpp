#include "orvane/import/mending/PivotFolding.h"

#include "orvane/import/mending/Lists.h"
#include "orvane/import/mending/Texts.h"

#include <algorithm>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include <assimp/scene.h>

namespace orvane {
namespace {

// The products of a long chain lose less in double precision.
using Matrix = aiMatrix4x4t<double>;

constexpr std::string_view mark = "_$AssimpFbx$_";

/// The name of what the added node does, such as "PreRotation"; empty for a node of the model.
std::string_view partOf(const aiNode& node)
{
    const std::string_view name = viewOf(node.mName);
    const std::size_t place = name.find(mark);
    return place == std::string_view::npos ? std::string_view() : name.substr(place + mark.size());
}

bool isForMeshes(std::string_view part)
{
    return part.starts_with("Geometric");
}

bool isInverseForMeshes(std::string_view part)
{
    return isForMeshes(part) && part.ends_with("Inverse");
}

bool isLink(const aiNode& node)
{
    const std::string_view part = partOf(node);
    return !part.empty() && !isInverseForMeshes(part) && node.mNumMeshes == 0
        && listOf(node.mChildren, node.mNumChildren).size() == 1;
}

std::vector<aiNode*> takeChildren(aiNode& node)
{
    const auto children = listOf(node.mChildren, node.mNumChildren);
    std::vector<aiNode*> result(children.begin(), children.end());
    delete[] node.mChildren;
    node.mChildren = nullptr;
    node.mNumChildren = 0;
    return result;
}

void setChildren(aiNode& node, const std::vector<aiNode*>& children)
{
    node.mNumChildren = static_cast<unsigned int>(children.size());
    node.mChildren = children.empty() ? nullptr : new aiNode*[children.size()];
    std::copy(children.begin(), children.end(), node.mChildren);
    for (aiNode* child : children)
        child->mParent = &node;
}

/// Replaces a chain of added nodes by the node at its end. `forMeshes` is the part of it that isn't for its children.
aiNode* foldChain(aiNode* first, Matrix& forMeshes)
{
    Matrix transform;
    while (isLink(*first)) {
        const Matrix own = first->mTransformation;
        (isForMeshes(partOf(*first)) ? forMeshes : transform) *= own;
        const std::unique_ptr<aiNode> link(first);
        first = takeChildren(*link).front();
    }
    const Matrix own = first->mTransformation;
    first->mTransformation = transform * own;
    return first;
}

/// Replaces the nodes that undo that part for the children by their own children.
void dropInverses(aiNode& node)
{
    std::vector<aiNode*> kept;
    for (std::vector<aiNode*> children = takeChildren(node); !children.empty();) {
        aiNode* const child = children.front();
        children.erase(children.begin());
        if (!isInverseForMeshes(partOf(*child)) || child->mNumMeshes > 0) {
            kept.push_back(child);
            continue;
        }
        const std::unique_ptr<aiNode> inverse(child);
        const std::vector<aiNode*> below = takeChildren(*inverse);
        children.insert(children.begin(), below.begin(), below.end());
    }
    setChildren(node, kept);
}

void moveMeshes(aiNode& node, const Matrix& transform)
{
    if (node.mNumMeshes == 0)
        return;
    auto meshes = std::make_unique<aiNode>();
    meshes->mTransformation = transform;
    std::swap(meshes->mMeshes, node.mMeshes);
    std::swap(meshes->mNumMeshes, node.mNumMeshes);
    std::vector<aiNode*> children = takeChildren(node);
    children.insert(children.begin(), meshes.release());
    setChildren(node, children);
}

} // namespace

void foldPivots(aiNode& root)
{
    std::vector<aiNode*> children = takeChildren(root);
    for (aiNode*& child : children) {
        Matrix forMeshes;
        child = foldChain(child, forMeshes);
        if (!forMeshes.IsIdentity()) {
            dropInverses(*child);
            moveMeshes(*child, forMeshes);
        }
        foldPivots(*child);
    }
    setChildren(root, children);
}

} // namespace orvane

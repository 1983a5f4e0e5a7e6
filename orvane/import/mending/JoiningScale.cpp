#include "orvane/import/mending/JoiningScale.h"

#include "orvane/import/mending/Lists.h"

#include <algorithm>
#include <cmath>

#include <assimp/scene.h>

namespace orvane {
namespace {

/// The longest side of the box around a mesh; not finite if a position isn't.
float extentOf(const aiMesh& mesh)
{
    const auto positions = listOf(mesh.mVertices, mesh.mNumVertices);
    if (positions.empty())
        return 0;
    aiVector3D least = positions.front();
    aiVector3D greatest = least;
    for (const aiVector3D& position : positions) {
        least = {std::min(least.x, position.x), std::min(least.y, position.y), std::min(least.z, position.z)};
        greatest
            = {std::max(greatest.x, position.x), std::max(greatest.y, position.y), std::max(greatest.z, position.z)};
    }
    const aiVector3D sides = greatest - least;
    return std::max({sides.x, sides.y, sides.z});
}

float largestCoordinate(const aiScene& model)
{
    float largest = 0;
    for (const aiMesh* mesh : listOf(model.mMeshes, model.mNumMeshes)) {
        for (const aiVector3D& position : listOf(mesh->mVertices, mesh->mNumVertices))
            largest = std::max({largest, std::abs(position.x), std::abs(position.y), std::abs(position.z)});
    }
    return largest;
}

} // namespace

float joiningScale(const aiScene& model)
{
    constexpr float enough = 1;
    constexpr int greatestExponent = 100;
    constexpr float mostScaled = 1e30F;
    float smallest = enough;
    for (const aiMesh* mesh : listOf(model.mMeshes, model.mNumMeshes)) {
        const float extent = extentOf(*mesh);
        if (extent > 0 && extent < smallest)
            smallest = extent;
    }
    if (smallest >= enough)
        return 1;
    const float factor = std::ldexp(1.0F, std::min(-std::ilogb(smallest), greatestExponent));
    return largestCoordinate(model) * factor < mostScaled ? factor : 1;
}

void scalePositions(const aiScene& model, float factor)
{
    for (const aiMesh* mesh : listOf(model.mMeshes, model.mNumMeshes)) {
        for (aiVector3D& position : listOf(mesh->mVertices, mesh->mNumVertices))
            position *= factor;
    }
}

} // namespace orvane

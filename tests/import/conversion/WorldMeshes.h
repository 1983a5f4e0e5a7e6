#pragma once

#include "orvane/import/conversion/TransformConversion.h"

#include "meridane/scene/nodes/NxMesh.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

/// One triangle as it is seen: for each corner position, normal, place in the texture and colour, rounded, the corners
/// in an order that doesn't depend on where the triangle begins.
using WorldTriangle = std::array<std::array<long, 12>, 3>;

inline void addWorldTriangles(
    std::vector<WorldTriangle>& triangles, const NxMesh& mesh, const aiMatrix4x4& worldTransform)
{
    const auto rounded = [](float value) { return std::lround(static_cast<double>(value) * 1000); };
    const aiMatrix3x3 directions = aiMatrix3x3(worldTransform).Inverse().Transpose();
    for (int first = 0; first + 2 < mesh.indices.getNum(); first += 3) {
        WorldTriangle triangle{};
        for (int corner = 0; corner < 3; ++corner) {
            const int index = mesh.indices[first + corner];
            const aiVector3D place = worldTransform * orvane::toAiVector(mesh.positions[index]);
            const VbVec3f given = mesh.normals.getNum() > 0 ? mesh.normals[index] : VbVec3f(0, 0, 1);
            const aiVector3D normal = (directions * orvane::toAiVector(given)).Normalize();
            const VbVec2f texture = mesh.textureCoordinates.getNum() > 0 ? mesh.textureCoordinates[index] : VbVec2f();
            const VbVec4f color = mesh.colors.getNum() > 0 ? mesh.colors[index] : VbVec4f();
            triangle[static_cast<std::size_t>(corner)] = {rounded(place.x), rounded(place.y), rounded(place.z),
                rounded(normal.x), rounded(normal.y), rounded(normal.z), rounded(texture[0]), rounded(texture[1]),
                rounded(color[0]), rounded(color[1]), rounded(color[2]), rounded(color[3])};
        }
        std::rotate(triangle.begin(), std::min_element(triangle.begin(), triangle.end()), triangle.end());
        triangles.push_back(triangle);
    }
}

inline void addWorldTriangles(std::vector<WorldTriangle>& triangles, const NxGroup& group, const aiMatrix4x4& above)
{
    const aiMatrix4x4 worldTransform = above * orvane::matrixOf(group);
    for (NxNode* child : group.getChildren()) {
        if (const auto* mesh = dynamic_cast<const NxMesh*>(child))
            addWorldTriangles(triangles, *mesh, worldTransform);
        else if (const auto* inner = dynamic_cast<const NxGroup*>(child))
            addWorldTriangles(triangles, *inner, worldTransform);
    }
}

/// All triangles of a scene as they are seen, sorted.
inline std::vector<WorldTriangle> worldTriangles(const NxGroup& scene)
{
    std::vector<WorldTriangle> triangles;
    addWorldTriangles(triangles, scene, aiMatrix4x4());
    std::sort(triangles.begin(), triangles.end());
    return triangles;
}

// The corners of all meshes where they are seen, in the order of the scene.
inline std::vector<aiVector3D> placedCorners(const NxGroup& group, const aiMatrix4x4& above = {})
{
    std::vector<aiVector3D> corners;
    const aiMatrix4x4 worldTransform = above * orvane::matrixOf(group);
    for (NxNode* child : group.getChildren()) {
        if (const auto* mesh = dynamic_cast<const NxMesh*>(child)) {
            for (const int index : mesh->indices.getValues())
                corners.push_back(worldTransform * orvane::toAiVector(mesh->positions[index]));
        } else if (const auto* inner = dynamic_cast<const NxGroup*>(child)) {
            const std::vector<aiVector3D> more = placedCorners(*inner, worldTransform);
            corners.insert(corners.end(), more.begin(), more.end());
        }
    }
    return corners;
}

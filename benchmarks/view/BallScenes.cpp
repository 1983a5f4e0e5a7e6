#include "view/BallScenes.h"

#include "meridane/scene/nodes/NxTransform.h"

#include <cmath>
#include <numbers>
#include <utility>
#include <vector>

namespace bench {
namespace {

constexpr int rowsOfSmall = 50;
constexpr float smallRadius = 0.08F;

/// Calls `add` with the places of 1,000 balls.
template <typename Add>
void forEachPlace(Add add)
{
    constexpr int across = 10;
    constexpr float distance = 2.0F / across;
    for (int i = 0; i < across * across * across; ++i) {
        const auto place = [](int number) { return -1 + distance * (static_cast<float>(number % across) + 0.5F); };
        add(place(i), place(i / across), place(i / across / across));
    }
}

} // namespace

NxRef<NxMesh> bumpyBall(int rows, float radius, float x, float y, float z)
{
    constexpr float bumps = 0.05F;
    constexpr float smallBumps = 0.003F;
    const int columns = 2 * rows;
    std::vector<VbVec3f> positions;
    std::vector<VbVec3f> normals;
    std::vector<int> indices;
    for (int row = 0; row <= rows; ++row) {
        for (int column = 0; column <= columns; ++column) {
            const float up = std::numbers::pi_v<float> * static_cast<float>(row) / static_cast<float>(rows);
            const float around
                = 2 * std::numbers::pi_v<float> * static_cast<float>(column % columns) / static_cast<float>(columns);
            const VbVec3f normal(std::sin(up) * std::cos(around), std::cos(up), std::sin(up) * std::sin(around));
            const float size = radius
                * (1 + bumps * std::sin(9 * up) * std::cos(11 * around)
                    + smallBumps * std::sin(60 * up) * std::sin(60 * around));
            positions.emplace_back(x + size * normal[0], y + size * normal[1], z + size * normal[2]);
            normals.push_back(normal);
            if (row == rows || column == columns)
                continue;
            const int first = row * (columns + 1) + column;
            const int below = first + columns + 1;
            indices.insert(indices.end(), {first, first + 1, below, first + 1, below + 1, below});
        }
    }
    NxRef<NxMesh> mesh = new NxMesh;
    mesh->positions.setValues(std::move(positions));
    mesh->normals.setValues(std::move(normals));
    mesh->indices.setValues(std::move(indices));
    return mesh;
}

NxRef<NxGroup> oneLargeBall()
{
    constexpr int rows = 1600;
    NxRef<NxGroup> scene = new NxGroup;
    scene->addChild(bumpyBall(rows, 1, 0, 0, 0).get());
    return scene;
}

NxRef<NxGroup> manyBalls()
{
    NxRef<NxGroup> scene = new NxGroup;
    forEachPlace(
        [&](float x, float y, float z) { scene->addChild(bumpyBall(rowsOfSmall, smallRadius, x, y, z).get()); });
    return scene;
}

NxRef<NxGroup> ballInstances()
{
    NxRef<NxGroup> scene = new NxGroup;
    const NxRef<NxMesh> ball = bumpyBall(rowsOfSmall, smallRadius, 0, 0, 0);
    forEachPlace([&](float x, float y, float z) {
        NxRef<NxTransform> transform = new NxTransform;
        transform->translation.setValue(VbVec3f(x, y, z));
        transform->addChild(ball.get());
        scene->addChild(transform.get());
    });
    return scene;
}

} // namespace bench

#include "DrawingScenes.h"

#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <cmath>
#include <vector>

namespace bench {

NxRef<NxMesh> wavyMesh(int columns, int rows, float left, float bottom, float size)
{
    constexpr float waves = 40;
    constexpr float height = 0.01F;
    std::vector<VbVec3f> positions;
    std::vector<VbVec3f> normals;
    std::vector<int> indices;
    for (int row = 0; row <= rows; ++row) {
        for (int column = 0; column <= columns; ++column) {
            const float x = left + size * static_cast<float>(column) / static_cast<float>(columns);
            const float y = bottom + size * static_cast<float>(row) / static_cast<float>(rows);
            const float slope = -height * waves * std::cos(x * waves);
            const float length = std::sqrt(slope * slope + 1);
            positions.emplace_back(x, y, height * std::sin(x * waves));
            normals.emplace_back(slope / length, 0.0F, 1 / length);
            if (row == rows || column == columns)
                continue;
            const int first = row * (columns + 1) + column;
            const int above = first + columns + 1;
            indices.insert(indices.end(), {first, first + 1, above, first + 1, above + 1, above});
        }
    }
    NxRef<NxMesh> mesh = new NxMesh;
    mesh->positions.setValues(std::move(positions));
    mesh->normals.setValues(std::move(normals));
    mesh->indices.setValues(std::move(indices));
    return mesh;
}

NxRef<NxGroup> tiledScene(int across, int columns, int rows)
{
    NxRef<NxGroup> scene = new NxGroup;
    const float size = 2.0F / static_cast<float>(across);
    for (int i = 0; i < across * across; ++i) {
        const float left = -1 + size * static_cast<float>(i % across);
        const float bottom = -1 + size * static_cast<float>(i / across);
        scene->addChild(wavyMesh(columns, rows, left, bottom, size).get());
    }
    return scene;
}

NxRef<NxGroup> spreadScene(int inView, int all)
{
    constexpr int across = 10;
    constexpr float away = 1000;
    NxRef<NxGroup> scene = new NxGroup;
    const NxRef<NxMesh> mesh = wavyMesh(5, 5, 0, 0, 0.15F);
    for (int i = 0; i < all; ++i) {
        const float shift = i < inView ? 0 : away;
        NxRef<NxTransform> transform = new NxTransform;
        transform->translation.setValue(VbVec3f(shift - 1 + 0.2F * static_cast<float>(i % across),
            -1 + 0.2F * static_cast<float>(i / across % across), -shift - static_cast<float>(i / (across * across))));
        transform->addChild(new NxMaterial);
        transform->addChild(mesh.get());
        scene->addChild(transform.get());
    }
    return scene;
}

std::size_t bytesOf(const NxMesh& mesh)
{
    return mesh.positions.valueBytes() + mesh.normals.valueBytes() + mesh.textureCoordinates.valueBytes()
        + mesh.colors.valueBytes() + mesh.indices.valueBytes();
}

} // namespace bench

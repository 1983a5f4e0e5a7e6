#pragma once

#include "import/Gltf.h"

#include <QBuffer>
#include <QByteArray>
#include <QColor>
#include <QImage>

/// Models in glTF with a texture.
namespace gltf {

/// A red image of half opacity.
inline QByteArray clearImage()
{
    QImage image(2, 2, QImage::Format_RGBA8888);
    image.fill(QColor(255, 0, 0, 128));
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    image.save(&png, "png");
    return dataUri("image/png", png.data());
}

/// A triangle with the places (0, 0), (1, 0) and (0, 1) in the texture, v downwards, and that material.
inline QByteArray textured(const QByteArray& material)
{
    QByteArray result = model(R"({"mesh": 0})",
        R"("scenes": [{"nodes": [0]}], "extensionsUsed": ["KHR_texture_transform", "KHR_materials_pbrSpecularGlossiness"], "textures": [{"source": 0}],
        "images": [{"uri": )"
            + clearImage() + R"(}], "materials": [)" + material + "],",
        R"(, "material": 0)");
    result.replace(R"("POSITION": 0)", R"("POSITION": 0, "TEXCOORD_0": 2)");
    result.replace(R"("type": "SCALAR"}])", R"("type": "SCALAR"},
        {"bufferView": 2, "componentType": 5126, "count": 3, "type": "VEC2"}])");
    result.replace(R"("byteLength": 6}])", R"("byteLength": 6},
        {"buffer": 0, "byteOffset": 0, "byteLength": 36, "byteStride": 12}])");
    return result;
}

} // namespace gltf

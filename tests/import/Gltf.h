#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

/// Models in glTF made by the tests: text with the binary data inside.
namespace gltf {

inline QByteArray dataUri(const char* type, const QByteArray& bytes)
{
    return QByteArray("\"data:") + type + ";base64," + bytes.toBase64() + "\"";
}

/// A triangle of three positions and three indices, as mesh 0, in a model with these nodes. `more` holds further
/// members of the model, each followed by a comma, `primitive` further ones of the mesh's only part.
inline QByteArray model(const QByteArray& nodes, const QByteArray& more = {}, const QByteArray& primitive = {})
{
    const float positions[] = {0, 0, 0, 1, 0, 0, 0, 1, 0};
    const quint16 indices[] = {0, 1, 2};
    const QByteArray buffer = QByteArray(reinterpret_cast<const char*>(positions), sizeof positions)
        + QByteArray(reinterpret_cast<const char*>(indices), sizeof indices) + QByteArray(2, '\0');
    return R"({"asset": {"version": "2.0"}, "scene": 0, )" + more + R"("nodes": [)" + nodes + R"(],
        "meshes": [{"name": "triangle", "primitives": [{"attributes": {"POSITION": 0}, "indices": 1)"
        + primitive + R"(}]}],
        "accessors": [
            {"bufferView": 0, "componentType": 5126, "count": 3, "type": "VEC3", "min": [0, 0, 0], "max": [1, 1, 0]},
            {"bufferView": 1, "componentType": 5123, "count": 3, "type": "SCALAR"}],
        "bufferViews": [{"buffer": 0, "byteOffset": 0, "byteLength": 36}, {"buffer": 0, "byteOffset": 36, "byteLength": 6}],
        "buffers": [{"byteLength": 44, "uri": )"
        + dataUri("application/octet-stream", buffer) + "}]}";
}

} // namespace gltf

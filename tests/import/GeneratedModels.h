#pragma once

#include "import/Collada.h"
#include "import/Fbx.h"
#include "import/Gltf.h"

#include <QByteArray>
#include <QList>

/// Small models of every kind that tests write themselves: each format, and each case that once was seen as nothing.
namespace generated {

struct Model {
    QByteArray about;
    QByteArray fileName;
    QByteArray bytes;
};

inline QByteArray little(quint64 number, int bytes)
{
    QByteArray result;
    for (int i = 0; i < bytes; ++i)
        result += static_cast<char>(number >> (8 * i) & 0xff);
    return result;
}

inline QByteArray floats(std::initializer_list<float> numbers)
{
    QByteArray result;
    for (const float number : numbers)
        result.append(reinterpret_cast<const char*>(&number), sizeof number);
    return result;
}

/// A part of a file in the format of 3D Studio.
inline QByteArray chunk(quint64 kind, const QByteArray& content)
{
    return little(kind, 2) + little(static_cast<quint64>(content.size()) + 6, 4) + content;
}

inline QByteArray ply(const QByteArray& format, const QByteArray& elements, const QByteArray& rows)
{
    return "ply\nformat " + format + " 1.0\n" + elements + "end_header\n" + rows;
}

inline QByteArray vertices(int count, const QByteArray& more = {})
{
    return "element vertex " + QByteArray::number(count) + "\nproperty float x\nproperty float y\nproperty float z\n"
        + more;
}

inline void addText(QList<Model>& models)
{
    const QByteArray corners = "v 0 0 0\nv 1 0 0\nv 0 1 0\nv 1 1 0\n";
    const QByteArray off = "OFF\n4 2 0\n0 0 0\n1 0 0\n1 1 0\n0 1 0\n3 0 1 2\n3 0 2 3\n";
    const QByteArray facet = "solid a\nfacet normal 0 0 1\nouter loop\nvertex 0 0 0\nvertex 1 0 0\nvertex 0 1 0\n"
                             "endloop\nendfacet\nendsolid a\n";
    models += {{"obj", "m.obj", corners + "f 1 2 4 3\n"}, {"obj of vertices", "m.obj", corners},
        {"obj of a single vertex", "m.obj", "# one vertex\nv 1 2 3\n"},
        {"obj of lines", "m.obj", corners + "l 1 2 3 4\n"}, {"obj of points", "m.obj", corners + "p 1 2 3\n"},
        {"obj with an index out of range", "m.obj", corners + "f 1 2 3\nf 1 2 99\n"},
        {"obj without its materials", "m.obj", "mtllib none.mtl\nusemtl red\n" + corners + "f 1 2 3\n"},
        {"obj far from the origin", "m.obj", "v 10000000 0 0\nv 10000002 0 0\nv 10000000 2 0\nf 1 2 3\n"},
        {"obj of a tiny thing", "m.obj", "v 0 0 0\nv 1e-6 0 0\nv 0 1e-6 0\nf 1 2 3\n"},
        {"obj of a plane along the ground", "m.obj", "v 0 0 0\nv 1 0 0\nv 1 0 1\nv 0 0 1\nf 1 2 3 4\n"},
        {"obj of a box around a thing", "m.obj",
            corners
                + "f 1 2 3\nv -9 -9 -9\nv 9 -9 -9\nv 9 9 -9\nv -9 9 -9\nv -9 -9 9\nv 9 -9 9\nv 9 9 9\nv -9 9 9\n"
                  "f 5 6 7 8\nf 9 10 11 12\nf 5 6 10 9\nf 7 8 12 11\n"},
        {"off", "m.off", off}, {"stl as text", "m.stl", facet},
        {"stl, binary", "m.stl",
            QByteArray(80, ' ') + little(1, 4) + floats({0, 0, 1, 0, 0, 0, 1, 0, 0, 0, 1, 0}) + little(0, 2)},
        {"x", "m.x", "xof 0303txt 0032\nMesh a {\n3;\n0;0;0;,\n1;0;0;,\n0;1;0;;\n1;\n3;0,1,2;;\n}\n"}};
}

inline void addPly(QList<Model>& models)
{
    const QByteArray faces = "element face 1\nproperty list uchar int vertex_indices\n";
    const QByteArray color = "property uchar red\nproperty uchar green\nproperty uchar blue\n";
    const QByteArray alpha = "property float red\nproperty float green\nproperty float blue\nproperty float alpha\n";
    const QByteArray signedColor = "property char red\nproperty char green\nproperty char blue\n";
    const QByteArray cloud = "0 0 0\n1 0 0\n0 1 0\n";
    models += {{"ply", "m.ply", ply("ascii", vertices(3) + faces, cloud + "3 0 1 2\n")},
        {"ply of points", "m.ply", ply("ascii", vertices(3), cloud)},
        {"ply of points, binary", "m.ply",
            ply("binary_little_endian", vertices(2, color),
                floats({0, 0, 0}) + QByteArray(3, '\x70') + floats({1, 1, 1}) + QByteArray(3, '\x20'))},
        {"ply of black points", "m.ply", ply("ascii", vertices(3, color), "0 0 0 0 0 0\n1 0 0 0 0 0\n0 1 0 0 0 0\n")},
        {"ply of a single point", "m.ply", ply("ascii", vertices(1), "4 5 6\n")},
        {"ply with signed colours", "m.ply",
            ply("ascii", vertices(3, signedColor) + faces, "0 0 0 -1 0 0\n1 0 0 -114 0 0\n0 1 0 3 4 5\n3 0 1 2\n")},
        {"ply without opacity", "m.ply",
            ply("ascii", vertices(3, alpha) + faces, "0 0 0 0 0 0 0\n1 0 0 0 0 0 0\n0 1 0 0 0 0 0\n3 0 1 2\n")}};
}

inline void addGltf(QList<Model>& models)
{
    const QByteArray node = R"({"mesh": 0})";
    const QByteArray scene = R"("scenes": [{"nodes": [0]}],)";
    const auto mode = [&](int number) { return gltf::model(node, scene, ", \"mode\": " + QByteArray::number(number)); };
    const auto material = [&](const QByteArray& members) {
        return gltf::model(node, scene + R"("materials": [{)" + members + "}],", R"(, "material": 0)");
    };
    models += {{"gltf", "m.gltf", gltf::model(node, scene)}, {"gltf of points", "m.gltf", mode(0)},
        {"gltf of lines", "m.gltf", mode(3)}, {"gltf of a strip", "m.gltf", mode(5)},
        {"gltf of a fan", "m.gltf", mode(6)}, {"gltf without a scene", "m.gltf", gltf::model(node)},
        {"gltf that is nearly invisible", "m.gltf",
            material(R"("alphaMode": "BLEND", "pbrMetallicRoughness": {"baseColorFactor": [1, 1, 1, 0]})")},
        {"gltf with an opacity that doesn't count", "m.gltf",
            material(R"("pbrMetallicRoughness": {"baseColorFactor": [1, 1, 1, 0]})")},
        {"gltf below the cut-off", "m.gltf",
            material(R"("alphaMode": "MASK", "pbrMetallicRoughness": {"baseColorFactor": [1, 1, 1, 0.25]})")},
        {"gltf of a mirror", "m.gltf",
            material(R"("pbrMetallicRoughness": {"metallicFactor": 1, "roughnessFactor": 0})")},
        {"gltf without light", "m.gltf", material(R"("extensions": {"KHR_materials_unlit": {}})")},
        {"gltf with a missing texture", "m.gltf",
            gltf::model(node, scene + R"("images": [{"uri": "none.png"}], "textures": [{"source": 0}],
                "materials": [{"pbrMetallicRoughness": {"baseColorTexture": {"index": 0}}}],)",
                R"(, "material": 0)")},
        {"gltf with a scale of 0 along one axis", "m.gltf", gltf::model(R"({"mesh": 0, "scale": [1, 1, 0]})", scene)},
        {"gltf that is mirrored", "m.gltf", gltf::model(R"({"mesh": 0, "scale": [-1, 1, 1]})", scene)},
        {"gltf with a camera inside", "m.gltf",
            gltf::model(R"({"mesh": 0}, {"camera": 0, "translation": [0.2, 0.2, 0]})",
                R"("scenes": [{"nodes": [0, 1]}], "cameras": [{"type": "perspective",
                "perspective": {"yfov": 1, "znear": 0.1}}],)")},
        {"gltf that is lit from behind", "m.gltf",
            gltf::model(
                R"({"mesh": 0}, {"rotation": [0, 1, 0, 0], "extensions": {"KHR_lights_punctual": {"light": 0}}})",
                R"("scenes": [{"nodes": [0, 1]}], "extensionsUsed": ["KHR_lights_punctual"],
                "extensions": {"KHR_lights_punctual": {"lights": [{"type": "directional"}]}},)")}};
}

inline void addOthers(QList<Model>& models)
{
    const QByteArray mesh = chunk(0x4110, little(3, 2) + floats({0, 0, 0, 1, 0, 0, 0, 1, 0}))
        + chunk(0x4120, little(1, 2) + little(0, 2) + little(1, 2) + little(2, 2) + little(0, 2));
    models += {
        {"3ds", "m.3ds", chunk(0x4d4d, chunk(0x3d3d, chunk(0x4000, QByteArray("a\0", 2) + chunk(0x4100, mesh))))},
        {"dae", "m.dae", collada::model({"<diffuse><color>1 0 0 1</color></diffuse>"})},
        {"dae that is invisible", "m.dae", collada::model({collada::transparency("0")})},
        {"dae that is invisible the other way", "m.dae", collada::model({collada::transparency("1", "RGB_ZERO")})},
        {"fbx", "m.fbx", fbx::model({{"a", {}}})},
        {"fbx in centimetres with z upwards", "m.fbx", fbx::model({{"a", {}}}, fbx::space("2", "1", "-1", "0", "1"))},
        {"fbx with a pivot", "m.fbx", fbx::model({{"a", fbx::vector("RotationPivot", "5,0,0")}})}};
}

/// All of them.
inline QList<Model> models()
{
    QList<Model> models;
    addText(models);
    addPly(models);
    addGltf(models);
    addOthers(models);
    return models;
}

} // namespace generated

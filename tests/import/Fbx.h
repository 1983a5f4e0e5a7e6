#pragma once

#include <QByteArray>
#include <QByteArrayList>

/// Models in FBX made by the tests: text, with a triangle.
namespace fbx {

inline QByteArray vector(const char* name, const char* value)
{
    return QByteArray("P: \"") + name + "\", \"Vector3D\", \"Vector\", \"\"," + value + '\n';
}

inline QByteArray number(const char* name, const char* type, const char* kind, const char* value)
{
    return QByteArray("P: \"") + name + "\", \"" + type + "\", \"" + kind + "\", \"\"," + value + '\n';
}

/// Settings of a file: its axes, as the numbers that the format has for them, and how many centimetres a unit is.
inline QByteArray space(const char* up, const char* front, const char* frontSign, const char* right, const char* unit)
{
    return number("UpAxis", "int", "Integer", up) + number("UpAxisSign", "int", "Integer", "1")
        + number("FrontAxis", "int", "Integer", front) + number("FrontAxisSign", "int", "Integer", frontSign)
        + number("CoordAxis", "int", "Integer", right) + number("CoordAxisSign", "int", "Integer", "1")
        + number("UnitScaleFactor", "double", "Number", unit);
}

/// A model with these nodes, in which each but the first is a child of the one before it. Each has the triangle. A node
/// is its name and its properties.
struct Node {
    QByteArray name;
    QByteArray properties;
};

inline QByteArray model(const QList<Node>& nodes, const QByteArray& settings = {})
{
    QByteArray text = "; FBX 7.3.0 project file\nFBXHeaderExtension: {\nFBXHeaderVersion: 1003\nFBXVersion: 7300\n}\n"
                      "GlobalSettings: {\nVersion: 1000\nProperties70: {\n"
        + settings
        + "}\n}\nObjects: {\nGeometry: 100, \"Geometry::triangle\", \"Mesh\" {\nVertices: *9 {\na: "
          "0,0,0,1,0,0,0,1,0\n}\n"
          "PolygonVertexIndex: *3 {\na: 0,1,-3\n}\nGeometryVersion: 124\n}\n";
    QByteArray connections = "Connections: {\n";
    for (qsizetype index = 0; index < nodes.size(); ++index) {
        const QByteArray id = QByteArray::number(200 + index);
        text += "Model: " + id + ", \"Model::" + nodes[index].name + "\", \"Mesh\" {\nVersion: 232\nProperties70: {\n"
            + "P: \"RotationActive\", \"bool\", \"\", \"\",1\n" + nodes[index].properties + "}\n}\n";
        connections += "C: \"OO\"," + id + ',' + (index == 0 ? QByteArray("0") : QByteArray::number(199 + index))
            + "\nC: \"OO\",100," + id + '\n';
    }
    return text + "}\n" + connections + "}\n";
}

} // namespace fbx

#include "import/Gltf.h"
#include "import/conversion/ReadModels.h"

#include "orvane/import/mending/ObjMending.h"

#include "meridane/scene/nodes/NxMesh.h"

#include <QTest>

namespace {

const QByteArray triangle = "v 0 0 0\nv 1 0 0\nv 0 1 0\n";

QByteArray ply(const QByteArray& faces, int count)
{
    return "ply\nformat ascii 1.0\nelement vertex 4\nproperty float x\nproperty float y\nproperty float z\n"
           "element face "
        + QByteArray::number(count)
        + "\nproperty list uchar int vertex_indices\nend_header\n0 0 0\n1 0 0\n0 1 0\n1 1 0\n" + faces;
}

/// A model in glTF as a binary file.
QByteArray binary(QByteArray text)
{
    const qsizetype uri = text.indexOf(", \"uri\"");
    const qsizetype data = text.indexOf("base64,", uri) + 7;
    const qsizetype end = text.indexOf('"', data);
    const QByteArray buffer = QByteArray::fromBase64(text.mid(data, end - data));
    text.remove(uri, end + 1 - uri);
    text.append((4 - text.size() % 4) % 4, ' ');
    const auto word = [](qsizetype number) {
        const auto value = static_cast<quint32>(number);
        return QByteArray(reinterpret_cast<const char*>(&value), sizeof value);
    };
    return "glTF" + word(2) + word(28 + text.size() + buffer.size()) + word(text.size()) + "JSON" + text
        + word(buffer.size()) + QByteArray("BIN\0", 4) + buffer;
}

} // namespace

/// Models of which some parts are bad: the others are read.
class TestPartialModels : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void oneBadPartIsLeftOut_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("model");
        QTest::addColumn<int>("indices"); // of all meshes
        QTest::addColumn<QString>("warning");
        const QString faces = QStringLiteral("left out faces with an index out of range in the meshes: ");
        QTest::newRow("an index behind the end") << QByteArray("model.ply") << ply("3 0 1 2\n3 1 2 9\n", 2) << 3
                                                 << faces + QStringLiteral("1 without a name");
        QTest::newRow("an index behind the end of an object")
            << QByteArray("model.obj") << triangle + "o good\nf 1 2 3\no bad\nf 1 2 9\no more\nf 3 2 1\n"
            << 6 << faces + QStringLiteral("\"bad\"");
        QTest::newRow("an index before the beginning")
            << QByteArray("model.obj") << triangle + "o good\nf -3 -2 -1\nf -1 -2 -9\n"
            << 3 << faces + QStringLiteral("\"good\"");
        const QByteArray twoNodes = R"("scenes": [{"nodes": [0, 1]}], )";
        const auto mesh = [](const char* primitive) {
            QByteArray model = gltf::model(
                R"({"name": "a", "mesh": 0}, {"name": "b", "mesh": 1})", R"("scenes": [{"nodes": [0, 1]}], )");
            return model.replace("\"indices\": 1}]}]",
                QByteArray("\"indices\": 1}]}, {\"name\": \"bad\", \"primitives\": [") + primitive + "]}]");
        };
        const QString empty = QStringLiteral("left out meshes without anything to draw in the nodes: \"b\"");
        QTest::newRow("a glTF mesh without positions")
            << QByteArray("model.gltf") << mesh(R"({"attributes": {}})") << 3 << empty;
        QTest::newRow("a glTF mesh of missing numbers")
            << QByteArray("model.gltf") << mesh(R"({"attributes": {"POSITION": 9}})") << 3 << empty;
        QTest::newRow("glTF indices that are positions")
            << QByteArray("model.gltf") << mesh(R"({"attributes": {"POSITION": 0}, "indices": 8})") << 3 << empty;
        QTest::newRow("a glTF node of a missing mesh")
            << QByteArray("model.gltf")
            << gltf::model(R"({"name": "a", "mesh": 0}, {"name": "b", "mesh": 7})", twoNodes) << 3 << empty;
        QTest::newRow("a missing glTF node")
            << QByteArray("model.gltf")
            << gltf::model(R"({"name": "a", "mesh": 0, "children": [5]}, {"name": "b"})", twoNodes) << 3
            << QStringLiteral("left out nodes that don't exist in the nodes: \"a\"");
        QTest::newRow("a missing glTF material")
            << QByteArray("model.gltf")
            << gltf::model(R"({"name": "a", "mesh": 0}, {"name": "b"})", twoNodes, R"(, "material": 3)") << 3
            << QStringLiteral("left out materials that don't exist in the meshes: \"triangle\"");
        QTest::newRow("a binary glTF mesh without positions")
            << QByteArray("model.glb") << binary(mesh(R"({"attributes": {}})")) << 3 << empty;
        QByteArray badIndices = mesh(R"({"attributes": {"POSITION": 0}, "indices": 2})");
        badIndices.replace("\"type\": \"SCALAR\"}]",
            "\"type\": \"SCALAR\"}, {\"bufferView\": 0, \"byteOffset\": 12, \"componentType\": 5125, \"count\": 3, "
            "\"type\": \"SCALAR\"}]");
        QTest::newRow("glTF indices out of range alone") << QByteArray("model.gltf") << badIndices << 3 << empty;
        QTest::newRow("an empty mesh") << QByteArray("model.stl")
                                       << QByteArray("solid empty\nendsolid empty\nsolid good\nfacet normal 0 0 1\n"
                                                     "outer loop\nvertex 0 0 0\nvertex 1 0 0\nvertex 0 1 0\n"
                                                     "endloop\nendfacet\nendsolid good\n")
                                       << 3 << QStringLiteral("left out meshes without positions: \"empty\"");
    }

    void oneBadPartIsLeftOut()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, model);
        QFETCH(int, indices);
        QFETCH(QString, warning);
        ReadModels models;
        const NxRef<NxGroup> scene = models.read(name.constData(), model);
        QVERIFY2(scene, qPrintable(models.message()));
        QCOMPARE(models.warnings(), QStringList(warning));
        int found = 0;
        for (const NxMesh* mesh : ReadModels::all<NxMesh>(*scene))
            found += mesh->indices.getNum();
        QCOMPARE(found, indices);
    }

    void aModelWithNothingToShowIsRefused_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("model");
        QTest::addColumn<QString>("message");
        const QString nothing = QStringLiteral("nothing in the model can be shown; ");
        QTest::newRow("bad faces alone") << QByteArray("model.ply") << ply("3 4 5 6\n", 1)
                                         << nothing
                + QStringLiteral("left out faces with an index out of range in the meshes: 1 without a name");
        QTest::newRow("an empty mesh alone") << QByteArray("model.stl") << QByteArray("solid a\nendsolid a\n")
                                             << nothing + QStringLiteral("left out meshes without positions: \"a\"");
    }

    void aModelWithNothingToShowIsRefused()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, model);
        QFETCH(QString, message);
        ReadModels models;
        QVERIFY(!models.read(name.constData(), model));
        QVERIFY(!models.hasCrashed());
        QCOMPARE(models.message(), message);
    }

    void statementsOfAnObjFileStayAsTheyAre()
    {
        const std::string text = "# f 9 9 9\r\nv 0 0 0\r\nv 1 0 0\nv 0 1 0\nvt 0 0\nf 1/1 2/1 \\\n 3/1\nl 1 2\np 3\n"
                                 "f 1 2 \\\r\n 4\ng other\nf 0 1 2\nf -1 -2 -3\nf 1 2 x\nf 1 2 3";
        orvane::ImportWarnings warnings;
        QCOMPARE(orvane::withoutUnusableFaces(text, warnings),
            std::string("# f 9 9 9\r\nv 0 0 0\r\nv 1 0 0\nv 0 1 0\nvt 0 0\nf 1/1 2/1 \\\n 3/1\nl 1 2\np 3\n"
                        "g other\nf -1 -2 -3\nf 1 2 3"));
        QCOMPARE(warnings.texts(),
            std::vector<std::string>{
                "left out faces with an index out of range in the meshes: \"other\", 1 without a name"});
    }
};

QTEST_GUILESS_MAIN(TestPartialModels)
#include "tst_PartialModels.moc"

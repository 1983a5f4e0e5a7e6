#include "import/Gltf.h"
#include "import/conversion/ReadModels.h"

#include "meridane/scene/nodes/NxMesh.h"

#include <QTest>

#include <algorithm>

namespace {

QByteArray ply(const QByteArray& more, const QByteArray& rows)
{
    return "ply\nformat ascii 1.0\nelement vertex 3\nproperty float x\nproperty float y\nproperty float z\n" + more
        + "end_header\n" + rows;
}

/// Points as a triangle's corners, in glTF.
QByteArray gltfPoints()
{
    QByteArray model = gltf::model(R"({"mesh": 0})", R"("scenes": [{"nodes": [0]}],)", R"(, "mode": 0)");
    return model.replace(R"(, "indices": 1)", "");
}

} // namespace

/// Models of points alone.
class TestPointClouds : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pointsComeWithTheirColors_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("model");
        QTest::addColumn<bool>("isColored");
        const QByteArray bytes = "property uchar red\nproperty uchar green\nproperty uchar blue\n";
        const QByteArray plain = "0 0 0\n1 0 0\n0 1 0\n";
        const QByteArray colored = "0 0 0 255 0 0\n1 0 0 0 255 0\n0 1 0 0 0 255\n";
        const QByteArray noFaces = "element face 0\nproperty list uchar int vertex_indices\n";
        QTest::newRow("ply") << QByteArray("cloud.ply") << ply({}, plain) << false;
        QTest::newRow("ply with colours") << QByteArray("cloud.ply") << ply(bytes, colored) << true;
        QTest::newRow("ply with no face") << QByteArray("cloud.ply") << ply(bytes + noFaces, colored) << true;
        QTest::newRow("obj of vertices") << QByteArray("cloud.obj") << QByteArray("v 0 0 0\nv 1 0 0\nv 0 1 0\n")
                                         << false;
        const QByteArray vertices = "v 0 0 0 1 0 0\nv 1 0 0 0 1 0\nv 0 1 0 0 0 1\n";
        QTest::newRow("obj of vertices with colours") << QByteArray("cloud.obj") << vertices << true;
        QTest::newRow("obj of points with colours") << QByteArray("cloud.obj") << vertices + "p 1 2 3\n" << true;
        QTest::newRow("glTF without indices") << QByteArray("cloud.gltf") << gltfPoints() << false;
    }

    void pointsComeWithTheirColors()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, model);
        QFETCH(bool, isColored);
        ReadModels models;
        const NxRef<NxGroup> scene = models.read(name.constData(), model);
        QVERIFY2(scene, qPrintable(models.message()));
        QCOMPARE(models.warnings(), QStringList());
        const std::vector<NxMesh*> meshes = ReadModels::all<NxMesh>(*scene);
        QCOMPARE(meshes.size(), std::size_t(1));
        const NxMesh& mesh = *meshes.front();
        QCOMPARE(mesh.primitive.getValue(), int(NxMesh::POINTS));
        QVERIFY(std::ranges::equal(
            mesh.positions.getValues(), std::vector<VbVec3f>{VbVec3f(0, 0, 0), VbVec3f(1, 0, 0), VbVec3f(0, 1, 0)}));
        const std::vector<VbVec4f> colors{VbVec4f(1, 0, 0, 1), VbVec4f(0, 1, 0, 1), VbVec4f(0, 0, 1, 1)};
        QVERIFY(std::ranges::equal(mesh.colors.getValues(), isColored ? colors : std::vector<VbVec4f>()));
    }
};

QTEST_GUILESS_MAIN(TestPointClouds)
#include "tst_PointClouds.moc"

#include "import/Collada.h"
#include "import/conversion/ReadModels.h"

#include "orvane/import/mending/ColorMending.h"

#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxMesh.h"

#include <QTest>

#include <algorithm>
#include <limits>

using orvane::ColorMending;
using orvane::ColorStorage;

namespace {

const QString mended = QStringLiteral("mended vertex colours that are no colours in the meshes: 1 without a name");
const QString leftOut = QStringLiteral("left out vertex colours that are no colours in the meshes: 1 without a name");

/// A triangle with these colours at its corners.
QByteArray ply(const QByteArray& type, const QByteArrayList& colors)
{
    QByteArray properties;
    const QByteArrayList names{"red", "green", "blue", "alpha"};
    for (qsizetype index = 0; index < colors.first().count(' ') + 1; ++index)
        properties += "property " + type + ' ' + names[index] + '\n';
    return "ply\nformat ascii 1.0\nelement vertex 3\nproperty float x\nproperty float y\nproperty float z\n"
        + properties + "element face 1\nproperty list uchar int vertex_indices\nend_header\n0 0 0 " + colors[0]
        + "\n1 0 0 " + colors[1] + "\n0 1 0 " + colors[2] + "\n3 0 1 2\n";
}

} // namespace

/// Vertex colours, and materials, that make no sense as they are.
class TestColorMending : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void colorsOfAPlyFileAreMended_data()
    {
        QTest::addColumn<QByteArray>("type");
        QTest::addColumn<QByteArrayList>("colors");
        QTest::addColumn<QList<float>>("expected"); // of the first corner; none if they are left out
        QTest::addColumn<QString>("warning");
        const QByteArrayList bytes{"142 255 3", "0 51 0", "0 0 102"};
        const QByteArrayList signedBytes{"-114 -1 3", "0 51 0", "0 0 102"};
        const QList<float> color{142 / 255.F, 1, 3 / 255.F, 1};
        QTest::newRow("bytes") << QByteArray("uchar") << bytes << color << QString();
        QTest::newRow("signed bytes") << QByteArray("char") << signedBytes << color << mended;
        QTest::newRow("short numbers") << QByteArray("short") << bytes << color << mended;
        QTest::newRow("short numbers without a sign") << QByteArray("ushort") << bytes << color << mended;
        QTest::newRow("numbers") << QByteArray("int") << signedBytes << color << mended;
        QTest::newRow("numbers without a sign") << QByteArray("uint") << bytes << color << mended;
        QTest::newRow("bytes as floats") << QByteArray("float") << bytes << color << mended;
        QTest::newRow("floats") << QByteArray("float") << QByteArrayList{"0.5 1 0 0.25", "0 0 0 1", "0 0 0 1"}
                                << QList<float>{0.5F, 1, 0, 0.25F} << QString();
        QTest::newRow("no opacity") << QByteArray("float") << QByteArrayList{"0.5 1 0 0", "0 0 0 0", "0 0 0 0"}
                                    << QList<float>{0.5F, 1, 0, 1} << mended;
        QTest::newRow("nothing at all") << QByteArray("float") << QByteArrayList{"0 0 0 0", "0 0 0 0", "0 0 0 0"}
                                        << QList<float>() << leftOut;
        QTest::newRow("no numbers of a colour")
            << QByteArray("float") << QByteArrayList{"0.5 7.5 0", "0 0 0", "0 0 0"} << QList<float>() << leftOut;
    }

    void colorsOfAPlyFileAreMended()
    {
        QFETCH(QByteArray, type);
        QFETCH(QByteArrayList, colors);
        QFETCH(QList<float>, expected);
        QFETCH(QString, warning);
        ReadModels models;
        const NxRef<NxGroup> scene = models.read("model.ply", ply(type, colors));
        QVERIFY2(scene, qPrintable(models.message()));
        QCOMPARE(models.warnings(), warning.isEmpty() ? QStringList() : QStringList(warning));
        const NxMesh& mesh = *ReadModels::all<NxMesh>(*scene).front();
        QCOMPARE(mesh.colors.getNum(), expected.isEmpty() ? 0 : 3);
        for (qsizetype index = 0; index < expected.size(); ++index)
            QVERIFY(std::abs(mesh.colors[0][static_cast<std::size_t>(index)] - expected[index]) < 1e-6F);
    }

    void colorsThatAreNoNumbersAreLeftOut()
    {
        std::vector<aiColor4D> colors(3, aiColor4D(1, 1, 1, 1));
        colors[1].g = std::numeric_limits<float>::quiet_NaN();
        QCOMPARE(orvane::mendColors(colors, ColorStorage::Usual), ColorMending::Senseless);
    }

    void roundingIsNoWarning()
    {
        std::vector<aiColor4D> colors(3, aiColor4D(1.0000001F, 1, -1e-7F, 1));
        QCOMPARE(orvane::mendColors(colors, ColorStorage::Usual), ColorMending::None);
        QVERIFY(colors[0] == aiColor4D(1, 1, 0, 1));
    }

    void theHeaderTellsTheStorage()
    {
        QCOMPARE(orvane::colorStorageOf("ply\r\nproperty char red\r\nend_header\r\n"), ColorStorage::SignedByte);
        QCOMPARE(orvane::colorStorageOf("ply\nproperty int32 diffuse_red\nend_header\n"), ColorStorage::Int);
        QCOMPARE(orvane::colorStorageOf("ply\nproperty char redness\nend_header\n"), ColorStorage::Usual);
        QCOMPARE(orvane::colorStorageOf("ply\nproperty char red\n"), ColorStorage::Usual);
        QCOMPARE(orvane::colorStorageOf("solid property char red\nend_header\n"), ColorStorage::Usual);
        QCOMPARE(orvane::colorStorageOf(""), ColorStorage::Usual);
    }

    void anInvisibleColladaModelIsTakenAsItsExporterMeansIt_data()
    {
        QTest::addColumn<QByteArrayList>("materials");
        QTest::addColumn<QList<float>>("expected"); // transparencies
        QTest::newRow("as the format says") << QByteArrayList{collada::transparency("1"), collada::transparency("0.25"),
            collada::transparency("0")} << QList<float>{0, 0.75F, 1};
        QTest::newRow("the reverse") << QByteArrayList{collada::transparency("0"), collada::transparency("0.75")}
                                     << QList<float>{0, 0.75F};
        QTest::newRow("the reverse beside one that doesn't say it") << QByteArrayList{collada::transparency("0"),
            "<diffuse><color>1 0 0 1</color></diffuse>"} << QList<float>{0, 0};
        QTest::newRow("the reverse by colour")
            << QByteArrayList{collada::transparency("1", "RGB_ZERO")} << QList<float>{0};
    }

    void anInvisibleColladaModelIsTakenAsItsExporterMeansIt()
    {
        QFETCH(QByteArrayList, materials);
        QFETCH(QList<float>, expected);
        ReadModels models;
        const NxRef<NxGroup> scene = models.read("model.dae", collada::model(materials));
        QVERIFY2(scene, qPrintable(models.message()));
        QList<float> found;
        for (const NxMaterial* material : ReadModels::all<NxMaterial>(*scene))
            found += material->transparency.getValue();
        QCOMPARE(found, expected);
        QCOMPARE(models.warnings().isEmpty(), expected.contains(1));
    }

    void aModelOfAnotherFormatIsVisibleToo()
    {
        ReadModels models;
        models.write("model.mtl", "newmtl glass\nKd 1 0 0\nd 0\n");
        const NxRef<NxGroup> scene
            = models.read("model.obj", "mtllib model.mtl\nv 0 0 0\nv 1 0 0\nv 0 1 0\nusemtl glass\nf 1 2 3\n");
        QVERIFY2(scene, qPrintable(models.message()));
        QVERIFY(ReadModels::all<NxMaterial>(*scene).front()->transparency.isDefault());
        QCOMPARE(models.warnings(),
            QStringList(QStringLiteral("made opaque, since nothing would be seen, the materials: \"glass\"")));
    }

    void aMaterialShowsItsColorWithoutItsTexture()
    {
        ReadModels models;
        models.write("model.mtl",
            "newmtl red\nKd 1 0 0\nmap_Kd missing.png\nnewmtl black\nKd 0 0 0\nmap_Kd missing.png\nnewmtl night\nKd 0 "
            "0 0\n");
        const NxRef<NxGroup> scene = models.read("model.obj",
            "mtllib model.mtl\nv 0 0 0\nv 1 0 0\nv 0 1 0\nusemtl red\nf 1 2 3\nusemtl black\nf 1 2 3\nusemtl night\nf "
            "1 2 3\n");
        QVERIFY2(scene, qPrintable(models.message()));
        const std::vector<NxMaterial*> materials = ReadModels::all<NxMaterial>(*scene);
        QCOMPARE(materials.size(), std::size_t(3));
        QCOMPARE(materials[0]->diffuseColor.getValue(), VbColor(1, 0, 0));
        QCOMPARE(materials[1]->diffuseColor.getValue(), VbColor(1, 1, 1)); // by which a texture isn't changed
        QCOMPARE(materials[2]->diffuseColor.getValue(), VbColor(0, 0, 0));
    }

    void aMadeUpMaterialLeavesShadesToBeSeen()
    {
        ReadModels models;
        const NxRef<NxGroup> scene = models.read("model.ply", ply("uchar", {"255 0 0", "255 0 0", "255 0 0"}));
        QVERIFY2(scene, qPrintable(models.message()));
        const NxMaterial& material = *ReadModels::all<NxMaterial>(*scene).front();
        QVERIFY(material.ambientColor.isDefault());
        QVERIFY(material.specularColor.isDefault());
    }
};

QTEST_GUILESS_MAIN(TestColorMending)
#include "tst_ColorMending.moc"

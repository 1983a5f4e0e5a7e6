#include "import/Gltf.h"
#include "import/conversion/ReadModels.h"

#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxMesh.h"
#include "meridane/scene/nodes/NxTexture.h"

#include <QBuffer>
#include <QImage>
#include <QTest>

#include <cmath>

namespace {

/// A red image of half opacity.
QByteArray clearImage()
{
    QImage image(2, 2, QImage::Format_RGBA8888);
    image.fill(QColor(255, 0, 0, 128));
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    image.save(&png, "png");
    return gltf::dataUri("image/png", png.data());
}

/// A triangle with the places (0, 0), (1, 0) and (0, 1) in the texture, v downwards,, and that material.
QByteArray textured(const QByteArray& material)
{
    QByteArray model = gltf::model(R"({"mesh": 0})",
        R"("scenes": [{"nodes": [0]}], "extensionsUsed": ["KHR_texture_transform"], "textures": [{"source": 0}],
        "images": [{"uri": )"
            + clearImage() + R"(}], "materials": [)" + material + "],",
        R"(, "material": 0)");
    model.replace(R"("POSITION": 0)", R"("POSITION": 0, "TEXCOORD_0": 2)");
    model.replace(R"("type": "SCALAR"}])", R"("type": "SCALAR"},
        {"bufferView": 2, "componentType": 5126, "count": 3, "type": "VEC2"}])");
    model.replace(R"("byteLength": 6}])", R"("byteLength": 6},
        {"buffer": 0, "byteOffset": 0, "byteLength": 36, "byteStride": 12}])");
    return model;
}

} // namespace

/// What comes over from glTF besides meshes.
class TestGltfModels : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void texturesArePlacedAsTheFileSays_data()
    {
        QTest::addColumn<QByteArray>("members"); // of the transform
        QTest::addColumn<QList<float>>("numbers"); // offset, rotation, scale
        QTest::newRow("moved") << QByteArray(R"("offset": [0.25, 0.5])") << QList<float>{0.25F, 0.5F, 0, 1, 1};
        QTest::newRow("scaled") << QByteArray(R"("scale": [2, 3])") << QList<float>{0, 0, 0, 2, 3};
        QTest::newRow("turned") << QByteArray(R"("rotation": 0.5)") << QList<float>{0, 0, 0.5F, 1, 1};
        QTest::newRow("all") << QByteArray(R"("offset": [0.25, 0.5], "rotation": 0.5, "scale": [2, 3])")
                             << QList<float>{0.25F, 0.5F, 0.5F, 2, 3};
    }

    void texturesArePlacedAsTheFileSays()
    {
        QFETCH(QByteArray, members);
        QFETCH(QList<float>, numbers);
        ReadModels models;
        const NxRef<NxGroup> scene = models.read("model.gltf",
            textured(R"({"pbrMetallicRoughness": {"baseColorTexture": {"index": 0, "extensions":
            {"KHR_texture_transform": {)"
                + members + "}}}}}"));
        QVERIFY2(scene, qPrintable(models.message()));
        const NxMesh& mesh = *ReadModels::all<NxMesh>(*scene).front();
        QCOMPARE(mesh.textureCoordinates.getNum(), 3);
        for (int index = 0; index < 3; ++index) {
            const float u = mesh.positions[index][0] * numbers[3];
            const float v = mesh.positions[index][1] * numbers[4]; // downwards
            const float across = std::cos(numbers[2]) * u + std::sin(numbers[2]) * v + numbers[0];
            const float down = -std::sin(numbers[2]) * u + std::cos(numbers[2]) * v + numbers[1];
            QVERIFY(std::abs(mesh.textureCoordinates[index][0] - across) < 1e-5F);
            QVERIFY(std::abs(mesh.textureCoordinates[index][1] - (1 - down)) < 1e-5F);
        }
    }

    void anOpaqueMaterialHasNoOpacity_data()
    {
        QTest::addColumn<QByteArray>("mode");
        QTest::addColumn<bool>("isOpaque");
        QTest::newRow("none") << QByteArray() << true;
        QTest::newRow("opaque") << QByteArray(R"("alphaMode": "OPAQUE", )") << true;
        QTest::newRow("blended") << QByteArray(R"("alphaMode": "BLEND", )") << false;
    }

    void anOpaqueMaterialHasNoOpacity()
    {
        QFETCH(QByteArray, mode);
        QFETCH(bool, isOpaque);
        ReadModels models;
        const NxRef<NxGroup> scene = models.read("model.gltf", textured("{" + mode + R"("pbrMetallicRoughness":
            {"baseColorFactor": [1, 0, 0, 0.25], "baseColorTexture": {"index": 0}}})"));
        QVERIFY2(scene, qPrintable(models.message()));
        QCOMPARE(ReadModels::all<NxMaterial>(*scene).front()->transparency.getValue(), isOpaque ? 0.0F : 0.75F);
        VbVec2s size;
        int components = 0;
        const unsigned char* bytes = ReadModels::all<NxTexture>(*scene).front()->image.getValue(size, components);
        QCOMPARE(size, VbVec2s(2, 2));
        QCOMPARE(components, isOpaque ? 3 : 4);
        QCOMPARE(int{bytes[0]}, 255);
        QCOMPARE(int{bytes[components]}, 255);
    }

    void motionIsOneLine()
    {
        QByteArray model = gltf::model(R"({"name": "arm", "mesh": 0})",
            R"("scenes": [{"nodes": [0]}], "animations": [{"channels": [{"sampler": 0, "target":
            {"node": 0, "path": "translation"}}], "samplers": [{"input": 2, "output": 0}]}],)");
        model.replace(R"("type": "SCALAR"}])", R"("type": "SCALAR"},
            {"bufferView": 0, "componentType": 5126, "count": 3, "type": "SCALAR"}])");
        ReadModels models;
        const NxRef<NxGroup> scene = models.read("model.gltf", model);
        QVERIFY2(scene, qPrintable(models.message()));
        QCOMPARE(models.warnings(),
            QStringList(QStringLiteral("the model is shown at rest, without the motion of 1 animation")));
    }
};

QTEST_GUILESS_MAIN(TestGltfModels)
#include "tst_GltfModels.moc"

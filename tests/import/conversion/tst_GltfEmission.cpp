#include "import/conversion/ReadModels.h"
#include "import/conversion/TexturedModel.h"

#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxTexture.h"

#include <QTest>

Q_DECLARE_METATYPE(VbColor)

/// Surfaces in glTF that shine by themselves, and what of surfaces doesn't come over.
class TestGltfEmission : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void emissionIsThatOfTheTexture_data()
    {
        QTest::addColumn<QByteArray>("members"); // of the material
        QTest::addColumn<VbColor>("emission");
        QTest::addColumn<int>("textures");
        QTest::addColumn<QString>("warning");
        const VbColor glow(1, 0.5F, 0.25F);
        const VbColor none(0, 0, 0);
        QTest::newRow("without a texture") << QByteArray() << glow << 0 << QString();
        QTest::newRow("with the texture of the colour") << QByteArray(
            R"(, "emissiveTexture": {"index": 0}, "pbrMetallicRoughness": {"baseColorTexture": {"index": 0}})")
                                                        << glow << 1 << QString();
        QTest::newRow("with a texture, and black otherwise") << QByteArray(
            R"(, "emissiveTexture": {"index": 0}, "pbrMetallicRoughness": {"baseColorFactor": [0, 0, 0, 1]})")
                                                             << glow << 1 << QString();
        QTest::newRow("with a texture of its own")
            << QByteArray(
                   R"(, "emissiveTexture": {"index": 0}, "pbrMetallicRoughness": {"baseColorFactor": [1, 0, 0, 1]})")
            << none << 0
            << QStringLiteral("left out the emission, which has a texture of its own, of the materials: \"lava\"");
    }

    void emissionIsThatOfTheTexture()
    {
        QFETCH(QByteArray, members);
        QFETCH(VbColor, emission);
        QFETCH(int, textures);
        QFETCH(QString, warning);
        ReadModels models;
        const NxRef<NxGroup> scene = models.read(
            "model.gltf", gltf::textured(R"({"name": "lava", "emissiveFactor": [1, 0.5, 0.25])" + members + "}"));
        QVERIFY2(scene, qPrintable(models.message()));
        QCOMPARE(ReadModels::all<NxMaterial>(*scene).front()->emissiveColor.getValue(), emission);
        const std::vector<NxTexture*> found = ReadModels::all<NxTexture>(*scene);
        QCOMPARE(found.size(), static_cast<std::size_t>(textures));
        if (textures == 1)
            QVERIFY(!found.front()->image.isDefault());
        QCOMPARE(models.warnings(), warning.isEmpty() ? QStringList() : QStringList(warning));
    }

    void anUnlitSurfaceShinesInItsColor()
    {
        ReadModels models;
        const NxRef<NxGroup> scene
            = models.read("model.gltf", gltf::textured(R"({"extensions": {"KHR_materials_unlit": {}},
            "pbrMetallicRoughness": {"baseColorFactor": [1, 0.5, 0, 1], "baseColorTexture": {"index": 0}}})"));
        QVERIFY2(scene, qPrintable(models.message()));
        const NxMaterial& material = *ReadModels::all<NxMaterial>(*scene).front();
        QCOMPARE(material.emissiveColor.getValue(), VbColor(1, 0.5F, 0));
        for (const NxSFColor* field : {&material.diffuseColor, &material.ambientColor, &material.specularColor})
            QCOMPARE(field->getValue(), VbColor(0, 0, 0));
        QVERIFY(material.metalness.isDefault() && material.roughness.isDefault());
        QCOMPARE(ReadModels::all<NxTexture>(*scene).size(), 1U);
    }

    void whatCannotBeDrawnIsOneLineEach()
    {
        ReadModels models;
        const NxRef<NxGroup> scene = models.read("model.gltf",
            gltf::textured(
                R"({"name": "bark", "normalTexture": {"index": 0, "scale": 0.5}, "occlusionTexture": {"index": 0}})"));
        QVERIFY2(scene, qPrintable(models.message()));
        QCOMPARE(models.warnings(),
            (QStringList{QStringLiteral("left out the occlusion textures of the materials: \"bark\""),
                QStringLiteral("drawn with full strength the normal maps of the materials: \"bark\"")}));
    }
};

QTEST_GUILESS_MAIN(TestGltfEmission)
#include "tst_GltfEmission.moc"

#include "import/conversion/ReadModels.h"
#include "import/conversion/TexturedModel.h"

#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxMesh.h"
#include "meridane/scene/nodes/NxOrthographicCamera.h"
#include "meridane/scene/nodes/NxPerspectiveCamera.h"
#include "meridane/scene/nodes/NxPointLight.h"
#include "meridane/scene/nodes/NxSpotLight.h"
#include "meridane/scene/nodes/NxTexture.h"

#include <QTest>

#include <cmath>

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
            gltf::textured(R"({"pbrMetallicRoughness": {"baseColorTexture": {"index": 0, "extensions":
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
        const NxRef<NxGroup> scene = models.read("model.gltf", gltf::textured("{" + mode + R"("pbrMetallicRoughness":
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

    void metalnessAndRoughnessComeOver_data()
    {
        QTest::addColumn<QByteArray>("members"); // of the material
        QTest::addColumn<float>("metalness");
        QTest::addColumn<float>("roughness");
        QTest::newRow("stated") << QByteArray(
            R"("pbrMetallicRoughness": {"metallicFactor": 0.25, "roughnessFactor": 0.5})")
                                << 0.25F << 0.5F;
        QTest::newRow("not stated") << QByteArray(R"("pbrMetallicRoughness": {})") << 1.0F << 1.0F;
        QTest::newRow("a dull plastic") << QByteArray(R"("pbrMetallicRoughness": {"metallicFactor": 0})") << 0.0F
                                        << 1.0F;
        QTest::newRow("out of range") << QByteArray(
            R"("pbrMetallicRoughness": {"metallicFactor": 2.5, "roughnessFactor": -1})")
                                      << 1.0F << 0.0F;
        QTest::newRow("an older extension") << QByteArray(R"("extensions": {"KHR_materials_pbrSpecularGlossiness":
            {"specularFactor": [1, 0.5, 0.25], "glossinessFactor": 0.75}})")
                                            << 0.0F << 1.0F;
    }

    void metalnessAndRoughnessComeOver()
    {
        QFETCH(QByteArray, members);
        QFETCH(float, metalness);
        QFETCH(float, roughness);
        ReadModels models;
        const NxRef<NxGroup> scene = models.read("model.gltf", gltf::textured("{" + members + "}"));
        QVERIFY2(scene, qPrintable(models.message()));
        const NxMaterial& material = *ReadModels::all<NxMaterial>(*scene).front();
        QCOMPARE(material.metalness.getValue(), metalness);
        QCOMPARE(material.roughness.getValue(), roughness);
    }

    void theCutOffComesOver_data()
    {
        QTest::addColumn<QByteArray>("mode");
        QTest::addColumn<float>("cutoff");
        QTest::addColumn<float>("transparency");
        QTest::newRow("opaque") << QByteArray(R"("alphaCutoff": 0.25)") << 0.0F << 0.0F;
        QTest::newRow("blended") << QByteArray(R"("alphaMode": "BLEND", "alphaCutoff": 0.25)") << 0.0F << 0.75F;
        QTest::newRow("masked") << QByteArray(R"("alphaMode": "MASK")") << 0.5F << 0.0F; // else unseen
        QTest::newRow("masked at a height")
            << QByteArray(R"("alphaMode": "MASK", "alphaCutoff": 0.25)") << 0.25F << 0.75F;
        QTest::newRow("masked nowhere") << QByteArray(R"("alphaMode": "MASK", "alphaCutoff": 0)") << 0.0F << 0.0F;
    }

    void theCutOffComesOver()
    {
        QFETCH(QByteArray, mode);
        QFETCH(float, cutoff);
        QFETCH(float, transparency);
        ReadModels models;
        const NxRef<NxGroup> scene = models.read("model.gltf",
            gltf::textured("{" + mode + R"(, "pbrMetallicRoughness": {"baseColorFactor": [1, 0, 0, 0.25]}})"));
        QVERIFY2(scene, qPrintable(models.message()));
        const NxMaterial& material = *ReadModels::all<NxMaterial>(*scene).front();
        QCOMPARE(material.alphaCutoff.getValue(), cutoff);
        QCOMPARE(material.transparency.getValue(), transparency);
    }

    // From behind, an open surface with one side would be an empty picture.
    void oneSideComesOverOnlyWithClosedSurfaces_data()
    {
        QTest::addColumn<QByteArray>("sides");
        QTest::addColumn<bool>("isClosed");
        QTest::addColumn<bool>("isDoubleSided");
        QTest::newRow("open, not stated") << QByteArray() << false << true;
        QTest::newRow("open, one side") << QByteArray(R"("doubleSided": false, )") << false << true;
        QTest::newRow("open, both sides") << QByteArray(R"("doubleSided": true, )") << false << true;
        QTest::newRow("closed, one side") << QByteArray(R"("doubleSided": false, )") << true << false;
        QTest::newRow("closed, both sides") << QByteArray(R"("doubleSided": true, )") << true << true;
    }

    void oneSideComesOverOnlyWithClosedSurfaces()
    {
        QFETCH(QByteArray, sides);
        QFETCH(bool, isClosed);
        QFETCH(bool, isDoubleSided);
        QByteArray model = gltf::textured("{" + sides + R"("name": "tin"})");
        if (isClosed) { // the same triangle once more, facing the other way
            model.replace(R"("material": 0}])",
                R"("material": 0}, {"attributes": {"POSITION": 0}, "indices": 3, "material": 0}])");
            model.replace(R"("type": "VEC2"}])", R"("type": "VEC2"},
                {"bufferView": 3, "componentType": 5123, "count": 3, "type": "SCALAR"}])");
            const quint16 indices[] = {0, 2, 1, 0};
            model.replace(R"("byteStride": 12}])", R"("byteStride": 12}, {"buffer": 1, "byteLength": 6}])");
            model.insert(model.lastIndexOf("]}"),
                R"(, {"byteLength": 8, "uri": )"
                    + gltf::dataUri(
                        "application/octet-stream", QByteArray(reinterpret_cast<const char*>(indices), sizeof indices))
                    + "}");
        }
        ReadModels models;
        const NxRef<NxGroup> scene = models.read("model.gltf", model);
        QVERIFY2(scene, qPrintable(models.message()));
        QCOMPARE(ReadModels::all<NxMesh>(*scene).size(), isClosed ? 2U : 1U);
        QCOMPARE(ReadModels::all<NxMaterial>(*scene).front()->doubleSided.getValue(), isDoubleSided ? 1 : 0);
    }

    void furtherTexturesComeOverInTheirRoles_data()
    {
        QTest::addColumn<QByteArray>("transform"); // of the texture of the normals
        QTest::addColumn<int>("textures");
        QTest::newRow("placed alike") << QByteArray() << 3;
        QTest::newRow("placed in another way")
            << QByteArray(R"(, "extensions": {"KHR_texture_transform": {"scale": [2, 2]}})") << 2;
    }

    void furtherTexturesComeOverInTheirRoles()
    {
        QFETCH(QByteArray, transform);
        QFETCH(int, textures);
        ReadModels models;
        const NxRef<NxGroup> scene = models.read(
            "model.gltf", gltf::textured(R"({"name": "bark", "normalTexture": {"index": 0)" + transform + R"(},
            "pbrMetallicRoughness": {"baseColorTexture": {"index": 0}, "metallicRoughnessTexture": {"index": 0}}})"));
        QVERIFY2(scene, qPrintable(models.message()));
        QList<int> roles;
        for (const NxTexture* texture : ReadModels::all<NxTexture>(*scene)) {
            roles += texture->role.getValue();
            VbVec2s size;
            int components = 0;
            QVERIFY(texture->image.getValue(size, components) != nullptr);
            QCOMPARE(size, VbVec2s(2, 2));
        }
        if (textures == 3) {
            QCOMPARE(roles, (QList<int>{NxTexture::COLOR, NxTexture::NORMAL, NxTexture::METAL_ROUGHNESS}));
            QCOMPARE(models.warnings(), QStringList());
        } else {
            QCOMPARE(roles, (QList<int>{NxTexture::COLOR, NxTexture::METAL_ROUGHNESS}));
            QCOMPARE(models.warnings(),
                QStringList(QStringLiteral(
                    "left out further textures that are placed in another way in the materials: \"bark\"")));
        }
    }

    void aFileWithoutASceneShowsAllItsNodes()
    {
        ReadModels models;
        const NxRef<NxGroup> scene = models.read("model.gltf",
            gltf::model(
                R"({"name": "a", "mesh": 0, "children": [2]}, {"name": "b", "mesh": 0}, {"name": "c", "mesh": 0})"));
        QVERIFY2(scene, qPrintable(models.message()));
        QCOMPARE(models.warnings(), QStringList());
        QCOMPARE(ReadModels::all<NxMesh>(*scene).size(), 3U);
    }

    void vertexColorsComeOver()
    {
        QByteArray model = gltf::model(R"({"mesh": 0})", R"("scenes": [{"nodes": [0]}],)");
        model.replace(R"("POSITION": 0)", R"("POSITION": 0, "COLOR_0": 0)");
        ReadModels models;
        const NxRef<NxGroup> scene = models.read("model.gltf", model);
        QVERIFY2(scene, qPrintable(models.message()));
        const NxMesh& mesh = *ReadModels::all<NxMesh>(*scene).front();
        QCOMPARE(mesh.colors.getNum(), 3);
        QCOMPARE(mesh.colors[1], VbColorRGBA(1, 0, 0, 1));
        QCOMPARE(mesh.colors[2], VbColorRGBA(0, 1, 0, 1));
    }

    void lightsComeOverWithRangeAndCone()
    {
        ReadModels models;
        const NxRef<NxGroup> scene = models.read("model.gltf",
            gltf::model(R"({"mesh": 0}, {"translation": [1, 2, 3], "extensions": {"KHR_lights_punctual": {"light": 0}}},
            {"rotation": [0.70710678, 0, 0, 0.70710678], "extensions": {"KHR_lights_punctual": {"light": 1}}})",
                R"("scenes": [{"nodes": [0, 1, 2]}], "extensionsUsed": ["KHR_lights_punctual"],
            "extensions": {"KHR_lights_punctual": {"lights": [
            {"name": "lamp", "type": "point", "color": [1, 0.5, 0], "intensity": 4, "range": 10},
            {"name": "cone", "type": "spot", "spot": {"innerConeAngle": 0.25, "outerConeAngle": 0.5}}]}},)"));
        QVERIFY2(scene, qPrintable(models.message()));
        const NxPointLight& lamp = *ReadModels::all<NxPointLight>(*scene).front();
        QCOMPARE(lamp.location.getValue(), VbVec3f(1, 2, 3));
        QCOMPARE(lamp.color.getValue(), VbColor(1, 0.5F, 0));
        // It fades with the square of the distance, and four times as bright a lamp by a quarter.
        QCOMPARE(lamp.attenuation.getValue(), VbVec3f(0, 0, 0.25F));
        const NxSpotLight& cone = *ReadModels::all<NxSpotLight>(*scene).front();
        QCOMPARE(cone.cutOffAngle.getValue(), 0.5F);
        QCOMPARE(cone.dropOffRate.getValue(), 0.5F);
        // A quarter of a turn about x leads from -z to y.
        QVERIFY(std::abs(cone.direction.getValue()[1] - 1) < 1e-5F);
    }

    void camerasComeOver()
    {
        ReadModels models;
        const NxRef<NxGroup> scene = models.read("model.gltf",
            gltf::model(
                R"({"mesh": 0}, {"name": "eye", "translation": [0, 0, 5], "camera": 0}, {"name": "plan", "camera": 1})",
                R"("scenes": [{"nodes": [0, 1, 2]}], "cameras": [
            {"type": "perspective", "perspective": {"yfov": 0.75, "aspectRatio": 1.5, "znear": 0.5, "zfar": 50}},
            {"type": "orthographic", "orthographic": {"xmag": 3, "ymag": 3, "znear": 0.25, "zfar": 20}}],)"));
        QVERIFY2(scene, qPrintable(models.message()));
        const NxPerspectiveCamera& eye = *ReadModels::all<NxPerspectiveCamera>(*scene).front();
        QCOMPARE(eye.position.getValue(), VbVec3f(0, 0, 5));
        QVERIFY(std::abs(eye.heightAngle.getValue() - 0.75F) < 1e-5F);
        QCOMPARE(eye.nearDistance.getValue(), 0.5F);
        QCOMPARE(eye.farDistance.getValue(), 50.0F);
        const NxOrthographicCamera& plan = *ReadModels::all<NxOrthographicCamera>(*scene).front();
        QCOMPARE(plan.height.getValue(), 6.0F);
    }

    void morphTargetsHaveTheirWeights()
    {
        QByteArray model
            = gltf::model(R"({"mesh": 0})", R"("scenes": [{"nodes": [0]}],)", R"(, "targets": [{"POSITION": 0}])");
        model.replace(R"("name": "triangle")", R"("name": "triangle", "weights": [0.5])");
        ReadModels models;
        const NxRef<NxGroup> scene = models.read("model.gltf", model);
        QVERIFY2(scene, qPrintable(models.message()));
        // The target moves each corner by its own position.
        const NxMesh& mesh = *ReadModels::all<NxMesh>(*scene).front();
        QCOMPARE(mesh.positions[1], VbVec3f(1.5F, 0, 0));
        QCOMPARE(mesh.positions[2], VbVec3f(0, 1.5F, 0));
        QCOMPARE(models.warnings(),
            QStringList(QStringLiteral("the model is shown at rest, without the motion of 1 mesh with morph targets")));
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

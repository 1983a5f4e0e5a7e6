#include "TestFiles.h"
#include "import/Gltf.h"
#include "import/HelperRun.h"
#include "import/conversion/WorldMeshes.h"

#include "orvane/import/conversion/ModelReader.h"

#include "meridane/scene/file/NxScenePath.h"
#include "meridane/scene/file/NxSceneWriter.h"
#include "meridane/scene/nodes/NxCamera.h"
#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxMatrixTransform.h"
#include "meridane/scene/nodes/NxOrthographicCamera.h"
#include "meridane/scene/nodes/NxPerspectiveCamera.h"
#include "meridane/scene/nodes/NxPointLight.h"
#include "meridane/scene/nodes/NxTexture.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

namespace {

template <typename Node>
Node* find(const NxRef<NxGroup>& scene, std::string_view path)
{
    return dynamic_cast<Node*>(NxScenePath::find(scene.get(), path).node());
}

} // namespace

/// What the helper makes of foreign models, seen from outside.
class TestModelReader : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void nodesBecomeTransformsWithTheirNames()
    {
        // moc loses its way at an escaped quote in a raw string.
        const NxRef<NxGroup> scene = read(gltf::model(R"(
        {"name": "Träger \u0022日本\u0022", "translation": [1, 2, 3], "scale": [2, 3, 4], "children": [1]},
        {"name": "arm", "rotation": [0, 0.6, 0, 0.8], "mesh": 0})",
            R"("scenes": [{"nodes": [0]}], )"));
        QVERIFY2(scene, qPrintable(m_error));
        QCOMPARE(scene->getNumChildren(), 1);
        const auto* outer = dynamic_cast<NxTransform*>(scene->getChild(0));
        QVERIFY(outer != nullptr);
        QCOMPARE(outer->getName(), VbString("Träger \u0022日本\u0022"));
        QCOMPARE(outer->translation.getValue(), VbVec3f(1, 2, 3));
        QCOMPARE(outer->scaleFactor.getValue(), VbVec3f(2, 3, 4));
        QVERIFY(outer->rotation.isDefault());
        const auto* inner = dynamic_cast<NxTransform*>(outer->getChild(0));
        QVERIFY(inner != nullptr);
        QCOMPARE(inner->getName(), VbString("arm"));
        const std::array<float, 4> turn = inner->rotation.getValue().getQuaternion();
        QVERIFY(std::abs(turn[1] - 0.6F) < 1e-5F && std::abs(turn[3] - 0.8F) < 1e-5F);
        const auto* mesh = find<NxMesh>(scene, "/Transform[0]/arm/Group[0]/triangle");
        QVERIFY(mesh != nullptr);
        QVERIFY(std::ranges::equal(
            mesh->positions.getValues(), std::vector<VbVec3f>{VbVec3f(0, 0, 0), VbVec3f(1, 0, 0), VbVec3f(0, 1, 0)}));
        QVERIFY(std::ranges::equal(mesh->indices.getValues(), std::vector<int>{0, 1, 2}));
        QCOMPARE(mesh->primitive.getValue(), int(NxMesh::TRIANGLES));
    }

    void aShearedNodeKeepsItsMatrix()
    {
        const NxRef<NxGroup> scene = read(gltf::model(R"(
        {"name": "sheared", "mesh": 0, "matrix": [1, 0, 0, 0, 0.5, 1, 0, 0, 0, 0, 1, 0, 7, 8, 9, 1]},
        {"name": "other", "mesh": 0})",
            R"("scenes": [{"nodes": [0, 1]}], )"));
        QVERIFY2(scene, qPrintable(m_error));
        const auto* transform = find<NxMatrixTransform>(scene, "/sheared");
        QVERIFY(transform != nullptr);
        QVERIFY(transform->matrix.getValue() == VbMatrix(1, 0, 0, 0, 0.5F, 1, 0, 0, 0, 0, 1, 0, 7, 8, 9, 1));
    }

    void aRootOfTheModelsOwnIsKept()
    {
        const NxRef<NxGroup> scene = read(gltf::model(R"(
        {"name": "car", "children": [1]}, {"name": "wheel", "mesh": 0})",
            R"("scenes": [{"nodes": [0]}], )"));
        QVERIFY2(scene, qPrintable(m_error));
        QVERIFY(find<NxTransform>(scene, "/car/wheel") != nullptr);
    }

    void aMeshUsedTwiceIsShared()
    {
        const NxRef<NxGroup> scene = read(gltf::model(R"(
        {"name": "left", "mesh": 0}, {"name": "right", "translation": [5, 0, 0], "mesh": 0})",
            R"("scenes": [{"nodes": [0, 1]}], )"));
        QVERIFY2(scene, qPrintable(m_error));
        const auto* left = find<NxGroup>(scene, "/left");
        const auto* right = find<NxGroup>(scene, "/right");
        QVERIFY(left != nullptr && right != nullptr);
        QCOMPARE(left->getChild(0), right->getChild(0));
    }

    void everyMeshHasItsMaterialAheadOfIt()
    {
        writeFile(m_folder.filePath(QStringLiteral("model.mtl")),
            "newmtl red\nKa 0.1 0.2 0.3\nKd 1 0 0\nKs 0.4 0.5 0.6\nKe 0.7 0.8 0.9\nNs 64\nd 0.25\nnewmtl blue\nKd 0 0 "
            "1\n");
        const NxRef<NxGroup> scene = read("mtllib model.mtl\nv 0 0 0\nv 1 0 0\nv 0 1 0\no a\nusemtl red\nf 1 2 3\n"
                                          "o b\nusemtl blue\nf 1 2 3\no c\nusemtl red\nf 3 2 1\n",
            "model.obj");
        QVERIFY2(scene, qPrintable(m_error));
        const auto* red = find<NxMaterial>(scene, "/a/Group[0]/red");
        QVERIFY(red != nullptr);
        QCOMPARE(red->ambientColor.getValue(), VbColor(0.1F, 0.2F, 0.3F));
        QCOMPARE(red->diffuseColor.getValue(), VbColor(1, 0, 0));
        QCOMPARE(red->specularColor.getValue(), VbColor(0.4F, 0.5F, 0.6F));
        QCOMPARE(red->emissiveColor.getValue(), VbColor(0.7F, 0.8F, 0.9F));
        QCOMPARE(red->shininess.getValue(), 0.5F);
        QCOMPARE(red->transparency.getValue(), 0.75F);
        const auto* group = find<NxGroup>(scene, "/a/Group[0]");
        QCOMPARE(group->getNumChildren(), 2);
        QCOMPARE(group->getChild(0), red);
        QVERIFY(group->getChild(1)->isOfType(NxMesh::getClassTypeId()));
        QVERIFY(find<NxMaterial>(scene, "/b/Group[0]/blue") != nullptr);
        QCOMPARE(find<NxMaterial>(scene, "/c/Group[0]/red"), red);
    }

    void polygonsBecomeTriangles()
    {
        const NxRef<NxGroup> scene
            = read("v 0 0 0\nv 1 0 0\nv 1 1 0\nv 0 1 0\nv -1 0.5 0\no a\nf 1 2 3 4 5\n", "model.obj");
        QVERIFY2(scene, qPrintable(m_error));
        const auto* mesh = find<NxMesh>(scene, "/a/Group[0]/a");
        QVERIFY(mesh != nullptr);
        QCOMPARE(mesh->positions.getNum(), 5);
        QCOMPARE(mesh->indices.getNum(), 9);
    }

    void linesPointsAndTrianglesComeApart()
    {
        const NxRef<NxGroup> scene = read("v 0 0 0\nv 1 0 0\nv 0 1 0\no a\nf 1 2 3\nl 1 2\np 3\n", "model.obj");
        QVERIFY2(scene, qPrintable(m_error));
        QMap<int, int> indices; // by kind
        const auto* object = find<NxGroup>(scene, "/a");
        QVERIFY(object != nullptr);
        for (NxNode* child : object->getChildren()) {
            const auto* group = dynamic_cast<NxGroup*>(child);
            const auto* mesh = dynamic_cast<NxMesh*>(group->getChild(group->getNumChildren() - 1));
            indices[mesh->primitive.getValue()] += mesh->indices.getNum();
        }
        QCOMPARE(indices, (QMap<int, int>{{NxMesh::TRIANGLES, 3}, {NxMesh::LINES, 2}, {NxMesh::POINTS, 1}}));
    }

    void camerasStandWhereTheirNodesPutThem()
    {
        const NxRef<NxGroup> scene = read(gltf::model(R"(
        {"name": "car", "translation": [10, 0, 0], "scale": [2, 2, 2], "children": [1, 2, 3]},
        {"name": "body", "mesh": 0},
        {"name": "eye", "camera": 0, "translation": [1, 2, 3], "rotation": [0, 0.6, 0, 0.8]},
        {"name": "plan", "camera": 1, "scale": [3, 3, 3], "translation": [4, 5, 6]})",
            R"("scenes": [{"nodes": [0]}], "cameras": [
            {"type": "perspective", "perspective": {"yfov": 0.5, "aspectRatio": 2, "znear": 0.5, "zfar": 50}},
            {"type": "orthographic", "orthographic": {"xmag": 4, "ymag": 2, "znear": 0.25, "zfar": 20}}], )"));
        QVERIFY2(scene, qPrintable(m_error));
        const auto* eye = find<NxPerspectiveCamera>(scene, "/car/eye");
        QVERIFY(eye != nullptr);
        QCOMPARE(eye->position.getValue(), VbVec3f(1, 2, 3));
        QVERIFY(std::abs(eye->orientation.getValue().getQuaternion()[1] - 0.6F) < 1e-5F);
        QVERIFY(std::abs(eye->heightAngle.getValue() - 0.5F) < 1e-5F);
        QCOMPARE(eye->nearDistance.getValue(), 0.5F);
        QCOMPARE(eye->farDistance.getValue(), 50.0F);
        // A camera can't express a scale, so the node is kept.
        const auto* plan = find<NxOrthographicCamera>(scene, "/car/plan/plan");
        QVERIFY(plan != nullptr);
        QCOMPARE(plan->position.getValue(), VbVec3f(0, 0, 0));
        QCOMPARE(plan->height.getValue(), 4.0F);
        QCOMPARE(find<NxTransform>(scene, "/car/plan")->translation.getValue(), VbVec3f(4, 5, 6));
    }

    void lightsComeFirstAndStandWhereTheirNodesPutThem()
    {
        const NxRef<NxGroup> scene = read(gltf::model(R"(
        {"name": "house", "translation": [10, 0, 0], "children": [1, 2]},
        {"name": "wall", "mesh": 0},
        {"name": "lamp", "translation": [0, 3, 0], "extensions": {"KHR_lights_punctual": {"light": 0}}})",
            R"("scenes": [{"nodes": [0]}], "extensionsUsed": ["KHR_lights_punctual"], "extensions": {"KHR_lights_punctual":
            {"lights": [{"type": "point", "color": [1, 0.5, 0], "intensity": 1}]}}, )"));
        QVERIFY2(scene, qPrintable(m_error));
        const auto* lamp = dynamic_cast<NxPointLight*>(scene->getChild(0));
        QVERIFY(lamp != nullptr);
        QCOMPARE(lamp->getName(), VbString("lamp"));
        QCOMPARE(lamp->location.getValue(), VbVec3f(10, 3, 0));
        QCOMPARE(lamp->color.getValue(), VbColor(1, 0.5F, 0));
        QCOMPARE(find<NxGroup>(scene, "/house")->getNumChildren(), 1);
    }

    void embeddedPicturesBecomeImages()
    {
        const NxRef<NxGroup> scene = readFile(modelFile("crate.glb"));
        QVERIFY2(scene, qPrintable(m_error));
        const auto* texture = find<NxTexture>(scene, "/stack/big crate/Group[0]/crate");
        QVERIFY(texture != nullptr);
        VbVec2s size;
        int components = 0;
        const unsigned char* bytes = texture->image.getValue(size, components);
        QCOMPARE(size, VbVec2s(4, 2));
        QCOMPARE(components, 3);
        const QByteArray expected
            = QByteArray::fromHex("0000ff0000ffffff00ffff00ff0000ff000000ff0000ff00"); // the lower row first
        QCOMPARE(QByteArray(reinterpret_cast<const char*>(bytes), 24), expected);
        QCOMPARE(texture->wrapS.getValue(), int(NxTexture::REPEAT));
        QCOMPARE(texture->wrapT.getValue(), int(NxTexture::CLAMP));
    }

    void otherPicturesArePathsRelativeToTheModel()
    {
        const NxRef<NxGroup> scene = readFile(modelFile("crate.obj"));
        QVERIFY2(scene, qPrintable(m_error));
        const auto* texture = find<NxTexture>(scene, "/big-crate-0/Group[0]/Texture[0]");
        QVERIFY(texture != nullptr);
        QCOMPARE(texture->filePath.getValue(), VbString("crate.png"));
        QVERIFY(texture->image.isDefault());
    }

    void aModelIsMadeOfRegularFilesInItsFolder_data()
    {
        QTest::addColumn<QByteArray>("materials");
        QTest::addColumn<bool>("isRead");
        QTest::newRow("beside") << QByteArray("inner/red.mtl") << true;
        QTest::newRow("behind a link to a file below") << QByteArray("good.mtl") << true;
        QTest::newRow("above") << QByteArray("../red.mtl") << false;
        QTest::newRow("behind a link to a file above") << QByteArray("bad.mtl") << false;
        QTest::newRow("a pipe") << QByteArray("pipe.mtl") << false;
        QTest::newRow("a device") << QByteArray("device.mtl") << false;
    }

    void aModelIsMadeOfRegularFilesInItsFolder()
    {
        QFETCH(QByteArray, materials);
        QFETCH(bool, isRead);
        const QTemporaryDir root;
        const auto path = [&root](const char* name) { return root.filePath(QString::fromUtf8(name)); };
        QVERIFY(QDir().mkpath(path("model/inner")));
        for (const char* name : {"red.mtl", "model/inner/red.mtl"})
            writeFile(path(name), "newmtl red\nKd 1 0 0\n");
        QVERIFY(QFile::link(path("red.mtl"), path("model/bad.mtl")));
        QVERIFY(QFile::link(QStringLiteral("inner/red.mtl"), path("model/good.mtl")));
        QVERIFY(QFile::link(QStringLiteral("/dev/zero"), path("model/device.mtl")));
        QCOMPARE(::mkfifo(path("model/pipe.mtl").toLocal8Bit().constData(), S_IRUSR | S_IWUSR), 0);
        writeFile(path("model/box.obj"), "mtllib " + materials + "\nv 0 0 0\nv 1 0 0\nv 0 1 0\nusemtl red\nf 1 2 3\n");
        // In this process, which isn't locked in.
        std::string error;
        const NxRef<NxGroup> scene = orvane::ModelReader().read(path("model/box.obj").toStdString(), error);
        QVERIFY2(scene, error.c_str());
        QCOMPARE(NxSceneWriter::toText(scene.get()).find("diffuseColor = 1 0 0") != std::string::npos, isRead);
    }

    void theSameModelInTwoFormatsGivesTheSameMeshes()
    {
        const NxRef<NxGroup> one = readFile(modelFile("crate.glb"));
        QVERIFY2(one, qPrintable(m_error));
        const NxRef<NxGroup> other = readFile(modelFile("crate.obj"));
        QVERIFY2(other, qPrintable(m_error));
        const std::vector<WorldTriangle> triangles = worldTriangles(*one);
        QCOMPARE(triangles.size(), std::size_t(2 * (12 + 1)));
        QVERIFY(triangles == worldTriangles(*other));
        const auto* mesh = find<NxMesh>(one, "/stack/big crate/Group[0]/crate-0");
        QVERIFY(mesh != nullptr);
        QCOMPARE(mesh->positions.getNum(), 24);
        const auto* sameMesh = find<NxMesh>(other, "/big-crate-0/Group[0]/big-crate-0");
        QVERIFY(sameMesh != nullptr);
        QCOMPARE(sameMesh->positions.getNum(), 24);
        QVERIFY(std::ranges::equal(mesh->indices.getValues(), sameMesh->indices.getValues()));
    }

    void nodesTooDeepInEachOtherAreRefused()
    {
        QByteArray nodes;
        for (int index = 0; index < 600; ++index)
            nodes += "{\"name\": \"n\", \"scale\": [2, 1, 1], \"children\": [" + QByteArray::number(index + 1) + "]}, ";
        nodes += "{\"name\": \"last\", \"mesh\": 0}";
        QVERIFY(!read(gltf::model(nodes, R"("scenes": [{"nodes": [0]}], )")));
        QVERIFY2(m_error.contains(QStringLiteral("nodes are nested more than 512 deep")), qPrintable(m_error));
    }

    void modelsOfOthersAreRead_data()
    {
        QTest::addColumn<QString>("fileName");
        QTest::addColumn<int>("triangles");
        const QString folder = QStringLiteral(ORVANE_SOURCES "/../shared/models/");
        QTest::newRow("engine") << folder + QStringLiteral("2CylinderEngine.glb") << 121496;
        QTest::newRow("bunny") << folder + QStringLiteral("stanford-bunny.obj") << 69451;
        QTest::newRow("teapot") << folder + QStringLiteral("teapot.obj") << 6320;
        QTest::newRow("textured box") << folder + QStringLiteral("BoxTextured/BoxTextured.gltf") << 12;
        QTest::newRow("cameras") << folder + QStringLiteral("cameras/Cameras.gltf") << 2;
    }

    void modelsOfOthersAreRead()
    {
        QFETCH(QString, fileName);
        QFETCH(int, triangles);
        if (!QFile::exists(fileName))
            QSKIP("the model isn't there");
        const NxRef<NxGroup> scene = readFile(fileName);
        QVERIFY2(scene, qPrintable(m_error));
        std::size_t count = 0;
        std::vector<const NxGroup*> groups{scene.get()};
        while (!groups.empty()) {
            const NxGroup* group = groups.back();
            groups.pop_back();
            for (NxNode* child : group->getChildren()) {
                if (const auto* mesh = dynamic_cast<const NxMesh*>(child))
                    count += static_cast<std::size_t>(mesh->indices.getNum()) / 3;
                else if (const auto* inner = dynamic_cast<const NxGroup*>(child))
                    groups.push_back(inner);
            }
        }
        QCOMPARE(count, static_cast<std::size_t>(triangles));
    }

private:
    NxRef<NxGroup> read(const QByteArray& model, const char* name = "model.gltf")
    {
        const QString fileName = m_folder.filePath(QString::fromUtf8(name));
        writeFile(fileName, model);
        return readFile(fileName);
    }

    NxRef<NxGroup> readFile(const QString& fileName)
    {
        const HelperRun run = runHelper({QStringLiteral("--read"), fileName});
        m_error = run.error;
        if (run.status != 0)
            return {};
        std::string error;
        NxRef<NxGroup> scene = sceneOf(run.output, error);
        m_error += QString::fromStdString(error);
        return scene;
    }

    QTemporaryDir m_folder;
    QString m_error;
};

QTEST_GUILESS_MAIN(TestModelReader)
#include "tst_ModelReader.moc"

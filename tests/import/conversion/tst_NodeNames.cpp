#include "import/Fbx.h"
#include "import/Gltf.h"
#include "import/conversion/ReadModels.h"

#include "orvane/import/mending/Names.h"
#include "orvane/import/mending/PivotFolding.h"

#include "meridane/scene/file/NxScenePath.h"
#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxMesh.h"
#include "meridane/scene/nodes/NxPerspectiveCamera.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <QTest>

#include <numbers>
#include <string>
#include <string_view>

#include <assimp/scene.h>

namespace {

const QByteArray firstNode = R"("scenes": [{"nodes": [0]}],)";

aiNode* addChild(aiNode& parent, const char* name, const aiMatrix4x4& transform)
{
    auto* child = new aiNode(name);
    child->mTransformation = transform;
    parent.addChildren(1, &child);
    return child;
}

aiMatrix4x4 moved(float x, float y, float z)
{
    aiMatrix4x4 matrix;
    return aiMatrix4x4::Translation(aiVector3D(x, y, z), matrix);
}

aiMatrix4x4 turned(float angle)
{
    aiMatrix4x4 matrix;
    return aiMatrix4x4::Rotation(angle, aiVector3D(1, 2, 3).Normalize(), matrix);
}

aiMatrix4x4 world(const aiNode& node)
{
    return node.mParent == nullptr ? node.mTransformation : world(*node.mParent) * node.mTransformation;
}

void addMesh(aiNode& node)
{
    node.mNumMeshes = 1;
    node.mMeshes = new unsigned int[1]{0};
}

} // namespace

/// The names in the tree, and the nodes that are there.
class TestNodeNames : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void namesOfTheLibraryAreLeftOut_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<bool>("isMadeUp");
        for (const char* name : {"", "nodes[81]", "meshes[0]", "meshes[0]-3", "materials[7]", "cameras[1]", "lights[2]",
                 "<OFFRoot>", "defaultobject", "DefaultMaterial", "$ColladaAutoName$_4", "arm_$AssimpFbx$_Rotation"})
            QTest::newRow(name) << QByteArray(name) << true;
        for (const char* name : {"arm", "nodes", "nodes[]", "nodes[a]", "nodes[1", "nodes[1]x", "nodes[1]-", "parts[1]",
                 "]nodes[", "<open", "default"})
            QTest::newRow(name) << QByteArray(name) << false;
    }

    void namesOfTheLibraryAreLeftOut()
    {
        QFETCH(QByteArray, name);
        QFETCH(bool, isMadeUp);
        QCOMPARE(orvane::isMadeUpName(name.toStdString()), isMadeUp);
    }

    void aNodeWithoutANameHasThatOfItsMesh()
    {
        ReadModels models;
        const NxRef<NxGroup> scene = models.read(
            "model.gltf", gltf::model(R"({"children": [1], "translation": [1, 0, 0]}, {"mesh": 0})", firstNode));
        QVERIFY2(scene, qPrintable(models.message()));
        const std::vector<NxTransform*> transforms = ReadModels::all<NxTransform>(*scene);
        QCOMPARE(transforms.size(), std::size_t(2));
        QCOMPARE(transforms[0]->getName(), VbString());
        QCOMPARE(transforms[1]->getName(), VbString("triangle"));
    }

    void partsWithoutNamesHaveNone()
    {
        QByteArray model = gltf::model(R"({"children": [1, 2], "translation": [1, 0, 0]}, {"mesh": 0}, {"camera": 0})",
            firstNode + R"("cameras": [{"type": "perspective", "perspective": {"yfov": 1, "znear": 0.1}}],
            "materials": [{"pbrMetallicRoughness": {}}],)",
            R"(, "material": 0)");
        model.replace(R"("name": "triangle", )", "");
        ReadModels models;
        const NxRef<NxGroup> scene = models.read("model.gltf", model);
        QVERIFY2(scene, qPrintable(models.message()));
        for (const NxNode* node : ReadModels::all<NxNode>(*scene))
            QCOMPARE(node->getName(), VbString());
        QCOMPARE(ReadModels::all<NxPerspectiveCamera>(*scene).size(), std::size_t(1));
        QCOMPARE(ReadModels::all<NxMaterial>(*scene).size(), std::size_t(1));
    }

    void groupsOfOneChildAreJoined_data()
    {
        QTest::addColumn<QByteArray>("nodes");
        QTest::addColumn<QByteArray>("joined"); // the path of the node with the mesh
        QTest::addColumn<QByteArray>("kept"); // the same when groups are kept
        const auto row = [](const char* name, const char* nodes, const char* joined, const char* kept) {
            QTest::newRow(name) << QByteArray(nodes) << QByteArray(joined) << QByteArray(kept);
        };
        row("without names", R"({"children": [1]}, {"children": [2]}, {"name": "arm", "mesh": 0})", "/arm",
            "/Transform[0]/Transform[0]/arm");
        row("one with a name", R"({"children": [1]}, {"name": "robot", "children": [2]}, {"name": "arm", "mesh": 0})",
            "/robot/arm", "/Transform[0]/robot/arm");
        row("with names", R"({"name": "file", "children": [1]}, {"name": "robot", "children": [2]},
            {"name": "arm", "mesh": 0})",
            "/robot/arm", "/file/robot/arm");
        row("with an effect", R"({"name": "file", "translation": [1, 0, 0], "children": [1]},
            {"name": "robot", "children": [2]}, {"name": "arm", "mesh": 0})",
            "/file/robot/arm", "/file/robot/arm");
        row("with two children", R"({"name": "file", "children": [1, 3]}, {"name": "robot", "children": [2]},
            {"name": "arm", "mesh": 0}, {"name": "leg", "mesh": 0})",
            "/file/robot/arm", "/file/robot/arm");
        row("above a name of none", R"({"name": "file", "children": [1]}, {"name": "robot", "children": [2]},
            {"children": [3, 4]}, {"name": "arm", "mesh": 0}, {"name": "leg", "mesh": 0})",
            "/robot/Transform[0]/arm", "/file/robot/Transform[0]/arm");
    }

    void groupsOfOneChildAreJoined()
    {
        QFETCH(QByteArray, nodes);
        QFETCH(QByteArray, joined);
        QFETCH(QByteArray, kept);
        ReadModels models;
        for (const bool keeps : {false, true}) {
            const NxRef<NxGroup> scene = models.read("model.gltf", gltf::model(nodes, firstNode),
                keeps ? QStringList(QStringLiteral("--keep-groups")) : QStringList());
            QVERIFY2(scene, qPrintable(models.message()));
            const QByteArray& path = keeps ? kept : joined;
            const auto* arm = dynamic_cast<NxGroup*>(NxScenePath::find(scene.get(), path.toStdString()).node());
            QVERIFY2(arm != nullptr, path.constData());
            QCOMPARE(ReadModels::all<NxMesh>(*arm).size(), std::size_t(1));
        }
    }

    void pivotsAreFolded()
    {
        const QByteArray pivots = fbx::vector("RotationPivot", "1,2,3") + fbx::vector("ScalingPivot", "0.5,0,0")
            + fbx::vector("PreRotation", "0,0,90") + fbx::vector("Lcl Translation", "10,20,30")
            + fbx::vector("Lcl Rotation", "30,40,50") + fbx::vector("Lcl Scaling", "2,2,2");
        ReadModels models;
        const NxRef<NxGroup> scene = models.read("model.fbx",
            fbx::model({{"arm", pivots},
                           {"hand", fbx::vector("RotationPivot", "1,0,0") + fbx::vector("Lcl Rotation", "0,45,0")}},
                fbx::space("1", "2", "1", "0", "100")));
        QVERIFY2(scene, qPrintable(models.message()));
        const std::vector<NxTransform*> transforms = ReadModels::all<NxTransform>(*scene);
        QCOMPARE(transforms.size(), std::size_t(2));
        QCOMPARE(transforms[0]->getName(), VbString("arm"));
        QCOMPARE(transforms[1]->getName(), VbString("hand"));
        QVERIFY(std::abs(transforms[0]->scaleFactor.getValue()[1] - 2) < 1e-5F);
        QCOMPARE(transforms[1]->rotation.getValue().getAngle(), std::numbers::pi_v<float> / 4);
        QVERIFY(dynamic_cast<const NxTransform*>(transforms[0]->getChild(1)) == transforms[1]);
    }

    void thePoseStays()
    {
        aiNode root("root");
        aiNode* chain = &root;
        for (const char* part : {"Translation", "RotationPivot", "PreRotation", "Rotation", "RotationPivotInverse",
                 "GeometricTranslation", "GeometricRotation"}) {
            const std::string name = std::string("arm_$AssimpFbx$_") + part;
            chain = addChild(
                *chain, name.c_str(), std::string_view(part).ends_with("otation") ? turned(0.7F) : moved(1, 2, 3));
        }
        aiNode* arm = addChild(*chain, "arm", aiMatrix4x4());
        addMesh(*arm);
        aiMatrix4x4 turnedBack = turned(0.7F);
        aiMatrix4x4 movedBack = moved(1, 2, 3);
        aiNode* undone = addChild(*arm, "arm_$AssimpFbx$_GeometricRotationInverse", turnedBack.Inverse());
        undone = addChild(*undone, "arm_$AssimpFbx$_GeometricTranslationInverse", movedBack.Inverse());
        aiNode* hand = addChild(*undone, "hand_$AssimpFbx$_Translation", moved(7, 8, 9));
        hand = addChild(*hand, "hand", turned(2));
        aiNode* foot = addChild(*undone, "foot", moved(0, 0, 4));
        const aiMatrix4x4 armBefore = world(*arm);
        const aiMatrix4x4 handBefore = world(*hand);
        const aiMatrix4x4 footBefore = world(*foot);
        orvane::foldPivots(root);
        QCOMPARE(root.mNumChildren, 1U);
        QCOMPARE(root.mChildren[0], arm);
        QCOMPARE(arm->mNumMeshes, 0U);
        QCOMPARE(arm->mNumChildren, 3U);
        QCOMPARE(arm->mChildren[0]->mName.length, 0U);
        QCOMPARE(arm->mChildren[0]->mNumMeshes, 1U);
        QVERIFY(world(*arm->mChildren[0]).Equal(armBefore, 1e-4F));
        QVERIFY(world(*hand).Equal(handBefore, 1e-4F));
        QVERIFY(world(*foot).Equal(footBefore, 1e-4F));
    }
};

QTEST_GUILESS_MAIN(TestNodeNames)
#include "tst_NodeNames.moc"

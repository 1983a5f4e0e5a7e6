#include "orvane/import/mending/RestPose.h"

#include <QTest>

#include <memory>
#include <numbers>

#include <assimp/scene.h>

namespace {

aiMatrix4x4 moved(float x, float y, float z)
{
    aiMatrix4x4 matrix;
    return aiMatrix4x4::Translation(aiVector3D(x, y, z), matrix);
}

aiNode* addChild(aiNode& parent, const char* name, const aiMatrix4x4& transform)
{
    auto* child = new aiNode(name);
    child->mTransformation = transform;
    parent.addChildren(1, &child);
    return child;
}

aiBone* makeBone(const char* name, const aiMatrix4x4& offset, const std::vector<aiVertexWeight>& weights)
{
    auto* bone = new aiBone;
    bone->mName.Set(name);
    bone->mOffsetMatrix = offset;
    bone->mNumWeights = static_cast<unsigned int>(weights.size());
    bone->mWeights = new aiVertexWeight[weights.size()];
    std::copy(weights.begin(), weights.end(), bone->mWeights);
    return bone;
}

/// A mesh of three points in the node "skin", which is moved by (0, 0, 5), and the bones "upper" and "lower". The first
/// point is held by one bone, the second by both, the third by none.
std::unique_ptr<aiScene> makeModel(const aiMatrix4x4& upper, const aiMatrix4x4& lower, const aiMatrix4x4& offset)
{
    auto model = std::make_unique<aiScene>();
    model->mRootNode = new aiNode("root");
    aiNode* skin = addChild(*model->mRootNode, "skin", moved(0, 0, 5));
    addChild(*model->mRootNode, "upper", upper);
    addChild(*model->mRootNode, "lower", lower);
    skin->mNumMeshes = 1;
    skin->mMeshes = new unsigned int[1]{0};
    auto* mesh = new aiMesh;
    mesh->mNumVertices = 3;
    mesh->mVertices = new aiVector3D[3]{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    mesh->mNormals = new aiVector3D[3]{{1, 0, 0}, {1, 0, 0}, {1, 0, 0}};
    mesh->mNumBones = 2;
    mesh->mBones = new aiBone* [2] {
        makeBone("upper", offset, {{0, 1}, {1, 0.5F}, {99, 1}}), makeBone("lower", offset, {{1, 0.5F}})
    };
    model->mNumMeshes = 1;
    model->mMeshes = new aiMesh* [1] { mesh };
    return model;
}

} // namespace

/// Skinned meshes, where the bones hold them at rest.
class TestRestPose : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void positionsAreWhereTheBonesHoldThem()
    {
        aiMatrix4x4 turned;
        aiMatrix4x4::RotationZ(std::numbers::pi_v<float> / 2, turned);
        const auto model = makeModel(turned, moved(10, 0, 0), aiMatrix4x4());
        orvane::poseSkins(*model);
        const aiMesh& mesh = *model->mMeshes[0];
        // In the space of the node, which is moved.
        QVERIFY(mesh.mVertices[0].Equal(aiVector3D(0, 1, -5), 1e-5F));
        QVERIFY(mesh.mNormals[0].Equal(aiVector3D(0, 1, 0), 1e-5F));
        QVERIFY(mesh.mVertices[1].Equal((aiVector3D(-1, 0, -5) + aiVector3D(10, 1, -5)) * 0.5F, 1e-5F));
        QVERIFY(mesh.mVertices[2] == aiVector3D(0, 0, 1));
    }

    void aBoundPoseStaysToTheBit()
    {
        const auto model = makeModel(moved(0, 0, 5), moved(0, 0, 5), aiMatrix4x4());
        orvane::poseSkins(*model);
        QVERIFY(model->mMeshes[0]->mVertices[0] == aiVector3D(1, 0, 0));
    }

    void anUnusableBoneMovesNothing()
    {
        const aiMatrix4x4 flat(0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1);
        const auto model = makeModel(moved(1, 0, 0), moved(1, 0, 0), flat);
        orvane::poseSkins(*model);
        QVERIFY(model->mMeshes[0]->mVertices[0] == aiVector3D(1, 0, 0));
    }

    void motionIsCounted()
    {
        const auto model = makeModel(aiMatrix4x4(), aiMatrix4x4(), aiMatrix4x4());
        model->mNumAnimations = 2;
        model->mAnimations = new aiAnimation* [2] { new aiAnimation, new aiAnimation };
        orvane::ImportWarnings warnings;
        orvane::reportMotion(*model, warnings);
        QCOMPARE(warnings.texts(),
            std::vector<std::string>{"the model is shown at rest, without the motion of 2 animations, 1 skinned mesh"});
        orvane::ImportWarnings none;
        orvane::reportMotion(aiScene(), none);
        QVERIFY(none.texts().empty());
    }
};

QTEST_GUILESS_MAIN(TestRestPose)
#include "tst_RestPose.moc"

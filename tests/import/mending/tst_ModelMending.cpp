#include "orvane/import/mending/ModelMending.h"

#include <QTest>

#include <memory>
#include <vector>

#include <assimp/postprocess.h>
#include <assimp/scene.h>

namespace {

template <typename Element>
void append(Element*& list, unsigned int& count, Element element)
{
    auto* const longer = new Element[count + 1];
    for (unsigned int index = 0; index < count; ++index)
        longer[index] = list[index];
    longer[count] = element;
    delete[] list;
    list = longer;
    ++count;
}

/// A model with a root node "root".
std::unique_ptr<aiScene> makeModel()
{
    auto model = std::make_unique<aiScene>();
    model->mRootNode = new aiNode("root");
    return model;
}

/// A mesh with that many positions in the root node.
aiMesh* addMesh(
    aiScene& model, const char* name, unsigned int positions, const std::vector<std::vector<unsigned>>& faces)
{
    auto* mesh = new aiMesh;
    mesh->mName.Set(name);
    mesh->mNumVertices = positions;
    mesh->mVertices = positions == 0 ? nullptr : new aiVector3D[positions];
    mesh->mNumFaces = static_cast<unsigned int>(faces.size());
    mesh->mFaces = faces.empty() ? nullptr : new aiFace[faces.size()];
    for (std::size_t index = 0; index < faces.size(); ++index) {
        mesh->mFaces[index].mNumIndices = static_cast<unsigned int>(faces[index].size());
        mesh->mFaces[index].mIndices = new unsigned int[faces[index].size()];
        std::copy(faces[index].begin(), faces[index].end(), mesh->mFaces[index].mIndices);
    }
    append(model.mRootNode->mMeshes, model.mRootNode->mNumMeshes, model.mNumMeshes);
    append(model.mMeshes, model.mNumMeshes, mesh);
    return mesh;
}

std::vector<std::string> mend(aiScene& model)
{
    orvane::ImportWarnings warnings;
    orvane::mendModel(model, warnings);
    return warnings.texts();
}

using Warnings = std::vector<std::string>;

} // namespace

/// Models with unusable parts, as a reader of the import library may leave them.
class TestModelMending : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aGoodModelStaysAsItIs()
    {
        const auto model = makeModel();
        const aiMesh* mesh = addMesh(*model, "good", 4, {{0, 1, 2}, {3}, {1, 2}, {0, 1, 2, 3}});
        QCOMPARE(mend(*model), Warnings());
        QCOMPARE(mesh->mNumFaces, 4U);
        QCOMPARE(mesh->mPrimitiveTypes,
            unsigned(
                aiPrimitiveType_POINT | aiPrimitiveType_LINE | aiPrimitiveType_TRIANGLE | aiPrimitiveType_POLYGON));
        QVERIFY(orvane::hasContent(*model));
    }

    void facesWithAnIndexOutOfRangeAreLeftOut()
    {
        const auto model = makeModel();
        const aiMesh* mesh = addMesh(*model, "bad", 3, {{0, 1, 3}, {2, 1, 0}, {7, 1, 0}, {}, {0, 2, 1}});
        QCOMPARE(mend(*model), Warnings{"left out faces with an index out of range in the meshes: \"bad\""});
        QCOMPARE(mesh->mNumFaces, 2U);
        QCOMPARE(mesh->mFaces[0].mIndices[0], 2U);
        QCOMPARE(mesh->mFaces[1].mIndices[1], 2U);
        QCOMPARE(mesh->mPrimitiveTypes, unsigned(aiPrimitiveType_TRIANGLE));
    }

    void aMeshWithoutAGoodFaceIsEmpty()
    {
        const auto model = makeModel();
        const aiMesh* mesh = addMesh(*model, "bad", 3, {{0, 1, 3}});
        QCOMPARE(mend(*model).size(), std::size_t(1));
        QCOMPARE(mesh->mNumVertices, 0U);
        QVERIFY(!orvane::hasContent(*model));
    }

    void aMeshWithoutFacesIsPoints()
    {
        const auto model = makeModel();
        const aiMesh* mesh = addMesh(*model, "cloud", 3, {});
        QCOMPARE(mend(*model), Warnings());
        QCOMPARE(mesh->mNumVertices, 3U);
        QCOMPARE(mesh->mPrimitiveTypes, unsigned(aiPrimitiveType_POINT));
    }

    void aMeshWithoutPositionsIsLeftOut()
    {
        const auto model = makeModel();
        addMesh(*model, "good", 3, {{0, 1, 2}});
        const aiMesh* mesh = addMesh(*model, "empty", 0, {{0, 1, 2}});
        QCOMPARE(mend(*model), Warnings{"left out meshes without positions: \"empty\""});
        QCOMPARE(mesh->mNumFaces, 0U);
        QVERIFY(orvane::hasContent(*model));
    }

    void lightsCamerasAndBonesWithoutANodeAreLeftOut()
    {
        const auto model = makeModel();
        append(model->mRootNode->mChildren, model->mRootNode->mNumChildren, new aiNode("here"));
        aiMesh* mesh = addMesh(*model, "skin", 3, {{0, 1, 2}});
        for (const char* name : {"here", "away"}) {
            append(model->mLights, model->mNumLights, new aiLight);
            model->mLights[model->mNumLights - 1]->mName.Set(name);
            append(model->mCameras, model->mNumCameras, new aiCamera);
            model->mCameras[model->mNumCameras - 1]->mName.Set(name);
            append(mesh->mBones, mesh->mNumBones, new aiBone);
            mesh->mBones[mesh->mNumBones - 1]->mName.Set(name);
        }
        QCOMPARE(mend(*model),
            (Warnings{"left out lights without a node: \"away\"", "left out cameras without a node: \"away\"",
                "left out bones without a node: \"away\""}));
        QCOMPARE(model->mNumLights, 1U);
        QCOMPARE(model->mNumCameras, 1U);
        QCOMPARE(model->mCameras[0]->mName, aiString("here"));
        QCOMPARE(mesh->mNumBones, 0U);
    }

    void missingPartsAreLeftOut()
    {
        const auto model = makeModel();
        addMesh(*model, "good", 3, {{0, 1, 2}});
        append(model->mMeshes, model->mNumMeshes, static_cast<aiMesh*>(nullptr));
        append(model->mMaterials, model->mNumMaterials, static_cast<aiMaterial*>(nullptr));
        append(model->mTextures, model->mNumTextures, static_cast<aiTexture*>(nullptr));
        append(model->mRootNode->mChildren, model->mRootNode->mNumChildren, static_cast<aiNode*>(nullptr));
        append(model->mRootNode->mMeshes, model->mRootNode->mNumMeshes, 7U);
        QCOMPARE(mend(*model),
            (Warnings{"left out meshes that don't exist in the nodes: \"root\"",
                "left out meshes without positions: 1 without a name"}));
        QVERIFY(model->mMeshes[1] != nullptr && model->mMaterials[0] != nullptr && model->mTextures[0] != nullptr);
        QCOMPARE(model->mRootNode->mNumMeshes, 1U);
        QCOMPARE(model->mRootNode->mNumChildren, 0U);
    }
};

QTEST_GUILESS_MAIN(TestModelMending)
#include "tst_ModelMending.moc"

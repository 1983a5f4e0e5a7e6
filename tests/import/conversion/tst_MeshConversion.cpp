#include "orvane/import/conversion/MeshConversion.h"

#include <QTest>

using namespace orvane;

namespace {

NxRef<NxMesh> square()
{
    NxRef<NxMesh> mesh = new NxMesh;
    mesh->setName("square");
    mesh->positions.setValues(std::vector<VbVec3f>{{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}});
    mesh->normals.setValues(std::vector<VbVec3f>(4, VbVec3f(0, 0, 1)));
    mesh->textureCoordinates.setValues(std::vector<VbVec2f>{{0, 0}, {1, 0}, {1, 1}, {0, 1}});
    mesh->colors.setValues(std::vector<VbVec4f>{{1, 0, 0, 1}, {0, 1, 0, 1}, {0, 0, 1, 1}, {1, 1, 1, 0.5F}});
    mesh->indices.setValues(std::vector<int>{0, 1, 2, 0, 2, 3});
    return mesh;
}

} // namespace

class TestMeshConversion : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void meshesComeBackAsTheyWere_data()
    {
        QTest::addColumn<int>("primitive");
        QTest::newRow("triangles") << int(NxMesh::TRIANGLES);
        QTest::newRow("lines") << int(NxMesh::LINES);
        QTest::newRow("points") << int(NxMesh::POINTS);
    }

    void meshesComeBackAsTheyWere()
    {
        QFETCH(int, primitive);
        const NxRef<NxMesh> mesh = square();
        mesh->primitive.setValue(primitive);
        std::string error;
        const std::unique_ptr<aiMesh> foreign = toAiMesh(*mesh, error);
        QVERIFY2(foreign != nullptr, error.c_str());
        const NxRef<NxMesh> result = toMesh(*foreign);
        QCOMPARE(result->getName(), mesh->getName());
        for (NxField* field : mesh->getFields())
            QVERIFY(field->isSame(*result->getField(mesh->getFieldName(field))));
    }

    void withoutIndicesAllPositionsFollowInOrder()
    {
        const NxRef<NxMesh> mesh = square();
        mesh->indices.setValues(std::vector<int>{});
        std::string error;
        const NxRef<NxMesh> result = toMesh(*toAiMesh(*mesh, error));
        QCOMPARE(result->positions.getNum(), 4);
        QVERIFY(std::ranges::equal(result->indices.getValues(), std::vector<int>{0, 1, 2}));
    }

    void oneColorCountsForAllPositions()
    {
        const NxRef<NxMesh> mesh = square();
        mesh->colors.setValues(std::vector<VbVec4f>{{1, 0, 0, 0.5F}});
        std::string error;
        const NxRef<NxMesh> result = toMesh(*toAiMesh(*mesh, error));
        QCOMPARE(result->colors.getNum(), 4);
        QCOMPARE(result->colors[3], VbVec4f(1, 0, 0, 0.5F));
    }

    void listsThatDoNotFitAreLeftOut()
    {
        const NxRef<NxMesh> mesh = square();
        mesh->normals.deleteValues(0, 1);
        mesh->textureCoordinates.insertSpace(0, 1);
        mesh->colors.deleteValues(0, 2);
        std::string error;
        const NxRef<NxMesh> result = toMesh(*toAiMesh(*mesh, error));
        QCOMPARE(result->positions.getNum(), 4);
        QCOMPARE(result->normals.getNum() + result->textureCoordinates.getNum() + result->colors.getNum(), 0);
    }

    void anIncompleteFaceIsLeftOut()
    {
        const NxRef<NxMesh> mesh = square();
        mesh->indices.deleteValues(5, 1);
        std::string error;
        QCOMPARE(toMesh(*toAiMesh(*mesh, error))->indices.getNum(), 3);
    }

    void anIndexWithoutAPositionIsRefused_data()
    {
        QTest::addColumn<int>("index");
        QTest::newRow("too large") << 4;
        QTest::newRow("negative") << -1;
    }

    void anIndexWithoutAPositionIsRefused()
    {
        QFETCH(int, index);
        const NxRef<NxMesh> mesh = square();
        mesh->indices.set1Value(4, index);
        std::string error;
        QVERIFY(toAiMesh(*mesh, error) == nullptr);
        QCOMPARE(QString::fromStdString(error),
            QStringLiteral("the mesh \"square\" has the index %1, but only 4 positions").arg(index));
    }

    void aMeshWithoutAFaceGivesNone()
    {
        const NxRef<NxMesh> mesh = new NxMesh;
        std::string error;
        QVERIFY(toAiMesh(*mesh, error) == nullptr);
        QCOMPARE(error, std::string());
    }

    void directionsGetUnitLength()
    {
        const NxRef<NxMesh> mesh = square();
        mesh->normals.setValues(std::vector<VbVec3f>{{0, 0, 2}, {0, 0.5F, 0}, {0, 0, 0}, {0, 0, 1.0001F}});
        std::string error;
        const NxRef<NxMesh> result = toMesh(*toAiMesh(*mesh, error));
        QCOMPARE(result->normals[0], VbVec3f(0, 0, 1));
        QCOMPARE(result->normals[1], VbVec3f(0, 1, 0));
        QCOMPARE(result->normals[2], VbVec3f(0, 0, 0));
        QVERIFY2(result->normals[3] == VbVec3f(0, 0, 1.0001F), "what is near enough stays as it was");
    }

    void facesOfAnotherKindAreLeftOut()
    {
        std::string error;
        const std::unique_ptr<aiMesh> foreign = toAiMesh(*square(), error);
        foreign->mFaces[0].mIndices[1] = 99; // broken models may get this far
        foreign->mFaces[1].mNumIndices = 2;
        QCOMPARE(toMesh(*foreign)->indices.getNum(), 0);
    }
};

QTEST_GUILESS_MAIN(TestMeshConversion)
#include "tst_MeshConversion.moc"

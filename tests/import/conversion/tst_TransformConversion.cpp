#include "orvane/import/conversion/TransformConversion.h"

#include "meridane/scene/nodes/NxMatrixTransform.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <QTest>

#include <cmath>
#include <limits>
#include <numbers>

using namespace orvane;

namespace {

bool isNear(const aiMatrix4x4& left, const aiMatrix4x4& right)
{
    return left.Equal(right, 1e-5F);
}

bool isNear(const aiVector3D& left, const aiVector3D& right)
{
    return left.Equal(right, 1e-5F);
}

aiMatrix4x4 scaling(float x, float y, float z)
{
    aiMatrix4x4 matrix;
    return aiMatrix4x4::Scaling({x, y, z}, matrix);
}

aiMatrix4x4 sheared()
{
    aiMatrix4x4 matrix;
    matrix.a2 = 0.5F;
    return matrix;
}

} // namespace

class TestTransformConversion : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theTranslationStandsInTheLastRow()
    {
        const aiMatrix4x4 matrix = rigidMatrix(VbRotation(), VbVec3f(1, 2, 3));
        QCOMPARE(matrix.a4, 1.0F);
        QVERIFY(toMatrix(matrix)[3] == (std::array<float, 4>{1, 2, 3, 1}));
        QVERIFY(toAiMatrix(toMatrix(matrix)) == matrix);
    }

    void matricesBecomeTransforms_data()
    {
        QTest::addColumn<aiMatrix4x4>("matrix");
        QTest::addColumn<bool>("hasFields");
        const VbRotation turn(VbVec3f(1, 2, 3), 0.75F);
        const VbVec3f place(4, -5, 6);
        aiMatrix4x4 projection;
        projection.d1 = 0.5F;
        aiMatrix4x4 bad;
        bad.a1 = std::numeric_limits<float>::quiet_NaN();
        QTest::newRow("identity") << aiMatrix4x4() << true;
        QTest::newRow("moved") << rigidMatrix(VbRotation(), place) << true;
        QTest::newRow("turned") << rigidMatrix(turn, place) << true;
        QTest::newRow("half a turn") << rigidMatrix(VbRotation(VbVec3f(0, 1, 0), 3.1415927F), place) << true;
        QTest::newRow("scaled alike") << rigidMatrix(turn, place) * scaling(3, 3, 3) << true;
        QTest::newRow("scaled apart") << rigidMatrix(turn, place) * scaling(2, 3, 0.001F) << true;
        QTest::newRow("mirrored along x") << rigidMatrix(turn, place) * scaling(-1, 1, 1) << true;
        QTest::newRow("mirrored along y") << rigidMatrix(turn, place) * scaling(1, -2, 1) << true;
        QTest::newRow("mirrored along all") << rigidMatrix(turn, place) * scaling(-1, -1, -1) << true;
        QTest::newRow("scaled after turning") << scaling(2, 3, 4) * rigidMatrix(turn, place) << false;
        QTest::newRow("sheared") << sheared() << false;
        QTest::newRow("flat") << scaling(1, 0, 1) << false;
        QTest::newRow("projection") << projection << false;
        QTest::newRow("not a number") << bad << false;
    }

    void matricesBecomeTransforms()
    {
        QFETCH(aiMatrix4x4, matrix);
        QFETCH(bool, hasFields);
        const NxRef<NxGroup> group = makeTransform(matrix);
        QCOMPARE(group->isOfType(NxTransform::getClassTypeId()), hasFields);
        QCOMPARE(group->isOfType(NxMatrixTransform::getClassTypeId()), !hasFields);
        if (!std::isnan(matrix.a1))
            QVERIFY(isNear(matrixOf(*group), matrix));
    }

    void anIdentityLeavesTheFieldsAtTheirDefaults()
    {
        const NxRef<NxGroup> group = makeTransform(aiMatrix4x4());
        for (NxField* field : group->getFields())
            QVERIFY(field->isDefault());
    }

    void transformsTurnAboutTheirCenter()
    {
        const NxRef<NxTransform> transform = new NxTransform;
        transform->center.setValue(1, 1, 0);
        transform->scaleFactor.setValue(2, 2, 2);
        transform->rotation.setValue(VbRotation(VbVec3f(0, 0, 1), std::numbers::pi_v<float> / 2));
        transform->translation.setValue(0, 0, 5);
        const aiMatrix4x4 matrix = matrixOf(*transform);
        QVERIFY(isNear(matrix * aiVector3D(1, 1, 0), {1, 1, 5}));
        QVERIFY(isNear(matrix * aiVector3D(2, 1, 0), {1, 3, 5}));
    }

    void aCameraLooksAlongItsDirection_data()
    {
        QTest::addColumn<aiVector3D>("direction");
        QTest::addColumn<aiVector3D>("up");
        QTest::newRow("ahead") << aiVector3D(0, 0, -1) << aiVector3D(0, 1, 0);
        QTest::newRow("back") << aiVector3D(0, 0, 7) << aiVector3D(0, 1, 0);
        QTest::newRow("aside") << aiVector3D(1, 0, 0) << aiVector3D(0, 1, 0);
        QTest::newRow("lying") << aiVector3D(1, 0, 0) << aiVector3D(0, 0, 1);
        QTest::newRow("straight up") << aiVector3D(0, 1, 0) << aiVector3D(0, 1, 0);
        QTest::newRow("straight down") << aiVector3D(0, -1, 0) << aiVector3D(0, 1, 0);
        QTest::newRow("no up") << aiVector3D(1, 2, 3) << aiVector3D(0, 0, 0);
        QTest::newRow("no direction") << aiVector3D(0, 0, 0) << aiVector3D(0, 1, 0);
    }

    void aCameraLooksAlongItsDirection()
    {
        QFETCH(aiVector3D, direction);
        QFETCH(aiVector3D, up);
        const aiMatrix4x4 matrix = rigidMatrix(rotationTo(direction, up), VbVec3f());
        const aiVector3D wanted = direction.Length() > 0 ? direction / direction.Length() : aiVector3D(0, 0, -1);
        QVERIFY(isNear(matrix * aiVector3D(0, 0, -1), wanted));
        QVERIFY2(matrix * aiVector3D(0, 1, 0) * up >= -1e-5F, "up doesn't point down");
    }

    void onlyAMatrixThatKeepsLengthsIsRigid()
    {
        VbRotation rotation;
        VbVec3f translation;
        QVERIFY(isRigid(rigidMatrix(VbRotation(VbVec3f(0, 0, 1), 1), VbVec3f(1, 2, 3)), rotation, translation));
        QCOMPARE(translation, VbVec3f(1, 2, 3));
        QVERIFY(std::abs(rotation.getAngle() - 1) < 1e-5F);
        QVERIFY(!isRigid(scaling(2, 2, 2), rotation, translation));
        QVERIFY(!isRigid(scaling(-1, 1, 1), rotation, translation));
        QVERIFY(!isRigid(sheared(), rotation, translation));
    }
};

QTEST_GUILESS_MAIN(TestTransformConversion)
#include "tst_TransformConversion.moc"

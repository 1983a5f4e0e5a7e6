#include "gl/FloatMatrices.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"
#include "meridane/scene/nodes/NxMatrixTransform.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <QTest>

#include <cmath>
#include <limits>
#include <numbers>

using namespace meridane;

namespace {

constexpr float noNumber = std::numeric_limits<float>::quiet_NaN();
const VbRotation quarterTurn(VbVec3f(0, 0, 3), std::numbers::pi_v<float> / 2);

bool isNear(const VbVec3d& left, const VbVec3d& right)
{
    return length(subtract(left, right)) < 1e-5;
}

} // namespace

class TestMatrixMath : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void doesTheFirstMatrixFirst()
    {
        const VbMatrix turnedThenMoved = multiply(rotationMatrix(quarterTurn), translationMatrix(VbVec3f(10, 0, 0)));
        QVERIFY(isNear(transformPoint(VbVec3f(1, 0, 0), turnedThenMoved), VbVec3f(10, 1, 0)));
        QVERIFY(isNear(transformDirection(VbVec3f(1, 0, 0), turnedThenMoved), VbVec3f(0, 1, 0)));
    }

    void dividesByTheFourthCoordinate()
    {
        VbMatrix matrix;
        matrix[2][3] = 1; // as a projection does
        matrix[3][3] = 0;
        QVERIFY(isNear(transformPoint(VbVec3f(2, 4, 2), matrix), VbVec3f(1, 2, 1)));
    }

    void invertsWhatCanBeInverted()
    {
        const VbMatrix matrix = multiply(multiply(scaleMatrix(VbVec3f(2, -3, 0.25F)), rotationMatrix(quarterTurn)),
            translationMatrix(VbVec3f(5, 6, 7)));
        const auto back = inverse(matrix);
        QVERIFY(back);
        const VbVec3f point(0.5F, -2, 3);
        QVERIFY(isNear(transformPoint(transformPoint(point, matrix), *back), point));
    }

    void tellsWhatHasNoInverse()
    {
        QVERIFY(!inverse(scaleMatrix(VbVec3f(1, 0, 1))));
        QVERIFY(!inverse(scaleMatrix(VbVec3f(1, noNumber, 1))));
        QVERIFY(!inverse(scaleMatrix(VbVec3f(1, 1e-45F, 1))));
        QVERIFY(inverse(scaleMatrix(VbVec3f(1, 1e-30F, 1))));
    }

    void placesTheChildrenOfATransform()
    {
        const NxRef<NxTransform> node(new NxTransform);
        node->center.setValue(VbVec3f(1, 0, 0));
        node->scaleFactor.setValue(VbVec3f(2, 2, 2));
        node->rotation.setValue(quarterTurn);
        node->translation.setValue(VbVec3f(0, 0, 5));
        QVERIFY(isNear(transformPoint(VbVec3f(2, 0, 0), localTransformOf(*node)), VbVec3f(1, 2, 5)));
        node->rotation.setIgnored(1);
        QVERIFY(isNear(transformPoint(VbVec3f(2, 0, 0), localTransformOf(*node)), VbVec3f(3, 0, 5)));
        node->translation.setIgnored(1);
        node->scaleFactor.setIgnored(1);
        QCOMPARE(narrowed(localTransformOf(*node)), VbMatrix());
    }

    void placesTheChildrenOfAMatrixTransform()
    {
        const NxRef<NxMatrixTransform> node(new NxMatrixTransform);
        node->matrix.setValue(translationMatrix(VbVec3f(1, 2, 3)));
        QCOMPARE(narrowed(localTransformOf(*node)), translationMatrix(VbVec3f(1, 2, 3)));
        node->matrix.setIgnored(1);
        QCOMPARE(narrowed(localTransformOf(*node)), VbMatrix());
        QCOMPARE(narrowed(localTransformOf(*NxRef<NxGroup>(new NxGroup))), VbMatrix());
    }

    void givesADirectionToWhatHasNone()
    {
        const VbVec3f other(0, 1, 0);
        QVERIFY(isNear(normalized(VbVec3f(0, 0, -1e-30F), other), VbVec3f(0, 0, -1)));
        QVERIFY(isNear(normalized(VbVec3f(0, 0, -4), other), VbVec3f(0, 0, -1)));
        QCOMPARE(normalized(VbVec3f(), other), other);
        QCOMPARE(normalized(VbVec3f(noNumber, 0, 0), other), other);
        QCOMPARE(normalized(VbVec3f(std::numeric_limits<float>::infinity(), 0, 0), other), other);
        QVERIFY(isFinite(other) && !isFinite(VbVec3f(0, noNumber, 0)));
    }
};

QTEST_GUILESS_MAIN(TestMatrixMath)
#include "tst_MatrixMath.moc"

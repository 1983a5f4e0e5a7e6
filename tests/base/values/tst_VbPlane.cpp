#include "meridane/base/values/VbPlane.h"

#include <QTest>

#include <cmath>
#include <limits>

class TestVbPlane : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aNewPlaneFacesAlongZThroughTheOrigin()
    {
        QVERIFY(VbPlane().getNormal() == VbVec3f(0, 0, 1));
        QCOMPARE(VbPlane().getDistanceFromOrigin(), 0.0F);
    }

    void theNormalIsNormalisedAndTheDistanceKept()
    {
        const VbPlane plane(VbVec3f(3, 0, -4), 10);
        QVERIFY(plane.getNormal() == VbVec3f(0.6F, 0, -0.8F));
        QCOMPARE(plane.getDistanceFromOrigin(), 10.0F);
    }

    void hugeAndTinyNormalsAreNormalisedToo()
    {
        QVERIFY(VbPlane(VbVec3f(0, 3e38F, 0), 0).getNormal() == VbVec3f(0, 1, 0));
        QVERIFY(VbPlane(VbVec3f(0, 1e-40F, 0), 0).getNormal() == VbVec3f(0, 1, 0));
    }

    void comparisonIsByNormalAndDistance()
    {
        const VbPlane plane(VbVec3f(1, 0, 0), 2);
        QVERIFY(plane == VbPlane(VbVec3f(3, 0, 0), 2));
        QVERIFY(plane != VbPlane(VbVec3f(0, 1, 0), 2));
        QVERIFY(plane != VbPlane(VbVec3f(1, 0, 0), 3));
    }

    void readingBackChangesNothing()
    {
        for (int i = 1; i < 1000; ++i) {
            const auto f = static_cast<float>(i);
            const VbPlane plane(VbVec3f(f, 1000 - f, std::sqrt(f)), f);
            const VbPlane again(plane.getNormal(), plane.getDistanceFromOrigin());
            QVERIFY(again == plane);
        }
    }

    void aNormalThatHasNoDirectionStays()
    {
        QVERIFY(VbPlane(VbVec3f(0, 0, 0), 1).getNormal() == VbVec3f(0, 0, 0));
        const float infinity = std::numeric_limits<float>::infinity();
        QVERIFY(VbPlane(VbVec3f(infinity, 0, 0), 1).getNormal() == VbVec3f(infinity, 0, 0));
        QVERIFY(std::isnan(VbPlane(VbVec3f(std::nanf(""), 0, 0), 1).getNormal()[0]));
    }
};

QTEST_APPLESS_MAIN(TestVbPlane)
#include "tst_VbPlane.moc"

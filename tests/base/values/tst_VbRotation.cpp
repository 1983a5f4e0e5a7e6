#include "meridane/base/values/VbRotation.h"

#include <QTest>

#include <cmath>
#include <numbers>

namespace {

constexpr float pi = std::numbers::pi_v<float>;

bool isNear(float a, float b)
{
    return std::abs(a - b) < 1e-6F;
}

} // namespace

class TestVbRotation : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aNewRotationTurnsByNothingAboutZ()
    {
        VbVec3f axis;
        float radians = 1;
        VbRotation().getValue(axis, radians);
        QVERIFY(axis == VbVec3f(0, 0, 1));
        QCOMPARE(radians, 0.0F);
    }

    void axisAndAngleAreKeptExactly()
    {
        VbRotation rotation;
        VbRotation& result = rotation.setValue(VbVec3f(3, 0, -4), 100);
        QVERIFY(&result == &rotation);
        VbVec3f axis;
        float radians = 0;
        rotation.getValue(axis, radians);
        QVERIFY(axis == VbVec3f(3, 0, -4));
        QCOMPARE(radians, 100.0F);
        QVERIFY(rotation == VbRotation(VbVec3f(3, 0, -4), 100));
        QVERIFY(rotation != VbRotation(VbVec3f(3, 0, 4), 100));
        QVERIFY(rotation != VbRotation(VbVec3f(3, 0, -4), 101));
    }

    void aQuaternionGivesAxisAndAngle_data()
    {
        QTest::addColumn<QList<float>>("quaternion");
        QTest::addColumn<QList<float>>("axisAndAngle");
        const float half = std::sqrt(0.5F);
        QTest::newRow("identity") << QList<float>{0, 0, 0, 1} << QList<float>{0, 0, 1, 0};
        QTest::newRow("quarter turn about x") << QList<float>{half, 0, 0, half} << QList<float>{1, 0, 0, pi / 2};
        QTest::newRow("half turn about y") << QList<float>{0, 1, 0, 0} << QList<float>{0, 1, 0, pi};
        QTest::newRow("three quarters about z") << QList<float>{0, 0, half, -half} << QList<float>{0, 0, 1, 3 * pi / 2};
        QTest::newRow("not of unit length") << QList<float>{10, 0, 0, 10} << QList<float>{1, 0, 0, pi / 2};
        QTest::newRow("a tiny turn") << QList<float>{5e-5F, 0, 0, 1} << QList<float>{1, 0, 0, 1e-4F};
        QTest::newRow("zero") << QList<float>{0, 0, 0, 0} << QList<float>{0, 0, 1, 0};
    }
    void aQuaternionGivesAxisAndAngle()
    {
        QFETCH(const QList<float>, quaternion);
        QFETCH(const QList<float>, axisAndAngle);
        VbRotation rotation(VbVec3f(1, 1, 1), 1);
        VbRotation& result = rotation.setValue(quaternion.constData());
        QVERIFY(&result == &rotation);
        for (int i = 0; i < 3; ++i)
            QVERIFY(isNear(rotation.getAxis()[static_cast<std::size_t>(i)], axisAndAngle[i]));
        QVERIFY(isNear(rotation.getAngle(), axisAndAngle[3]));
    }

    void theQuaternionHasUnitLength_data()
    {
        QTest::addColumn<QList<float>>("axisAndAngle");
        QTest::addColumn<QList<float>>("quaternion");
        const float half = std::sqrt(0.5F);
        QTest::newRow("long axis") << QList<float>{0, 8, 0, pi / 2} << QList<float>{0, half, 0, half};
        QTest::newRow("short axis") << QList<float>{0, 0, 1e-20F, pi} << QList<float>{0, 0, 1, 0};
        QTest::newRow("negative angle") << QList<float>{1, 0, 0, -pi / 2} << QList<float>{-half, 0, 0, half};
        QTest::newRow("no axis") << QList<float>{0, 0, 0, 1} << QList<float>{0, 0, 0, 1};
    }
    void theQuaternionHasUnitLength()
    {
        QFETCH(const QList<float>, axisAndAngle);
        QFETCH(const QList<float>, quaternion);
        const VbRotation rotation(VbVec3f(axisAndAngle[0], axisAndAngle[1], axisAndAngle[2]), axisAndAngle[3]);
        for (int i = 0; i < 4; ++i)
            QVERIFY(isNear(rotation.getQuaternion()[static_cast<std::size_t>(i)], quaternion[i]));
    }
};

QTEST_APPLESS_MAIN(TestVbRotation)
#include "tst_VbRotation.moc"

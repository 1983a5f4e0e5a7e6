#include "meridane/base/values/VbVec.h"

#include <QTest>

#include <limits>
#include <type_traits>

static_assert(!std::is_convertible_v<VbVec3f, VbVec4f>);
static_assert(std::is_trivially_copyable_v<VbVec3f>, "bulk access copies vectors as bytes");
static_assert(sizeof(VbVec2f) == 8 && sizeof(VbVec2s) == 4 && sizeof(VbVec2i32) == 8);
static_assert(sizeof(VbVec3f) == 12 && sizeof(VbVec3s) == 6 && sizeof(VbVec4f) == 16);

class TestVbVec : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void allComponentsAreZeroAtFirst()
    {
        QVERIFY(VbVec2f() == VbVec2f(0, 0));
        QVERIFY(VbVec2s() == VbVec2s(0, 0));
        QVERIFY(VbVec2i32() == VbVec2i32(0, 0));
        QVERIFY(VbVec3f() == VbVec3f(0, 0, 0));
        QVERIFY(VbVec3s() == VbVec3s(0, 0, 0));
        QVERIFY(VbVec4f() == VbVec4f(0, 0, 0, 0));
    }

    void getValueHandsOutEveryComponentInOrder()
    {
        float x = 0;
        float y = 0;
        float z = 0;
        float w = 0;
        VbVec2f(1, 2).getValue(x, y);
        QVERIFY(x == 1 && y == 2);
        VbVec3f(3, 4, 5).getValue(x, y, z);
        QVERIFY(x == 3 && y == 4 && z == 5);
        VbVec4f(6, 7, 8, 9).getValue(x, y, z, w);
        QVERIFY(x == 6 && y == 7 && z == 8 && w == 9);
        short a = 0;
        short b = 0;
        short c = 0;
        VbVec2s(std::numeric_limits<short>::min(), -1).getValue(a, b);
        QVERIFY(a == std::numeric_limits<short>::min() && b == -1);
        VbVec3s(1, 2, std::numeric_limits<short>::max()).getValue(a, b, c);
        QVERIFY(a == 1 && b == 2 && c == std::numeric_limits<short>::max());
        int i = 0;
        int j = 0;
        VbVec2i32(std::numeric_limits<int>::min(), std::numeric_limits<int>::max()).getValue(i, j);
        QVERIFY(i == std::numeric_limits<int>::min() && j == std::numeric_limits<int>::max());
    }

    void setValueReturnsTheVectorItself()
    {
        VbVec4f vector;
        VbVec4f& result = vector.setValue(1.0F, 2.0F, 3.0F, 4.0F);
        QVERIFY(&result == &vector);
        QVERIFY(vector == VbVec4f(1, 2, 3, 4));
    }

    void componentsAreReadAndWrittenByIndex()
    {
        VbVec3f vector(1, 2, 3);
        vector[1] = 7;
        QVERIFY(vector == VbVec3f(1, 7, 3));
        QCOMPARE(vector.getValue()[2], 3.0F);
    }

    void comparisonIsByComponent()
    {
        QVERIFY(VbVec2f(1, 2) != VbVec2f(2, 1));
        QVERIFY(VbVec2f(0.0F, 0) == VbVec2f(-0.0F, 0));
        const VbVec2f notANumber(std::numeric_limits<float>::quiet_NaN(), 0);
        QVERIFY(notANumber != notANumber);
    }
};

QTEST_APPLESS_MAIN(TestVbVec)
#include "tst_VbVec.moc"

#include "meridane/base/values/VbBox.h"

#include <QTest>

class TestVbBox : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void newBoxesLieAtTheOrigin()
    {
        QVERIFY(VbBox2f().getMin() == VbVec2f() && VbBox2f().getMax() == VbVec2f());
        QVERIFY(VbBox3s().getMin() == VbVec3s() && VbBox3s().getMax() == VbVec3s());
    }

    void cornersAreKeptAsGiven()
    {
        const VbBox2f flat(VbVec2f(5, -6), VbVec2f(-7, 8));
        QVERIFY(flat.getMin() == VbVec2f(5, -6));
        QVERIFY(flat.getMax() == VbVec2f(-7, 8));
        const VbBox3s solid(VbVec3s(3, 2, 1), VbVec3s(-1, -2, -3));
        QVERIFY(solid.getMin() == VbVec3s(3, 2, 1));
        QVERIFY(solid.getMax() == VbVec3s(-1, -2, -3));
    }

    void comparisonIsByCorners()
    {
        QVERIFY(VbBox2f(VbVec2f(1, 2), VbVec2f(3, 4)) == VbBox2f(VbVec2f(1, 2), VbVec2f(3, 4)));
        QVERIFY(VbBox2f(VbVec2f(1, 2), VbVec2f(3, 4)) != VbBox2f(VbVec2f(1, 2), VbVec2f(3, 5)));
        QVERIFY(VbBox2f(VbVec2f(1, 2), VbVec2f(3, 4)) != VbBox2f(VbVec2f(0, 2), VbVec2f(3, 4)));
        const VbBox3s box(VbVec3s(1, 2, 3), VbVec3s(4, 5, 6));
        QVERIFY(box == VbBox3s(VbVec3s(1, 2, 3), VbVec3s(4, 5, 6)));
        QVERIFY(box != VbBox3s(VbVec3s(1, 2, 4), VbVec3s(4, 5, 6)));
        QVERIFY(box != VbBox3s(VbVec3s(1, 2, 3), VbVec3s(4, 5, 7)));
    }
};

QTEST_APPLESS_MAIN(TestVbBox)
#include "tst_VbBox.moc"

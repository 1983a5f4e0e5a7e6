#include "meridane/base/values/VbMatrix.h"

#include <QTest>

class TestVbMatrix : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aNewMatrixIsTheIdentity() { QVERIFY(VbMatrix() == VbMatrix(1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1)); }

    void theSixteenElementsStandRowByRow()
    {
        const VbMatrix matrix(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15);
        for (std::size_t row = 0; row < 4; ++row) {
            for (std::size_t column = 0; column < 4; ++column)
                QCOMPARE(matrix[row][column], static_cast<float>(4 * row + column));
        }
    }

    void elementsAreWrittenByRowAndColumn()
    {
        VbMatrix matrix;
        matrix[3][1] = 5;
        QVERIFY(matrix == VbMatrix(1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 5, 0, 1));
        QVERIFY(matrix != VbMatrix());
    }
};

QTEST_APPLESS_MAIN(TestVbMatrix)
#include "tst_VbMatrix.moc"

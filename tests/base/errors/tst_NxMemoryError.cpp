#include "meridane/base/errors/NxMemoryError.h"

#include <QTest>

class TestNxMemoryError : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theTextTellsPlaceAndSize()
    {
        const NxMemoryError error("mesh.cpp", 12, 4096);
        QCOMPARE(error.getDebugString().toUtf8(), "mesh.cpp:12: no memory for 4096 bytes");
        QCOMPARE(error.getSize(), std::size_t(4096));
    }

    void anUnknownPlaceIsLeftOut()
    {
        QCOMPARE(NxMemoryError(nullptr, 0, 1).getDebugString().toUtf8(), "no memory for 1 bytes");
    }
};

QTEST_APPLESS_MAIN(TestNxMemoryError)
#include "tst_NxMemoryError.moc"

#include "orvane/app/view/refinement/DetailGovernor.h"

#include <QTest>

#include <algorithm>

namespace {

constexpr double wanted = DetailGovernor::wantedMilliseconds;
constexpr int many = 1'000;

/// A governor with a clock that the test sets.
struct Governed {
    qint64 now = 0;
    DetailGovernor governor{[this] { return now; }};

    /// Notes pictures that take so long, one after the other; returns how often the detail has changed.
    int note(double milliseconds, int pictures)
    {
        int changes = 0;
        for (int i = 0; i < pictures; ++i) {
            const PictureDetail before = governor.detail();
            governor.note(milliseconds);
            now += static_cast<qint64>(milliseconds);
            changes += before == governor.detail() ? 0 : 1;
        }
        return changes;
    }
};

/// The pixels by which edges may be off.
float offBy(const PictureDetail& detail)
{
    return detail.error + static_cast<float>(detail.divisor - 1);
}

} // namespace

class TestDetailGovernor : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void startsWithinFourPixels()
    {
        const Governed governed;
        QVERIFY(governed.governor.detail().error > 0);
        QVERIFY(offBy(governed.governor.detail()) <= 4);
    }

    void aVerySlowPictureReducesTheDetailAtOnce()
    {
        Governed governed;
        const PictureDetail first = governed.governor.detail();
        governed.governor.note(2 * wanted);
        QVERIFY(offBy(governed.governor.detail()) > offBy(first));
    }

    void oneSlowPictureAloneChangesNothing()
    {
        Governed governed;
        const PictureDetail first = governed.governor.detail();
        for (int i = 0; i < many; ++i) {
            governed.governor.note(wanted * 1.2);
            governed.governor.note(wanted * 0.9);
            QCOMPARE(governed.governor.detail(), first);
        }
    }

    void slowPicturesReduceTheDetailToTheLeast()
    {
        Governed governed;
        QVERIFY(governed.note(wanted * 1.2, many) > 3);
        const PictureDetail least = governed.governor.detail();
        QVERIFY(least.error >= 8);
        QCOMPARE(governed.note(wanted * 10, many), 0);
        QCOMPARE(governed.governor.detail(), least);
    }

    void fastPicturesRefineItStepByStep()
    {
        Governed governed;
        QCOMPARE(governed.note(wanted * 0.3, 9), 0);
        QCOMPARE(governed.note(wanted * 0.3, 1), 1);
        QVERIFY(governed.note(wanted * 0.3, many) >= 1);
        QCOMPARE(governed.governor.detail(), (PictureDetail{1, 1}));
    }

    void picturesInBetweenChangeNothing()
    {
        Governed governed;
        QCOMPARE(governed.note(wanted * 0.7, many), 0);
    }

    // Half of the time would do at the coarser step, but not at the finer one: without patience it would go to and fro.
    void whatWasTooSlowIsntTriedAgainForAWhile()
    {
        Governed governed;
        governed.governor.note(3 * wanted);
        const PictureDetail coarse = governed.governor.detail();
        QCOMPARE(governed.note(1, many), 0);
        QCOMPARE(governed.governor.detail(), coarse);
        governed.now += 5'000;
        QVERIFY(governed.note(1, 10) == 1);
    }

    void anotherSceneStartsAgain()
    {
        Governed governed;
        const PictureDetail first = governed.governor.detail();
        governed.note(wanted * 3, many);
        governed.governor.reset();
        QCOMPARE(governed.governor.detail(), first);
        QVERIFY(governed.note(1, many) > 0);
    }
};

QTEST_APPLESS_MAIN(TestDetailGovernor)
#include "tst_DetailGovernor.moc"

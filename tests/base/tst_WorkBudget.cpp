#include "meridane/base/WorkBudget.h"

#include <QTest>

using meridane::WorkBudget;

namespace {

std::chrono::steady_clock::time_point now;

} // namespace

class TestWorkBudget : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { now = std::chrono::steady_clock::time_point(std::chrono::hours(100)); }

    void isSpentAfterItsLength()
    {
        const WorkBudget budget(std::chrono::milliseconds(2), &clock);
        QVERIFY(!budget.isSpent());
        now += std::chrono::microseconds(1999);
        QVERIFY(!budget.isSpent());
        now += std::chrono::microseconds(1);
        QVERIFY(budget.isSpent());
    }

    void withoutLengthItIsSpentAtOnce() { QVERIFY(WorkBudget(std::chrono::seconds(0), &clock).isSpent()); }

    void aLengthBeyondAllTimesIsNeverSpent()
    {
        const WorkBudget longest(std::chrono::nanoseconds::max(), &clock);
        const WorkBudget longer(std::chrono::hours::max(), &clock);
        QVERIFY(!longest.isSpent());
        QVERIFY(!longer.isSpent());
        now += std::chrono::hours(1000000);
        QVERIFY(!longest.isSpent());
        QVERIFY(!longer.isSpent());
    }

private:
    static std::chrono::steady_clock::time_point clock() { return now; }
};

QTEST_GUILESS_MAIN(TestWorkBudget)
#include "tst_WorkBudget.moc"

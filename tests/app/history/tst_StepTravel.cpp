#include "Patience.h"
#include "app/StepClock.h"
#include "app/history/HistoryScene.h"

#include "orvane/app/history/StepTravel.h"
#include "orvane/extender/OrvStepList.h"

#include <QSignalSpy>
#include <QTest>

/// Going through many steps in slices.
class TestStepTravel : public QObject {
    Q_OBJECT

private:
    [[nodiscard]] int position() { return m_open->services().steps().position(); }

    std::unique_ptr<HistoryScene> m_open;
    std::unique_ptr<StepTravel> m_travel;

private Q_SLOTS:
    void init()
    {
        m_open = std::make_unique<HistoryScene>();
        for (int value = 1; value <= 100; ++value) {
            m_open->hand().sfInt32.setValue(value);
            m_open->finish();
        }
        // A slice is over after eight readings of this clock.
        m_travel = std::make_unique<StepTravel>(m_open->services(), nullptr, &StepClock::now);
    }
    void cleanup()
    {
        m_travel.reset();
        m_open.reset();
    }

    void aWayIsDividedIntoSlices()
    {
        const QSignalSpy ended(m_travel.get(), &StepTravel::ended);
        m_travel->goTo(20);
        QVERIFY(m_travel->isUnderway());
        QCOMPARE(m_travel->goal(), 20);
        QVERIFY(position() < 100 && position() > 80);
        const TurnCounter turns;
        QTRY_COMPARE(ended.size(), 1);
        QCOMPARE(position(), 20);
        QCOMPARE(m_open->hand().sfInt32.getValue(), 20);
        QVERIFY(turns.turns() >= 8);
        QVERIFY(turns.mostReadings() <= 12);
        QVERIFY(!m_travel->isUnderway());
        m_travel->goTo(100);
        QTRY_COMPARE(position(), 100);
        QVERIFY(m_open->services().isClean() == false);
    }

    void aShortWayIsGoneAtOnce()
    {
        m_travel->goTo(98);
        QCOMPARE(position(), 98);
        QVERIFY(!m_travel->isUnderway());
        m_travel->goTo(98);
        QVERIFY(!m_travel->isUnderway());
    }

    void theGoalMayChangeOnTheWay()
    {
        m_travel->goTo(0);
        const int there = position();
        m_travel->goTo(there + 2);
        QCOMPARE(position(), there + 2);
        QVERIFY(!m_travel->isUnderway());
        m_travel->goTo(-5);
        QTRY_COMPARE(position(), 0);
        m_travel->goTo(1000);
        QTRY_COMPARE(position(), 100);
    }

    void anEditEndsTheWay()
    {
        const QSignalSpy ended(m_travel.get(), &StepTravel::ended);
        m_travel->goTo(0);
        const int there = position();
        m_open->hand().sfFloat.setValue(3);
        QTRY_COMPARE(ended.size(), 1);
        QVERIFY(position() <= there + 1 && position() > there - 10);
        const int end = position();
        m_open->finish();
        QCOMPARE(position(), end);
    }

    void anUndoBySomeoneElseEndsTheWay()
    {
        const QSignalSpy ended(m_travel.get(), &StepTravel::ended);
        m_travel->goTo(0);
        const int there = position();
        m_open->services().redo();
        QTRY_COMPARE(ended.size(), 1);
        QCOMPARE(position(), there + 1);
    }

    void theEndOfTheSceneEndsTheWay()
    {
        m_travel->goTo(0);
        m_open->services().document().close();
        m_open->services().clearHistory();
        QVERIFY(!m_travel->isUnderway());
        m_travel->goTo(5);
        QVERIFY(!m_travel->isUnderway());
    }
};

QTEST_MAIN(TestStepTravel)
#include "tst_StepTravel.moc"

#include "base/LetterQueue.h"

#include <QTest>

#include <chrono>
#include <memory>

using namespace std::chrono_literals;

/// Which sensors a pass calls while they schedule, unschedule and delete each other, and where its budget ends it.
class TestNxDelayQueuePass : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whatIsScheduledMeanwhileWaitsForTheNextPass()
    {
        LetterQueue queue;
        LetterSensor urgent('u', queue.protocol, 0);
        queue.a.also = [&] {
            queue.schedule(&queue.a);
            queue.schedule(&urgent);
        };
        queue.schedule(&queue.a);
        queue.schedule(&queue.b);
        QVERIFY(queue.process());
        QCOMPARE(queue.protocol, "ab");
        queue.a.also = nullptr;
        QVERIFY(!queue.process());
        QCOMPARE(queue.protocol, "abua");
    }

    void aSensorUnscheduledMeanwhileIsNotCalled()
    {
        LetterQueue queue;
        queue.a.also = [&] { queue.b.unschedule(); };
        for (LetterSensor* sensor : {&queue.a, &queue.b, &queue.c})
            queue.schedule(sensor);
        queue.process();
        QCOMPARE(queue.protocol, "ac");
        QVERIFY(!queue.b.isScheduled());
    }

    void aSensorMovedBehindThePassWaitsForTheNext()
    {
        LetterQueue queue;
        queue.a.also = [&] {
            queue.b.unschedule();
            queue.schedule(&queue.b);
        };
        queue.schedule(&queue.a);
        queue.schedule(&queue.b);
        QVERIFY(queue.process());
        QCOMPARE(queue.protocol, "a");
        queue.process();
        QCOMPARE(queue.protocol, "ab");
    }

    void aSensorDeletedMeanwhileIsNotCalled()
    {
        LetterQueue queue;
        auto b = std::make_unique<LetterSensor>('b', queue.protocol);
        queue.a.also = [&] { b.reset(); };
        for (LetterSensor* sensor : {&queue.a, b.get(), &queue.c})
            queue.schedule(sensor);
        queue.process();
        QCOMPARE(queue.protocol, "ac");
    }

    void aSensorMayDeleteItself()
    {
        LetterQueue queue;
        auto a = std::make_unique<LetterSensor>('a', queue.protocol);
        a->also = [&] { a.reset(); };
        queue.schedule(a.get());
        queue.schedule(&queue.b);
        queue.process();
        QCOMPARE(queue.protocol, "ab");
        QVERIFY(a == nullptr);
    }

    void anInnerPassTakesTheOuterOneOver()
    {
        LetterQueue queue;
        LetterSensor c('c', queue.protocol, 0);
        queue.a.also = [&] {
            queue.schedule(&c);
            queue.process();
            queue.protocol += '.';
        };
        queue.schedule(&queue.a);
        queue.schedule(&queue.b);
        QVERIFY(!queue.process());
        QCOMPARE(queue.protocol, "acb.");
    }

    void anOuterPassLeavesWhatTheInnerOneLeft()
    {
        LetterQueue queue;
        queue.a.also = [&] {
            queue.schedule(&queue.a);
            queue.process(0ns);
        };
        queue.schedule(&queue.a);
        queue.schedule(&queue.b);
        QVERIFY(queue.process());
        QCOMPARE(queue.protocol, "ab");
        QVERIFY(queue.a.isScheduled());
    }

    void idleOnlySensorsComeLast()
    {
        LetterQueue queue;
        LetterSensor idle('i', queue.protocol, 0);
        idle.idleOnly = true;
        queue.schedule(&idle);
        queue.schedule(&queue.a);
        queue.process();
        QCOMPARE(queue.protocol, "ai");
    }

    void idleOnlySensorsWaitUntilNothingElseIsQueued()
    {
        LetterQueue queue;
        LetterSensor idle('i', queue.protocol);
        idle.idleOnly = true;
        queue.a.also = [&] { queue.schedule(&queue.a); };
        queue.schedule(&idle);
        queue.schedule(&queue.a);
        QVERIFY(queue.process());
        QVERIFY(queue.process());
        QCOMPARE(queue.protocol, "aa");
        queue.a.also = nullptr;
        QVERIFY(!queue.process());
        QCOMPARE(queue.protocol, "aaai");
    }

    void idleOnlySensorsDoNotWaitForEachOther()
    {
        LetterQueue queue;
        for (LetterSensor* const sensor : {&queue.a, &queue.b}) {
            sensor->idleOnly = true;
            queue.schedule(sensor);
        }
        queue.a.also = [&] { queue.schedule(&queue.a); };
        QVERIFY(queue.process());
        QCOMPARE(queue.protocol, "ab");
    }

    void aBudgetStopsThePassAfterASensorAndKeepsTheRest()
    {
        LetterQueue queue;
        for (LetterSensor* sensor : {&queue.a, &queue.b, &queue.c})
            queue.schedule(sensor);
        QVERIFY(queue.process(0ns));
        QCOMPARE(queue.protocol, "a");
        queue.schedule(&queue.a);
        QVERIFY(queue.process(0ns));
        QVERIFY(queue.process(0ns));
        QVERIFY(!queue.process(0ns));
        QCOMPARE(queue.protocol, "abca");
    }

    void anAmpleBudgetEndsThePass_data()
    {
        QTest::addColumn<qlonglong>("budget");
        QTest::newRow("an hour") << qlonglong(std::chrono::nanoseconds(1h).count());
        QTest::newRow("for ever") << qlonglong(std::chrono::nanoseconds::max().count());
    }

    void anAmpleBudgetEndsThePass()
    {
        QFETCH(const qlonglong, budget);
        LetterQueue queue;
        queue.schedule(&queue.a);
        queue.schedule(&queue.b);
        QVERIFY(!queue.process(std::chrono::nanoseconds(budget)));
        QCOMPARE(queue.protocol, "ab");
    }
};

QTEST_APPLESS_MAIN(TestNxDelayQueuePass)
#include "tst_NxDelayQueuePass.moc"

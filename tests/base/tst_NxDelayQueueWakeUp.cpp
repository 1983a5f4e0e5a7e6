#include "base/LetterQueue.h"

#include <QTest>

#include <chrono>
#include <new>

using namespace std::chrono_literals;

/// When the host is woken to process the queue.
class TestNxDelayQueueWakeUp : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aWakeUpThatThrowsIsAskedForAgain()
    {
        LetterQueue queue;
        int failures = 1;
        queue.setWakeUpHook(
            [](void* data) {
                if (int& left = *static_cast<int*>(data); left-- > 0)
                    throw std::bad_alloc();
            },
            &failures);
        QVERIFY_THROWS_EXCEPTION(std::bad_alloc, queue.schedule(&queue.a));
        QVERIFY(!queue.a.isScheduled());
        queue.schedule(&queue.a);
        QCOMPARE(failures, -1);
        queue.process();
        QCOMPARE(queue.protocol, "a");
    }

    void theHostIsWokenOnceUntilThePassBegins()
    {
        LetterQueue queue;
        queue.countWakeUps();
        queue.schedule(&queue.a);
        queue.schedule(&queue.b);
        queue.unschedule(&queue.a);
        queue.unschedule(&queue.b);
        queue.schedule(&queue.a);
        QCOMPARE(queue.wakeUps, 1);
        queue.process();
        QCOMPARE(queue.wakeUps, 1);
        queue.schedule(&queue.a);
        QCOMPARE(queue.wakeUps, 2);
    }

    void theHostIsWokenOnceForWhatIsScheduledMeanwhile()
    {
        LetterQueue queue;
        queue.countWakeUps();
        queue.a.also = [&] {
            queue.schedule(&queue.a);
            queue.schedule(&queue.b);
        };
        queue.schedule(&queue.a);
        QVERIFY(queue.process());
        QCOMPARE(queue.wakeUps, 2);
    }

    void theHostIsWokenForWhatABudgetLeaves()
    {
        LetterQueue queue;
        queue.countWakeUps();
        queue.schedule(&queue.a);
        queue.schedule(&queue.b);
        queue.process(0ns);
        QCOMPARE(queue.wakeUps, 2);
        queue.process(0ns);
        QCOMPARE(queue.wakeUps, 2);
    }

    void theHostIsWokenForIdleOnlySensorsThatWait()
    {
        LetterQueue queue;
        queue.countWakeUps();
        LetterSensor idle('i', queue.protocol);
        idle.idleOnly = true;
        queue.schedule(&idle);
        QCOMPARE(queue.wakeUps, 1);
        QVERIFY(!queue.process());
        QCOMPARE(queue.protocol, "i");
    }

    void aHookThatComesLateIsCalledAtOnce()
    {
        LetterQueue queue;
        queue.countWakeUps();
        QCOMPARE(queue.wakeUps, 0);
        queue.setWakeUpHook(nullptr, nullptr);
        queue.schedule(&queue.a);
        queue.countWakeUps();
        QCOMPARE(queue.wakeUps, 1);
    }
};

QTEST_APPLESS_MAIN(TestNxDelayQueueWakeUp)
#include "tst_NxDelayQueueWakeUp.moc"

#include "base/FailingMemory.h"
#include "base/LetterSensor.h"

#include "meridane/base/NxDelayQueue.h"

#include <QTest>

#include <limits>
#include <memory>
#include <new>
#include <string>
#include <vector>

namespace {

using namespace std::chrono_literals;

/// Turns the order of priorities round.
class ReverseSensor : public LetterSensor {
public:
    using LetterSensor::LetterSensor;
    [[nodiscard]] int isBefore(const NxDelayQueueSensor* other) const override
    {
        return other->getPriority() < getPriority();
    }
};

void countWakeUp(void* data)
{
    ++*static_cast<int*>(data);
}

} // namespace

class TestNxDelayQueue : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sensorsAreCalledByPriorityThenInTheOrderOfScheduling()
    {
        std::string protocol;
        NxDelayQueue queue;
        LetterSensor a('a', protocol);
        LetterSensor b('b', protocol, 0);
        LetterSensor c('c', protocol);
        LetterSensor d('d', protocol, -5);
        LetterSensor e('e', protocol, std::numeric_limits<int>::max());
        LetterSensor f('f', protocol, 0);
        for (LetterSensor* sensor : {&e, &c, &b, &a, &f, &d})
            queue.schedule(sensor);
        QVERIFY(!queue.process());
        QCOMPARE(protocol, "dbfcae");
    }

    void anOverriddenOrderHolds()
    {
        std::string protocol;
        NxDelayQueue queue;
        ReverseSensor a('a', protocol, 1);
        ReverseSensor b('b', protocol, 2);
        ReverseSensor c('c', protocol, 3);
        for (LetterSensor* sensor : {&a, &c, &b})
            queue.schedule(sensor);
        queue.process();
        QCOMPARE(protocol, "cba");
    }

    void aNewPriorityMovesAScheduledSensor()
    {
        std::string protocol;
        NxDelayQueue queue;
        LetterSensor a('a', protocol);
        LetterSensor b('b', protocol);
        queue.schedule(&a);
        queue.schedule(&b);
        b.setPriority(1);
        queue.process();
        queue.schedule(&b);
        queue.schedule(&a);
        b.setPriority(100); // behind the other one of its new priority
        queue.process();
        QCOMPARE(protocol, "baab");
    }

    void aSensorThatThereIsNoMemoryForStaysOutside()
    {
        std::string protocol;
        NxDelayQueue queue;
        auto a = std::make_unique<LetterSensor>('a', protocol);
        LetterSensor b('b', protocol);
        FailingMemory::allocationsLeft = 0;
        QVERIFY_THROWS_EXCEPTION(std::bad_alloc, queue.schedule(a.get()));
        QVERIFY(!a->isScheduled());
        QVERIFY(queue.isEmpty());
        a->unschedule();
        queue.schedule(&b);
        queue.schedule(a.get());
        FailingMemory::allocationsLeft = 0;
        auto c = LetterSensor('c', protocol);
        QVERIFY_THROWS_EXCEPTION(std::bad_alloc, queue.schedule(&c));
        queue.process();
        QCOMPARE(protocol, "ba");
    }

    void aNewPriorityTakesNoMemory()
    {
        std::string protocol;
        NxDelayQueue queue;
        LetterSensor a('a', protocol);
        LetterSensor b('b', protocol);
        queue.schedule(&a);
        queue.schedule(&b);
        FailingMemory::allocationsLeft = 0;
        b.setPriority(1);
        const bool tookNone = FailingMemory::allocationsLeft == 0;
        FailingMemory::allocationsLeft = -1;
        QVERIFY(tookNone);
        queue.process();
        QCOMPARE(protocol, "ba");
    }

    void aWakeUpThatThrowsIsAskedForAgain()
    {
        std::string protocol;
        NxDelayQueue queue;
        LetterSensor a('a', protocol);
        int failures = 1;
        queue.setWakeUpHook(
            [](void* data) {
                if (int& left = *static_cast<int*>(data); left-- > 0)
                    throw std::bad_alloc();
            },
            &failures);
        QVERIFY_THROWS_EXCEPTION(std::bad_alloc, queue.schedule(&a));
        QVERIFY(!a.isScheduled());
        queue.schedule(&a);
        QCOMPARE(failures, -1);
        queue.process();
        QCOMPARE(protocol, "a");
    }

    void whatIsScheduledMeanwhileWaitsForTheNextPass()
    {
        std::string protocol;
        NxDelayQueue queue;
        LetterSensor a('a', protocol);
        LetterSensor b('b', protocol);
        LetterSensor urgent('u', protocol, 0);
        a.also = [&] {
            queue.schedule(&a);
            queue.schedule(&urgent);
        };
        queue.schedule(&a);
        queue.schedule(&b);
        QVERIFY(queue.process());
        QCOMPARE(protocol, "ab");
        a.also = nullptr;
        QVERIFY(!queue.process());
        QCOMPARE(protocol, "abua");
    }

    void aSensorUnscheduledMeanwhileIsNotCalled()
    {
        std::string protocol;
        NxDelayQueue queue;
        LetterSensor a('a', protocol);
        LetterSensor b('b', protocol);
        LetterSensor c('c', protocol);
        a.also = [&] { b.unschedule(); };
        for (LetterSensor* sensor : {&a, &b, &c})
            queue.schedule(sensor);
        queue.process();
        QCOMPARE(protocol, "ac");
        QVERIFY(!b.isScheduled());
    }

    void aSensorMovedBehindThePassWaitsForTheNext()
    {
        std::string protocol;
        NxDelayQueue queue;
        LetterSensor a('a', protocol);
        LetterSensor b('b', protocol);
        a.also = [&] {
            b.unschedule();
            queue.schedule(&b);
        };
        queue.schedule(&a);
        queue.schedule(&b);
        QVERIFY(queue.process());
        QCOMPARE(protocol, "a");
        queue.process();
        QCOMPARE(protocol, "ab");
    }

    void aSensorDeletedMeanwhileIsNotCalled()
    {
        std::string protocol;
        NxDelayQueue queue;
        LetterSensor a('a', protocol);
        auto b = std::make_unique<LetterSensor>('b', protocol);
        LetterSensor c('c', protocol);
        a.also = [&] { b.reset(); };
        for (LetterSensor* sensor : {&a, b.get(), &c})
            queue.schedule(sensor);
        queue.process();
        QCOMPARE(protocol, "ac");
    }

    void aSensorMayDeleteItself()
    {
        std::string protocol;
        NxDelayQueue queue;
        auto a = std::make_unique<LetterSensor>('a', protocol);
        LetterSensor b('b', protocol);
        a->also = [&] { a.reset(); };
        queue.schedule(a.get());
        queue.schedule(&b);
        queue.process();
        QCOMPARE(protocol, "ab");
        QVERIFY(a == nullptr);
    }

    void anInnerPassTakesTheOuterOneOver()
    {
        std::string protocol;
        NxDelayQueue queue;
        LetterSensor a('a', protocol);
        LetterSensor b('b', protocol);
        LetterSensor c('c', protocol, 0);
        a.also = [&] {
            queue.schedule(&c);
            queue.process();
            protocol += '.';
        };
        queue.schedule(&a);
        queue.schedule(&b);
        QVERIFY(!queue.process());
        QCOMPARE(protocol, "acb.");
    }

    void anOuterPassLeavesWhatTheInnerOneLeft()
    {
        std::string protocol;
        NxDelayQueue queue;
        LetterSensor a('a', protocol);
        LetterSensor b('b', protocol);
        a.also = [&] {
            queue.schedule(&a);
            queue.process(0ns);
        };
        queue.schedule(&a);
        queue.schedule(&b);
        QVERIFY(queue.process());
        QCOMPARE(protocol, "ab");
        QVERIFY(a.isScheduled());
    }

    void idleOnlySensorsComeLast()
    {
        std::string protocol;
        NxDelayQueue queue;
        LetterSensor idle('i', protocol, 0);
        LetterSensor a('a', protocol);
        idle.idleOnly = true;
        queue.schedule(&idle);
        queue.schedule(&a);
        queue.process();
        QCOMPARE(protocol, "ai");
    }

    void idleOnlySensorsWaitUntilNothingElseIsQueued()
    {
        std::string protocol;
        NxDelayQueue queue;
        LetterSensor idle('i', protocol);
        LetterSensor a('a', protocol);
        idle.idleOnly = true;
        a.also = [&] { queue.schedule(&a); };
        queue.schedule(&idle);
        queue.schedule(&a);
        QVERIFY(queue.process());
        QVERIFY(queue.process());
        QCOMPARE(protocol, "aa");
        a.also = nullptr;
        QVERIFY(!queue.process());
        QCOMPARE(protocol, "aaai");
    }

    void aBudgetStopsThePassAfterASensorAndKeepsTheRest()
    {
        std::string protocol;
        NxDelayQueue queue;
        LetterSensor a('a', protocol);
        LetterSensor b('b', protocol);
        LetterSensor c('c', protocol);
        for (LetterSensor* sensor : {&a, &b, &c})
            queue.schedule(sensor);
        QVERIFY(queue.process(0ns));
        QCOMPARE(protocol, "a");
        queue.schedule(&a);
        QVERIFY(queue.process(0ns));
        QVERIFY(queue.process(0ns));
        QVERIFY(!queue.process(0ns));
        QCOMPARE(protocol, "abca");
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
        std::string protocol;
        NxDelayQueue queue;
        LetterSensor a('a', protocol);
        LetterSensor b('b', protocol);
        queue.schedule(&a);
        queue.schedule(&b);
        QVERIFY(!queue.process(std::chrono::nanoseconds(budget)));
        QCOMPARE(protocol, "ab");
    }

    void theHostIsWokenOnceUntilThePassBegins()
    {
        std::string protocol;
        int wakeUps = 0;
        NxDelayQueue queue;
        queue.setWakeUpHook(countWakeUp, &wakeUps);
        LetterSensor a('a', protocol);
        LetterSensor b('b', protocol);
        queue.schedule(&a);
        queue.schedule(&b);
        queue.unschedule(&a);
        queue.unschedule(&b);
        queue.schedule(&a);
        QCOMPARE(wakeUps, 1);
        queue.process();
        QCOMPARE(wakeUps, 1);
        queue.schedule(&a);
        QCOMPARE(wakeUps, 2);
    }

    void theHostIsWokenOnceForWhatIsScheduledMeanwhile()
    {
        std::string protocol;
        int wakeUps = 0;
        NxDelayQueue queue;
        queue.setWakeUpHook(countWakeUp, &wakeUps);
        LetterSensor a('a', protocol);
        LetterSensor b('b', protocol);
        a.also = [&] {
            queue.schedule(&a);
            queue.schedule(&b);
        };
        queue.schedule(&a);
        QVERIFY(queue.process());
        QCOMPARE(wakeUps, 2);
    }

    void theHostIsWokenForWhatABudgetLeaves()
    {
        std::string protocol;
        int wakeUps = 0;
        NxDelayQueue queue;
        queue.setWakeUpHook(countWakeUp, &wakeUps);
        LetterSensor a('a', protocol);
        LetterSensor b('b', protocol);
        queue.schedule(&a);
        queue.schedule(&b);
        queue.process(0ns);
        QCOMPARE(wakeUps, 2);
        queue.process(0ns);
        QCOMPARE(wakeUps, 2);
    }

    void theHostIsWokenForIdleOnlySensorsThatWait()
    {
        std::string protocol;
        int wakeUps = 0;
        NxDelayQueue queue;
        queue.setWakeUpHook(countWakeUp, &wakeUps);
        LetterSensor idle('i', protocol);
        idle.idleOnly = true;
        queue.schedule(&idle);
        QCOMPARE(wakeUps, 1);
        QVERIFY(!queue.process());
        QCOMPARE(protocol, "i");
    }

    void aHookThatComesLateIsCalledAtOnce()
    {
        std::string protocol;
        int wakeUps = 0;
        NxDelayQueue queue;
        queue.setWakeUpHook(countWakeUp, &wakeUps);
        QCOMPARE(wakeUps, 0);
        queue.setWakeUpHook(nullptr, nullptr);
        LetterSensor a('a', protocol);
        queue.schedule(&a);
        queue.setWakeUpHook(countWakeUp, &wakeUps);
        QCOMPARE(wakeUps, 1);
    }

    void aSensorWaitsInOneQueueOnly()
    {
        std::string protocol;
        NxDelayQueue first;
        NxDelayQueue second;
        LetterSensor a('a', protocol);
        first.schedule(&a);
        second.schedule(&a);
        QVERIFY(second.isEmpty());
        second.unschedule(&a);
        QVERIFY(a.isScheduled());
        first.process();
        QCOMPARE(protocol, "a");
    }

    void aDyingQueueUnschedulesItsSensors()
    {
        std::string protocol;
        LetterSensor a('a', protocol);
        LetterSensor b('b', protocol);
        {
            NxDelayQueue queue;
            queue.schedule(&a);
            queue.schedule(&b);
            queue.process(0ns);
            queue.schedule(&a);
        }
        QVERIFY(!a.isScheduled());
        QVERIFY(!b.isScheduled());
    }

    void manySensorsAreQueuedAndTakenOutQuickly()
    {
        constexpr std::size_t count = 100'000;
        std::string protocol;
        NxDelayQueue queue;
        std::vector<std::unique_ptr<LetterSensor>> sensors;
        for (std::size_t i = 0; i < count; ++i)
            sensors.push_back(std::make_unique<LetterSensor>('x', protocol, static_cast<int>(i * 7919 % 1000)));
        // With a list that is searched, this would take minutes.
        for (const auto& sensor : sensors)
            queue.schedule(sensor.get());
        for (std::size_t i = 0; i < count; i += 2)
            queue.unschedule(sensors[i].get());
        queue.process();
        QCOMPARE(protocol.size(), count / 2);
    }
};

QTEST_APPLESS_MAIN(TestNxDelayQueue)
#include "tst_NxDelayQueue.moc"

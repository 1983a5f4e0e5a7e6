#include "base/FailingMemory.h"
#include "base/LetterQueue.h"

#include <QTest>

#include <chrono>
#include <limits>
#include <memory>
#include <new>
#include <string>
#include <vector>

using namespace std::chrono_literals;

namespace {

/// Turns the order of priorities round.
class ReverseSensor : public LetterSensor {
public:
    using LetterSensor::LetterSensor;
    [[nodiscard]] int isBefore(const NxDelayQueueSensor* other) const override
    {
        return other->getPriority() < getPriority();
    }
};

/// Counts how often it is compared.
class CountingSensor : public LetterSensor {
public:
    using LetterSensor::LetterSensor;
    [[nodiscard]] int isBefore(const NxDelayQueueSensor* other) const override
    {
        ++comparisons;
        return LetterSensor::isBefore(other);
    }

    static inline std::size_t comparisons = 0;
};

} // namespace

/// The order of the sensors, and which of them are in the queue.
class TestNxDelayQueue : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sensorsAreCalledByPriorityThenInTheOrderOfScheduling()
    {
        LetterQueue queue;
        LetterSensor b('b', queue.protocol, 0);
        LetterSensor d('d', queue.protocol, -5);
        LetterSensor e('e', queue.protocol, std::numeric_limits<int>::max());
        LetterSensor f('f', queue.protocol, 0);
        for (LetterSensor* sensor : {&e, &queue.c, &b, &queue.a, &f, &d})
            queue.schedule(sensor);
        QVERIFY(!queue.process());
        QCOMPARE(queue.protocol, "dbfcae");
    }

    void anOverriddenOrderHolds()
    {
        LetterQueue queue;
        ReverseSensor a('a', queue.protocol, 1);
        ReverseSensor b('b', queue.protocol, 2);
        ReverseSensor c('c', queue.protocol, 3);
        for (LetterSensor* sensor : {&a, &c, &b})
            queue.schedule(sensor);
        queue.process();
        QCOMPARE(queue.protocol, "cba");
    }

    void aNewPriorityMovesAScheduledSensor()
    {
        LetterQueue queue;
        queue.schedule(&queue.a);
        queue.schedule(&queue.b);
        queue.b.setPriority(1);
        queue.process();
        queue.schedule(&queue.b);
        queue.schedule(&queue.a);
        queue.b.setPriority(100); // behind the other one of its new priority
        queue.process();
        QCOMPARE(queue.protocol, "baab");
    }

    void aSensorThatThereIsNoMemoryForStaysOutside()
    {
        LetterQueue queue;
        auto a = std::make_unique<LetterSensor>('a', queue.protocol);
        FailingMemory::allocationsLeft = 0;
        QVERIFY_THROWS_EXCEPTION(std::bad_alloc, queue.schedule(a.get()));
        QVERIFY(!a->isScheduled());
        QVERIFY(queue.isEmpty());
        a->unschedule();
        queue.schedule(&queue.b);
        queue.schedule(a.get());
        FailingMemory::allocationsLeft = 0;
        auto c = LetterSensor('c', queue.protocol);
        QVERIFY_THROWS_EXCEPTION(std::bad_alloc, queue.schedule(&c));
        queue.process();
        QCOMPARE(queue.protocol, "ba");
    }

    void aNewPriorityTakesNoMemory()
    {
        LetterQueue queue;
        queue.schedule(&queue.a);
        queue.schedule(&queue.b);
        FailingMemory::allocationsLeft = 0;
        queue.b.setPriority(1);
        const bool tookNone = FailingMemory::allocationsLeft == 0;
        FailingMemory::allocationsLeft = -1;
        QVERIFY(tookNone);
        queue.process();
        QCOMPARE(queue.protocol, "ba");
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

    void manySensorsTakeFewComparisonsEach()
    {
        constexpr std::size_t count = 100'000;
        LetterQueue queue;
        CountingSensor::comparisons = 0;
        std::vector<std::unique_ptr<CountingSensor>> sensors;
        for (std::size_t i = 0; i < count; ++i)
            sensors.push_back(std::make_unique<CountingSensor>('x', queue.protocol, static_cast<int>(i * 7919 % 1000)));
        for (const auto& sensor : sensors)
            queue.schedule(sensor.get());
        for (std::size_t i = 0; i < count; i += 2)
            queue.unschedule(sensors[i].get());
        queue.process();
        QCOMPARE(queue.protocol.size(), count / 2);
        // With a list that is searched, it would be thousands.
        const std::size_t each = CountingSensor::comparisons / count;
        QVERIFY2(each <= 150, qPrintable(QString::number(each)));
    }
};

QTEST_APPLESS_MAIN(TestNxDelayQueue)
#include "tst_NxDelayQueue.moc"

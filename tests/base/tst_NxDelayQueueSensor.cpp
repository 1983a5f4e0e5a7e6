#include "VirtualSlot.h"

#include "meridane/base/NxDelayQueueSensor.h"

#include <QTest>

#include <utility>

namespace {

void count(void* data, NxSensor*)
{
    ++*static_cast<int*>(data);
}

} // namespace

class TestNxDelayQueueSensor : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(NxDelayQueue::getDefault().isEmpty()); }

    void virtualOperationsStandInTheirOrder()
    {
        QCOMPARE(virtualSlot(&NxSensor::schedule), std::size_t(2)); // behind the destructor
        QCOMPARE(virtualSlot(&NxSensor::unschedule), std::size_t(3));
        QCOMPARE(virtualSlot(&NxSensor::isScheduled), std::size_t(4));
        QCOMPARE(virtualSlot(&NxSensor::trigger), std::size_t(5));
        QCOMPARE(virtualSlot(&NxDelayQueueSensor::isBefore), std::size_t(6));
        QCOMPARE(virtualSlot(&NxDelayQueueSensor::isIdleOnly), std::size_t(7));
    }

    void thePriorityIsOneHundredAtFirst()
    {
        QCOMPARE(NxDelayQueueSensor().getPriority(), 100);
        QCOMPARE(NxDelayQueueSensor().isIdleOnly(), 0);
    }

    void schedulingNeverCallsAtOnceWhateverThePriority_data()
    {
        QTest::addColumn<int>("priority");
        QTest::newRow("as soon as possible") << 0;
        QTest::newRow("default") << 100;
        QTest::newRow("negative") << -1;
    }
    void schedulingNeverCallsAtOnceWhateverThePriority()
    {
        QFETCH(const int, priority);
        int calls = 0;
        NxDelayQueueSensor sensor(count, &calls);
        sensor.setPriority(priority);
        sensor.schedule();
        QCOMPARE(calls, 0);
        QVERIFY(sensor.isScheduled());
        NxDelayQueue::getDefault().process();
        QCOMPARE(calls, 1);
        QVERIFY(!sensor.isScheduled());
    }

    void schedulingAgainCallsOnce()
    {
        int calls = 0;
        NxDelayQueueSensor sensor(count, &calls);
        sensor.schedule();
        sensor.schedule();
        NxDelayQueue::getDefault().process();
        NxDelayQueue::getDefault().process();
        QCOMPARE(calls, 1);
    }

    void unschedulingTakesTheRequestBack()
    {
        int calls = 0;
        NxDelayQueueSensor sensor(count, &calls);
        sensor.unschedule();
        sensor.schedule();
        sensor.unschedule();
        QVERIFY(!sensor.isScheduled());
        NxDelayQueue::getDefault().process();
        QCOMPARE(calls, 0);
    }

    void aDyingSensorLeavesTheQueue()
    {
        int calls = 0;
        {
            NxDelayQueueSensor sensor(count, &calls);
            sensor.schedule();
        }
        QVERIFY(NxDelayQueue::getDefault().isEmpty());
        NxDelayQueue::getDefault().process();
        QCOMPARE(calls, 0);
    }

    void theSmallerPriorityComesBefore()
    {
        NxDelayQueueSensor low;
        NxDelayQueueSensor high;
        low.setPriority(5);
        high.setPriority(6);
        QVERIFY(low.isBefore(&high));
        QVERIFY(!high.isBefore(&low));
        QVERIFY(!low.isBefore(&low));
        high.setPriority(5);
        QVERIFY(!low.isBefore(&high));
    }

    void schedulingAQueuedSensorComparesNothingAndWakesNobody()
    {
        class CountingSensor : public NxDelayQueueSensor {
        public:
            using NxDelayQueueSensor::NxDelayQueueSensor;
            [[nodiscard]] int isBefore(const NxDelayQueueSensor* other) const override
            {
                ++comparisons;
                return NxDelayQueueSensor::isBefore(other);
            }
            mutable int comparisons = 0;
        };
        int calls = 0;
        int wakeUps = 0;
        NxDelayQueueSensor other(count, &calls);
        CountingSensor sensor(count, &calls);
        NxDelayQueue::getDefault().setWakeUpHook([](void* data) { ++*static_cast<int*>(data); }, &wakeUps);
        other.schedule();
        sensor.schedule();
        const int comparisons = std::exchange(sensor.comparisons, 0);
        for (int i = 0; i < 1'000'000; ++i)
            sensor.schedule();
        QCOMPARE(sensor.comparisons, 0);
        QVERIFY(comparisons > 0);
        NxDelayQueue::getDefault().process();
        NxDelayQueue::getDefault().setWakeUpHook(nullptr, nullptr);
        QCOMPARE(calls, 2);
        QCOMPARE(wakeUps, 1);
    }
};

QTEST_APPLESS_MAIN(TestNxDelayQueueSensor)
#include "tst_NxDelayQueueSensor.moc"

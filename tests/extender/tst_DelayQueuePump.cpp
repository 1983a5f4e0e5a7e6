#include "orvane/extender/detail/DelayQueuePump.h"

#include "meridane/base/NxDelayQueue.h"
#include "meridane/base/NxDelayQueueSensor.h"

#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>
#include <vector>

namespace {

// Calls a function when it is its turn.
class FunctionSensor {
public:
    explicit FunctionSensor(std::function<void()> function)
        : m_function(std::move(function))
        , m_sensor([](void* data, NxSensor*) { (*static_cast<std::function<void()>*>(data))(); }, &m_function)
    {
    }

    void scheduleOn(NxDelayQueue& queue) { queue.schedule(&m_sensor); }

private:
    std::function<void()> m_function;
    NxDelayQueueSensor m_sensor;
};

} // namespace

class TestDelayQueuePump : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aScheduledSensorIsCalledFromTheEventLoopAndNotBefore()
    {
        NxDelayQueue queue;
        const DelayQueuePump pump(queue);
        int calls = 0;
        FunctionSensor sensor([&] { ++calls; });
        sensor.scheduleOn(queue);
        QCOMPARE(calls, 0);
        QCoreApplication::processEvents();
        QCOMPARE(calls, 1);
        QCoreApplication::processEvents();
        QCOMPARE(calls, 1);
    }

    void whatWasScheduledAheadOfThePumpIsCalledToo()
    {
        NxDelayQueue queue;
        int calls = 0;
        FunctionSensor sensor([&] { ++calls; });
        sensor.scheduleOn(queue);
        const DelayQueuePump pump(queue);
        QCoreApplication::processEvents();
        QCOMPARE(calls, 1);
    }

    void aSensorThatSchedulesItselfLeavesTurnsToOthers()
    {
        NxDelayQueue queue;
        const DelayQueuePump pump(queue);
        int calls = 0;
        bool isOver = false;
        FunctionSensor* again = nullptr;
        FunctionSensor sensor([&] {
            ++calls;
            if (!isOver)
                again->scheduleOn(queue);
        });
        again = &sensor;
        sensor.scheduleOn(queue);
        QTimer::singleShot(0, this, [&] { isOver = true; });
        QTRY_VERIFY(isOver);
        QTRY_VERIFY(queue.isEmpty());
        QVERIFY(calls >= 1);
    }

    void aLongQueueIsDoneInSlicesBetweenOtherEvents()
    {
        NxDelayQueue queue;
        // A slice of no time ends behind its first sensor.
        const DelayQueuePump pump(queue, std::chrono::nanoseconds(0));
        std::vector<int> order;
        std::vector<std::unique_ptr<FunctionSensor>> sensors;
        for (int i = 0; i < 3; ++i) {
            sensors.push_back(std::make_unique<FunctionSensor>([&order, i] { order.push_back(i); }));
            sensors.back()->scheduleOn(queue);
        }
        for (std::size_t done = 1; done <= 3; ++done) {
            QCoreApplication::sendPostedEvents();
            QCOMPARE(order.size(), done);
        }
        QCOMPARE(order, (std::vector<int>{0, 1, 2}));
        QVERIFY(queue.isEmpty());
    }

    void withoutThePumpNothingIsCalled()
    {
        NxDelayQueue queue;
        int calls = 0;
        FunctionSensor sensor([&] { ++calls; });
        {
            const DelayQueuePump pump(queue);
            sensor.scheduleOn(queue);
        }
        QCoreApplication::processEvents();
        QCOMPARE(calls, 0);
        queue.process();
        QCOMPARE(calls, 1);
    }
};

QTEST_GUILESS_MAIN(TestDelayQueuePump)
#include "tst_DelayQueuePump.moc"

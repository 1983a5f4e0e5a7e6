#include "meridane/base/NxDelayQueueSensor.h"

#include <QTest>

#include <utility>

namespace {

using Call = std::pair<void*, NxSensor*>;

Call lastCall;

void noteCall(void* data, NxSensor* sensor)
{
    lastCall = {data, sensor};
}

} // namespace

class TestNxSensor : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { lastCall = {}; }

    void triggerHandsDataAndSensorToTheCallback()
    {
        int data = 0;
        NxDelayQueueSensor sensor(noteCall, &data);
        sensor.trigger();
        QVERIFY(lastCall == Call(&data, &sensor));
    }

    void aSensorWithoutACallbackTriggersWithoutEffect()
    {
        NxDelayQueueSensor sensor;
        sensor.trigger();
        QVERIFY(lastCall == Call());
    }
};

QTEST_APPLESS_MAIN(TestNxSensor)
#include "tst_NxSensor.moc"

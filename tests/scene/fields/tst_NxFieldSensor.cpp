#include "meridane/base/NxDelayQueue.h"
#include "meridane/scene/fields/NxFieldSensor.h"
#include "meridane/scene/fields/single/NxSFFloat.h"

#include <QTest>

#include <memory>
#include <string>

namespace {

void process()
{
    NxDelayQueue::getDefault().process();
}

void count(void* data, NxSensor* /*sensor*/)
{
    ++*static_cast<int*>(data);
}

// Calls through the toolkit's virtual operations, recorded.
class RecordingSensor final : public NxFieldSensor {
public:
    using NxFieldSensor::NxFieldSensor;

    void notify() override
    {
        calls += "notify ";
        NxFieldSensor::notify();
    }
    void dyingReference() override
    {
        calls += "dying ";
        if (!keepsQuiet)
            NxFieldSensor::dyingReference();
    }
    void trigger() override
    {
        calls += "trigger ";
        NxFieldSensor::trigger();
    }

    std::string calls;
    bool keepsQuiet = false;
};

} // namespace

class TestNxFieldSensor : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void attachingDoesNotNotify()
    {
        NxSFFloat field(nullptr, "field");
        int calls = 0;
        NxFieldSensor sensor(&count, &calls);
        QVERIFY(sensor.getAttachedField() == nullptr);
        sensor.attach(&field);
        QVERIFY(sensor.getAttachedField() == &field);
        process();
        QCOMPARE(calls, 0);
    }

    void attachingElsewhereGivesTheFormerFieldUp()
    {
        NxSFFloat first(nullptr, "first");
        NxSFFloat second(nullptr, "second");
        int calls = 0;
        NxFieldSensor sensor(&count, &calls);
        sensor.attach(&first);
        first.setValue(1);
        sensor.attach(&second);
        process();
        QCOMPARE(calls, 0);
        first.setValue(2);
        process();
        QCOMPARE(calls, 0);
        second.setValue(1);
        process();
        QCOMPARE(calls, 1);
    }

    void attachingToTheSameFieldKeepsWhatIsPending()
    {
        NxSFFloat field(nullptr, "field");
        int calls = 0;
        NxFieldSensor sensor(&count, &calls);
        sensor.attach(&field);
        field.setValue(1);
        sensor.attach(&field);
        process();
        QCOMPARE(calls, 1);
    }

    void attachingToNullDetaches()
    {
        NxSFFloat field(nullptr, "field");
        int calls = 0;
        NxFieldSensor sensor(&count, &calls);
        sensor.attach(&field);
        sensor.attach(nullptr);
        QVERIFY(sensor.getAttachedField() == nullptr);
        field.setValue(1);
        process();
        QCOMPARE(calls, 0);
    }

    void detachingAnUnattachedSensorIsHarmless()
    {
        NxFieldSensor sensor(nullptr, nullptr);
        sensor.detach();
        sensor.dyingReference();
        QVERIFY(sensor.getAttachedField() == nullptr);
    }

    void detachingTakesTheSensorOffTheQueue()
    {
        NxSFFloat field(nullptr, "field");
        int calls = 0;
        NxFieldSensor sensor(&count, &calls);
        sensor.attach(&field);
        field.setValue(1);
        QVERIFY(sensor.isScheduled());
        sensor.detach();
        QVERIFY(!sensor.isScheduled());
        process();
        QCOMPARE(calls, 0);
    }

    void aDyingFieldDetachesAllItsSensors()
    {
        RecordingSensor first;
        RecordingSensor second;
        {
            NxSFFloat field(nullptr, "field");
            first.attach(&field);
            second.attach(&field);
        }
        QCOMPARE(first.calls, std::string("dying "));
        QCOMPARE(second.calls, std::string("dying "));
        QVERIFY(first.getAttachedField() == nullptr);
        QVERIFY(second.getAttachedField() == nullptr);
    }

    void aDyingFieldSilencesAQueuedSensor()
    {
        int calls = 0;
        NxFieldSensor sensor(&count, &calls);
        auto field = std::make_unique<NxSFFloat>(nullptr, "field");
        sensor.attach(field.get());
        field->setValue(1);
        field.reset();
        QVERIFY(!sensor.isScheduled());
        process();
        QCOMPARE(calls, 0);
    }

    void aDyingFieldLetsGoOfASensorThatDoesNotDetachItself()
    {
        RecordingSensor sensor;
        sensor.keepsQuiet = true;
        {
            NxSFFloat field(nullptr, "field");
            sensor.attach(&field);
        }
        QCOMPARE(sensor.calls, std::string("dying "));
        QVERIFY(sensor.getAttachedField() == nullptr);
    }

    void aDyingSensorLeavesFieldAndQueue()
    {
        NxSFFloat field(nullptr, "field");
        int calls = 0;
        NxFieldSensor before(&count, &calls);
        auto dying = std::make_unique<NxFieldSensor>(&count, &calls);
        NxFieldSensor behind(&count, &calls);
        before.attach(&field);
        dying->attach(&field);
        behind.attach(&field);
        field.setValue(1);
        dying.reset();
        process();
        QCOMPARE(calls, 2);
        field.setValue(2);
        process();
        QCOMPARE(calls, 4);
    }

    void sensorsAreCalledInTheOrderOfAttaching()
    {
        struct Call {
            std::string* order;
            char name;
        };
        std::string order;
        Call first{&order, '1'};
        Call second{&order, '2'};
        Call third{&order, '3'};
        const auto append
            = [](void* data, NxSensor*) { *static_cast<Call*>(data)->order += static_cast<Call*>(data)->name; };
        NxSFFloat field(nullptr, "field");
        NxFieldSensor firstSensor(append, &first);
        NxFieldSensor secondSensor(append, &second);
        NxFieldSensor thirdSensor(append, &third);
        firstSensor.attach(&field);
        secondSensor.attach(&field);
        thirdSensor.attach(&field);
        field.setValue(1);
        process();
        QCOMPARE(order, std::string("123"));
        firstSensor.detach();
        firstSensor.attach(&field);
        field.setValue(2);
        process();
        QCOMPARE(order, std::string("123231"));
    }

    void aSensorMayDieInItsOwnCallback()
    {
        NxSFFloat field(nullptr, "field");
        int calls = 0;
        auto* const sensor = new NxFieldSensor(
            [](void* given, NxSensor* self) {
                ++*static_cast<int*>(given);
                delete self;
            },
            &calls);
        sensor->attach(&field);
        field.setValue(1);
        process();
        field.setValue(2);
        process();
        QCOMPARE(calls, 1);
    }

    void aSensorMayDieInAnothersCallback()
    {
        NxSFFloat field(nullptr, "field");
        int calls = 0;
        auto victim = std::make_unique<NxFieldSensor>(&count, &calls);
        NxFieldSensor killer(
            [](void* data, NxSensor*) { static_cast<std::unique_ptr<NxFieldSensor>*>(data)->reset(); }, &victim);
        killer.attach(&field);
        victim->attach(&field);
        field.setValue(1);
        process();
        QVERIFY(!victim);
        QCOMPARE(calls, 0);
    }

    void aFieldMayDieInACallback()
    {
        auto field = std::make_unique<NxSFFloat>(nullptr, "field");
        int calls = 0;
        NxFieldSensor killer(
            [](void* data, NxSensor*) { static_cast<std::unique_ptr<NxSFFloat>*>(data)->reset(); }, &field);
        NxFieldSensor other(&count, &calls);
        killer.attach(field.get());
        other.attach(field.get());
        field->setValue(1);
        process();
        QVERIFY(killer.getAttachedField() == nullptr);
        QCOMPARE(calls, 0);
    }

    void aChangeInACallbackCallsAgain()
    {
        NxSFFloat field(nullptr, "field");
        NxFieldSensor sensor(
            [](void* data, NxSensor*) {
                auto* const changed = static_cast<NxSFFloat*>(data);
                if (changed->getValue() < 3)
                    changed->setValue(changed->getValue() + 1);
            },
            &field);
        sensor.attach(&field);
        field.setValue(1);
        process();
        QCOMPARE(field.getValue(), 2.0F);
        process();
        QCOMPARE(field.getValue(), 3.0F);
        process();
        QVERIFY(!sensor.isScheduled());
    }

    void theToolkitNotifiesAndTriggersThroughTheSensor()
    {
        NxSFFloat field(nullptr, "field");
        RecordingSensor sensor;
        sensor.attach(&field);
        field.setValue(1);
        field.setValue(2);
        process();
        QCOMPARE(sensor.calls, std::string("notify notify trigger "));
    }
};

QTEST_APPLESS_MAIN(TestNxFieldSensor)
#include "tst_NxFieldSensor.moc"

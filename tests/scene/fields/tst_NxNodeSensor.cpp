#include "base/FailingMemory.h"
#include "scene/TestNodes.h"

#include "meridane/base/NxDelayQueue.h"
#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxNodeSensor.h"

#include <QTest>

#include <memory>

namespace {

void count(void* data, NxSensor* /*sensor*/)
{
    ++*static_cast<int*>(data);
}

// A sensor on a node, which counts its calls.
struct Watched {
    NxRef<ProbeNode> node{new ProbeNode};
    int calls = 0;
    NxNodeSensor sensor{&count, &calls};

    Watched() { sensor.attach(node.get()); }

    int take()
    {
        NxDelayQueue::getDefault().process();
        return std::exchange(calls, 0);
    }
};

} // namespace

class TestNxNodeSensor : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void attachingDoesNotNotify()
    {
        Watched watched;
        QVERIFY(watched.sensor.getAttachedNode() == watched.node.get());
        QCOMPARE(watched.take(), 0);
    }

    void aSensorThatThereIsNoMemoryForStaysDetached()
    {
        const NxRef<ProbeNode> node(new ProbeNode);
        NxNodeSensor sensor;
        FailingMemory::allocationsLeft = 0;
        QVERIFY_THROWS_EXCEPTION(std::bad_alloc, sensor.attach(node.get()));
        FailingMemory::allocationsLeft = -1;
        QVERIFY(sensor.getAttachedNode() == nullptr);
        sensor.detach();
        sensor.attach(node.get());
        QVERIFY(sensor.getAttachedNode() == node.get());
    }

    void anyFieldNotifies()
    {
        Watched watched;
        for (NxField* field : watched.node->getFields()) {
            field->touch();
            QCOMPARE(watched.take(), 1);
            field->setIgnored(1);
            QCOMPARE(watched.take(), 1);
        }
    }

    void theNameNotifies()
    {
        Watched watched;
        watched.node->setName("arm");
        QCOMPARE(watched.take(), 1);
    }

    void changesOfSeveralFieldsGiveOneCallback()
    {
        Watched watched;
        watched.node->size.setValue(2);
        watched.node->title.setValue("two");
        watched.node->weights.deleteValues(0, -1);
        QCOMPARE(watched.take(), 1);
    }

    void detachingTakesTheSensorOffTheQueue()
    {
        Watched watched;
        watched.node->size.setValue(2);
        watched.sensor.detach();
        QVERIFY(!watched.sensor.isScheduled());
        watched.node->size.setValue(3);
        QCOMPARE(watched.take(), 0);
    }

    void detachingAnUnattachedSensorIsHarmless()
    {
        NxNodeSensor sensor(nullptr, nullptr);
        sensor.detach();
        QVERIFY(sensor.getAttachedNode() == nullptr);
    }

    void attachingToTheSameNodeAgainKeepsWhatIsDue()
    {
        Watched watched;
        watched.node->size.setValue(2);
        watched.sensor.attach(watched.node.get());
        QCOMPARE(watched.take(), 1);
    }

    void attachingToNothingDetaches()
    {
        Watched watched;
        watched.node->size.setValue(2);
        watched.sensor.attach(nullptr);
        QVERIFY(watched.sensor.getAttachedNode() == nullptr);
        QCOMPARE(watched.take(), 0);
    }

    void attachingElsewhereGivesTheFormerNodeUp()
    {
        Watched watched;
        const NxRef<ProbeNode> other(new ProbeNode);
        watched.sensor.attach(other.get());
        watched.node->size.setValue(2);
        QCOMPARE(watched.take(), 0);
        other->size.setValue(2);
        QCOMPARE(watched.take(), 1);
    }

    void theSensorDoesNotHoldTheNode()
    {
        const Watched watched;
        QCOMPARE(watched.node->getRefCount(), 1);
    }

    void aDyingNodeDetachesItsSensors()
    {
        Watched watched;
        NxNodeSensor second(&count, &watched.calls);
        second.attach(watched.node.get());
        watched.node->size.setValue(2);
        watched.node = nullptr;
        QVERIFY(watched.sensor.getAttachedNode() == nullptr);
        QVERIFY(second.getAttachedNode() == nullptr);
        QCOMPARE(watched.take(), 0);
    }

    void aDyingSensorLeavesTheNode()
    {
        Watched watched;
        auto second = std::make_unique<NxNodeSensor>(&count, &watched.calls);
        second->attach(watched.node.get());
        watched.node->size.setValue(2);
        second.reset();
        QCOMPARE(watched.take(), 1);
    }
};

QTEST_APPLESS_MAIN(TestNxNodeSensor)
#include "tst_NxNodeSensor.moc"

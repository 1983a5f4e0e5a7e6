#include "meridane/base/NxDelayQueue.h"
#include "meridane/scene/fields/NxNodeSensor.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"
#include "meridane/scene/nodes/NxMaterial.h"

#include <QTest>

#include <array>
#include <vector>

namespace {

/// Counts the groups that are alive.
class CountedGroup : public NxGroup {
public:
    CountedGroup() { ++alive; }

    static inline int alive = 0;

protected:
    ~CountedGroup() override { --alive; }
};

/// Counts the calls for one node.
class NodeObserver {
public:
    explicit NodeObserver(NxFieldContainer* node)
        : m_sensor([](void* data, NxSensor*) { ++*static_cast<int*>(data); }, &m_calls)
    {
        m_sensor.attach(node);
    }
    int take()
    {
        NxDelayQueue::getDefault().process();
        return std::exchange(m_calls, 0);
    }

private:
    int m_calls = 0;
    NxNodeSensor m_sensor;
};

} // namespace

class TestNxGroup : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QCOMPARE(CountedGroup::alive, 0); }

    void aNewGroupIsEmpty()
    {
        const NxRef<NxGroup> group(new NxGroup);
        QCOMPARE(group->getNumChildren(), 0);
        QVERIFY(group->getChildren().empty());
        QVERIFY(group->getChild(0) == nullptr);
        QVERIFY(group->getChild(-1) == nullptr);
        QCOMPARE(group->findChild(group.get()), -1);
        QCOMPARE(group->getClassName(), "Group");
        QCOMPARE(group->getRefCount(), 1);
    }

    void childrenStandInTheOrderTheyAreInserted()
    {
        const NxRef<NxGroup> group(new CountedGroup);
        auto* const first = new CountedGroup;
        auto* const second = new CountedGroup;
        auto* const third = new CountedGroup;
        QVERIFY(group->addChild(second));
        QVERIFY(group->insertChild(first, 0));
        QVERIFY(group->insertChild(third, 2));
        QCOMPARE(group->getNumChildren(), 3);
        QCOMPARE(group->getChild(0), first);
        QCOMPARE(group->getChildren()[1], second);
        QCOMPARE(group->findChild(third), 2);
        QVERIFY(group->getChild(3) == nullptr);
    }

    void childrenAreReplacedAtOnce()
    {
        const NxRef<NxGroup> group(new CountedGroup);
        const std::array<NxRef<NxGroup>, 6> nodes{
            new CountedGroup, new CountedGroup, new CountedGroup, new CountedGroup, new CountedGroup, new CountedGroup};
        const auto children = [&group] {
            const auto present = group->getChildren();
            return std::vector<NxNode*>(present.begin(), present.end());
        };
        const auto is = [&nodes](std::initializer_list<std::size_t> numbers) {
            std::vector<NxNode*> result;
            for (const std::size_t number : numbers)
                result.push_back(nodes.at(number).get());
            return result;
        };
        QVERIFY(group->replaceChildren(0, 0, is({0, 1, 2})));
        QCOMPARE(children(), is({0, 1, 2}));
        NodeObserver observer(group.get());
        QVERIFY(group->replaceChildren(1, 1, is({3, 4, 5})));
        QCOMPARE(observer.take(), 1);
        QCOMPARE(children(), is({0, 3, 4, 5, 2}));
        QCOMPARE(nodes[1]->getRefCount(), 1);
        QCOMPARE(nodes[3]->getRefCount(), 2);
        QVERIFY(group->replaceChildren(0, 4, {}));
        QCOMPARE(children(), is({2}));
        QVERIFY(group->replaceChildren(1, 0, {}));
        QCOMPARE(observer.take(), 1);

        QVERIFY(nodes[2]->addChild(nodes[0].get()));
        QVERIFY(!nodes[0]->replaceChildren(0, 0, is({1, 2}))); // 2 contains 0
        const std::array<NxNode*, 1> itself{group.get()};
        const std::array<NxNode*, 1> nothing{nullptr};
        QVERIFY(!group->replaceChildren(0, 1, itself));
        QVERIFY(!group->replaceChildren(0, 1, nothing));
        QVERIFY(!group->replaceChildren(0, 2, {}));
        QVERIFY(!group->replaceChildren(-1, 1, {}));
        QVERIFY(!group->replaceChildren(2, 0, {}));
        QCOMPARE(children(), is({2}));
    }

    void aGroupHoldsOneReferencePerPlace()
    {
        const NxRef<CountedGroup> child(new CountedGroup);
        {
            const NxRef<NxGroup> group(new CountedGroup);
            QVERIFY(group->addChild(child.get()));
            QVERIFY(group->addChild(child.get()));
            QCOMPARE(child->getRefCount(), 3);
            QCOMPARE(group->findChild(child.get()), 0);
            QVERIFY(group->removeChild(0));
            QCOMPARE(child->getRefCount(), 2);
            QCOMPARE(group->getNumChildren(), 1);
        }
        QCOMPARE(child->getRefCount(), 1);
    }

    void removingTheLastReferenceDeletesTheChild()
    {
        const NxRef<NxGroup> group(new NxGroup);
        group->addChild(new CountedGroup);
        group->addChild(new CountedGroup);
        group->addChild(new CountedGroup);
        QVERIFY(group->removeChild(1));
        QCOMPARE(CountedGroup::alive, 2);
        group->removeAllChildren();
        QCOMPARE(CountedGroup::alive, 0);
        QCOMPARE(group->getNumChildren(), 0);
    }

    void placesOutOfRangeAreRefused()
    {
        const NxRef<NxGroup> group(new NxGroup);
        const NxRef<NxGroup> child(new NxGroup);
        QVERIFY(!group->insertChild(child.get(), 1));
        QVERIFY(!group->insertChild(child.get(), -1));
        QVERIFY(!group->addChild(nullptr));
        QVERIFY(!group->removeChild(0));
        QVERIFY(!group->removeChild(-1));
        QCOMPARE(child->getRefCount(), 1);
    }

    void cyclesAreRefused()
    {
        const NxRef<NxGroup> top(new NxGroup);
        auto* const middle = new NxGroup;
        auto* const bottom = new NxGroup;
        top->addChild(middle);
        middle->addChild(new NxMaterial);
        middle->addChild(bottom);
        QVERIFY(!top->addChild(top.get()));
        QVERIFY(!bottom->addChild(top.get()));
        QVERIFY(!bottom->addChild(middle));
        QVERIFY(!bottom->addChild(bottom));
        QVERIFY(!middle->insertChild(top.get(), 0));
        QCOMPARE(bottom->getNumChildren(), 0);
        QCOMPARE(top->getRefCount(), 1);
        QVERIFY(top->addChild(bottom)); // shared is no cycle
    }

    void aLadderOfSharedGroupsIsLookedThroughOnce()
    {
        // Two to the power of 64 ways lead from the top to the bottom.
        const NxRef<NxGroup> top(new NxGroup);
        NxGroup* group = top.get();
        for (int i = 0; i < 64; ++i) {
            auto* const next = new NxGroup;
            group->addChild(next);
            group->addChild(next);
            group = next;
        }
        QVERIFY(!group->addChild(top.get()));
        const NxRef<NxGroup> other(new NxGroup);
        QVERIFY(other->addChild(top.get()));
    }

    void everyChangeOfTheListIsTold()
    {
        const NxRef<NxGroup> group(new NxGroup);
        const NxRef<NxGroup> child(new NxGroup);
        NodeObserver observer(group.get());
        QCOMPARE(observer.take(), 0);
        group->addChild(child.get());
        QCOMPARE(observer.take(), 1);
        group->insertChild(child.get(), 0);
        group->removeChild(0);
        QCOMPARE(observer.take(), 1);
        group->removeAllChildren();
        QCOMPARE(observer.take(), 1);
    }

    void refusedChangesAndChangesBelowAreNotTold()
    {
        const NxRef<NxGroup> group(new NxGroup);
        const NxRef<NxGroup> child(new NxGroup);
        group->addChild(child.get());
        NodeObserver observer(group.get());
        group->addChild(nullptr);
        group->addChild(group.get());
        group->insertChild(child.get(), 7);
        group->removeChild(7);
        child->addChild(new NxMaterial);
        child->removeAllChildren();
        child->removeAllChildren();
        QCOMPARE(observer.take(), 0);
    }

    void aChildThatIsHeldElsewhereSurvivesItsGroup()
    {
        NxRef<NxGroup> kept;
        {
            const NxRef<NxGroup> top(new CountedGroup);
            auto* const middle = new CountedGroup;
            top->addChild(middle);
            kept = NxRef<NxGroup>(new CountedGroup);
            middle->addChild(kept.get());
            middle->addChild(new CountedGroup);
            kept->addChild(new CountedGroup);
            QCOMPARE(CountedGroup::alive, 5);
        }
        QCOMPARE(CountedGroup::alive, 2);
        QCOMPARE(kept->getRefCount(), 1);
        QCOMPARE(kept->getNumChildren(), 1);
        kept = nullptr;
    }

    void aMillionNestedGroupsDieWithoutOverflow()
    {
        constexpr int depth = 1000000;
        {
            NxRef<NxGroup> group(new CountedGroup);
            for (int i = 1; i < depth; ++i) {
                const NxRef<NxGroup> above(new CountedGroup);
                above->addChild(group.get());
                if (i % 1000 == 0)
                    above->addChild(new CountedGroup);
                group = above;
            }
            QVERIFY(CountedGroup::alive > depth);
        }
        QCOMPARE(CountedGroup::alive, 0);
    }

    void sensorsOnDyingChildrenAreDetached()
    {
        NxNodeSensor sensor([](void*, NxSensor*) {}, nullptr);
        {
            const NxRef<NxGroup> top(new NxGroup);
            auto* const middle = new NxGroup;
            auto* const bottom = new NxGroup;
            top->addChild(middle);
            middle->addChild(bottom);
            sensor.attach(bottom);
            bottom->addChild(new NxMaterial);
            QVERIFY(sensor.isScheduled());
        }
        QVERIFY(sensor.getAttachedNode() == nullptr);
        QVERIFY(!sensor.isScheduled());
    }
};

QTEST_APPLESS_MAIN(TestNxGroup)
#include "tst_NxGroup.moc"

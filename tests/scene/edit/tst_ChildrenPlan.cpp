#include "meridane/scene/edit/ChildrenPlan.h"

#include <QTest>

#include <algorithm>
#include <map>
#include <random>
#include <set>

using meridane::ChildrenPlan;
using meridane::NodeRows;
using meridane::NodeSet;

class TestChildrenPlan : public QObject {
    Q_OBJECT

private:
    using Nodes = std::vector<NxNode*>;

    static Nodes childrenOf(const NxGroup& group) { return {group.getChildren().begin(), group.getChildren().end()}; }

    static NxRef<NxGroup> groupOf(int count)
    {
        NxRef<NxGroup> group(new NxGroup);
        for (int i = 0; i < count; ++i)
            group->addChild(new NxGroup);
        return group;
    }

private Q_SLOTS:
    void randomPlansGiveWhatSingleChangesGive()
    {
        std::mt19937 random(1);
        const auto number = [&random](int end) { return static_cast<int>(random() % static_cast<unsigned int>(end)); };
        for (int round = 0; round < 500; ++round) {
            const int count = number(12);
            const NxRef<NxGroup> group = groupOf(count);
            const Nodes before = childrenOf(*group);
            std::set<int> leaving;
            std::multimap<int, NxNode*> coming;
            std::vector<NxRef<NxNode>> held;
            ChildrenPlan plan;
            for (int i = number(4); i > 0 && count > 0; --i) {
                const int row = number(count);
                leaving.insert(row);
                plan.remove(*group, std::span(&row, 1));
            }
            for (int i = number(4); i > 0; --i) {
                held.emplace_back(new NxGroup);
                NxNode* const node = held.back().get();
                const int row = number(count + 1);
                coming.emplace(row, node);
                plan.insert(*group, row, std::span(&node, 1));
            }
            Nodes expected;
            for (int row = 0; row <= count; ++row) {
                const auto [first, last] = coming.equal_range(row);
                if (first != last)
                    QCOMPARE(plan.indexAfter(*group, row), static_cast<int>(expected.size()));
                for (auto place = first; place != last; ++place)
                    expected.push_back(place->second);
                if (row < count && !leaving.contains(row))
                    expected.push_back(before[static_cast<std::size_t>(row)]);
            }
            NxSceneChanges changes = plan.changes();
            QCOMPARE(changes.isEmpty(), expected == before);
            changes.exchange();
            QVERIFY(childrenOf(*group) == expected);
            changes.exchange();
            QVERIFY(childrenOf(*group) == before);
        }
    }

    void aGroupMayMoveIntoOneThatWasBelowIt()
    {
        const NxRef<NxGroup> scene(new NxGroup);
        const NxRef<NxGroup> outer(new NxGroup);
        const NxRef<NxGroup> inner(new NxGroup);
        scene->addChild(outer.get());
        outer->addChild(inner.get());
        ChildrenPlan plan;
        NxNode* in = inner.get();
        NxNode* out = outer.get();
        const int first = 0;
        plan.remove(*outer, std::span(&first, 1));
        plan.remove(*scene, std::span(&first, 1));
        plan.insert(*scene, 0, std::span(&in, 1));
        plan.insert(*inner, 0, std::span(&out, 1));
        NxSceneChanges changes = plan.changes();
        changes.exchange();
        QCOMPARE(scene->getChild(0), inner.get());
        QCOMPARE(inner->getChild(0), outer.get());
        QCOMPARE(outer->getNumChildren(), 0);
        changes.exchange();
        QCOMPARE(outer->getChild(0), inner.get());
        QCOMPARE(inner->getNumChildren(), 0);
    }

    void theTopmostOfASetHaveNoOthersAbove()
    {
        const NxRef<NxGroup> scene = groupOf(2);
        auto* const a = static_cast<NxGroup*>(scene->getChild(0));
        auto* const b = static_cast<NxGroup*>(scene->getChild(1));
        const NxRef<NxGroup> shared = groupOf(3);
        a->addChild(shared.get());
        b->addChild(shared.get());
        const NodeRows inA{{scene.get(), a, shared.get()}, {0, 0}, {0, 1}};
        const NodeRows inB{{scene.get(), b, shared.get()}, {1, 0}, {1, 2}};
        // The children of a group in two places are united.
        NodeSet top = meridane::topmost({inB, inA});
        QCOMPARE(top.size(), std::size_t(1));
        QCOMPARE(top.front().path[1], a);
        QCOMPARE(top.front().rows, (std::vector{0, 1, 2}));
        // Those below a group that is in the set go along with it, in that place.
        top = meridane::topmost({inB, inA, {{scene.get()}, {}, {0}}});
        QCOMPARE(top.size(), std::size_t(2));
        QCOMPARE(top[0].path.size(), std::size_t(1));
        QCOMPARE(top[1].rows, (std::vector{1, 2}));
    }

    void theOrderIsThatOfTheTree()
    {
        const NxRef<NxGroup> scene = groupOf(3);
        auto* const middle = static_cast<NxGroup*>(scene->getChild(1));
        const NxRef<NxNode> below(new NxGroup);
        middle->addChild(below.get());
        const NodeSet set{{{scene.get()}, {}, {0, 2}}, {{scene.get(), middle}, {1}, {0}}};
        const auto members = meridane::inTreeOrder(set);
        QCOMPARE(members.size(), std::size_t(3));
        QCOMPARE(members[0].node(), scene->getChild(0));
        QCOMPARE(members[1].node(), below.get());
        QCOMPARE(members[2].node(), scene->getChild(2));
    }
};

QTEST_APPLESS_MAIN(TestChildrenPlan)
#include "tst_ChildrenPlan.moc"

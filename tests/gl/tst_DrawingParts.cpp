#include "meridane/gl/gpu/detail/RangeList.h"
#include "meridane/gl/places/detail/BoundsTree.h"

#include <QTest>

#include <algorithm>
#include <numeric>
#include <optional>
#include <random>
#include <set>
#include <utility>
#include <vector>

using namespace meridane;

namespace {

NxBounds randomBox(std::mt19937& random, float reach)
{
    std::uniform_real_distribution<float> place(-reach, reach);
    std::uniform_real_distribution<float> size(0, 1);
    NxBounds box;
    const VbVec3f corner(place(random), place(random), place(random));
    box.include(corner);
    box.include(VbVec3f(corner[0] + size(random), corner[1] + size(random), corner[2] + size(random)));
    return box;
}

/// What is between -1 and 1 on each axis.
const Frustum& unitCube()
{
    static const Frustum frustum{VbMatrix()};
    return frustum;
}

} // namespace

class TestDrawingParts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theTreeFindsWhatAWalkFinds_data()
    {
        QTest::addColumn<int>("items");
        QTest::addColumn<int>("changes"); // before each query
        QTest::newRow("one") << 1 << 1;
        QTest::newRow("few, rebuilt") << 10 << 5;
        QTest::newRow("many, changed one by one") << 1000 << 10;
        QTest::newRow("many, rebuilt") << 1000 << 500;
    }

    void theTreeFindsWhatAWalkFinds()
    {
        QFETCH(int, items);
        QFETCH(int, changes);
        std::mt19937 random(7);
        BoundsTree tree;
        std::vector<NxBounds> boxes(static_cast<std::size_t>(items));
        const auto set = [&](std::size_t item, const NxBounds& box) {
            boxes[item] = box;
            tree.set(static_cast<Id>(item), box);
        };
        for (std::size_t item = 0; item < boxes.size(); ++item)
            set(item, randomBox(random, 3));
        for (int round = 0; round < 50; ++round) {
            NxBounds all;
            std::size_t count = 0;
            std::vector<Id> expected;
            for (std::size_t item = 0; item < boxes.size(); ++item) {
                if (boxes[item].isEmpty())
                    continue;
                ++count;
                all.include(boxes[item]);
                if (unitCube().overlap(boxes[item]) != Frustum::Overlap::None)
                    expected.push_back(static_cast<Id>(item));
            }
            std::vector<Id> found;
            tree.find(unitCube(), found);
            std::sort(found.begin(), found.end());
            QCOMPARE(found, expected);
            QCOMPARE(tree.count(), count);
            QVERIFY(tree.bounds() == all);
            for (int i = 0; i < changes; ++i)
                set(random() % boxes.size(), random() % 4 == 0 ? NxBounds() : randomBox(random, 3));
        }
        tree.clear();
        QVERIFY(tree.bounds().isEmpty());
        QVERIFY(tree.boundsOf(0).isEmpty());
    }

    void theTreeTakesItemsInAnyOrder_data()
    {
        QTest::addColumn<float>("step");
        QTest::newRow("in one place") << 0.0F;
        QTest::newRow("from left to right") << 1e-4F;
    }

    void theTreeTakesItemsInAnyOrder()
    {
        QFETCH(float, step);
        BoundsTree tree;
        std::vector<Id> found;
        for (Id item = 0; item < 5000; ++item) {
            NxBounds point;
            point.include(VbVec3f(step * static_cast<float>(item), 0, 0));
            tree.set(item, point);
            if (item % 100 == 0)
                (void)tree.bounds();
        }
        tree.find(unitCube(), found);
        QCOMPARE(found.size(), 5000U);
    }

    void rangesDontOverlap()
    {
        std::mt19937 random(11);
        constexpr std::uint32_t size = 1000;
        RangeList list(size);
        std::vector<std::pair<std::uint32_t, std::uint32_t>> taken;
        std::vector<bool> used(size);
        for (int step = 0; step < 5000; ++step) {
            if (random() % 2 == 0 || taken.empty()) {
                const auto wanted = static_cast<std::uint32_t>(random() % 60 + 1);
                const bool canTake = list.canTake(wanted);
                const std::optional<std::uint32_t> start = list.take(wanted);
                QCOMPARE(start.has_value(), canTake);
                if (!start)
                    continue;
                QVERIFY(*start + wanted <= size);
                for (std::uint32_t i = *start; i < *start + wanted; ++i) {
                    QVERIFY(!used[i]);
                    used[i] = true;
                }
                taken.emplace_back(*start, wanted);
            } else {
                const std::size_t index = random() % taken.size();
                const auto [start, count] = taken[index];
                taken.erase(taken.begin() + static_cast<std::ptrdiff_t>(index));
                std::fill_n(used.begin() + static_cast<std::ptrdiff_t>(start), count, false);
                list.release(start, count);
            }
        }
    }

    void rangesGrowTogetherAgain()
    {
        RangeList list(30);
        QCOMPARE(list.take(0), std::optional<std::uint32_t>(0));
        for (std::uint32_t i = 0; i < 3; ++i)
            QCOMPARE(list.take(10), std::optional<std::uint32_t>(10 * i));
        QVERIFY(!list.take(1));
        list.release(0, 10);
        list.release(20, 10);
        QVERIFY(!list.canTake(11));
        list.release(10, 10);
        QCOMPARE(list.take(30), std::optional<std::uint32_t>(0));
    }
};

QTEST_APPLESS_MAIN(TestDrawingParts)
#include "tst_DrawingParts.moc"

#include "meridane/gl/places/detail/BoundsTree.h"

#include <QTest>

using meridane::BoundsTree;

namespace {

NxBounds boxAt(float x)
{
    NxBounds box;
    box.include(VbVec3f(x, 0, 0));
    box.include(VbVec3f(x + 1, 1, 1));
    return box;
}

/// A tree of items between 0 and 20.
void fill(BoundsTree& tree)
{
    for (meridane::Id item = 0; item < 20; ++item)
        tree.set(item, boxAt(static_cast<float>(item)));
}

} // namespace

class TestBoundsTree : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anEmptyTreeHasNoBounds()
    {
        BoundsTree tree;
        QVERIFY(tree.bounds().isEmpty());
        tree.remove(3);
        QVERIFY(tree.bounds().isEmpty());
        tree.set(3, boxAt(5));
        QVERIFY(tree.bounds() == boxAt(5));
        tree.remove(3);
        QVERIFY(tree.bounds().isEmpty());
        QCOMPARE(tree.count(), std::size_t{0});
    }

    void anItemFarFromAllOthersComesAndGoes()
    {
        BoundsTree tree;
        fill(tree);
        const NxBounds before = tree.bounds();
        QCOMPARE(before.max[0], 20.F);
        tree.set(20, boxAt(1000));
        QCOMPARE(tree.bounds().max[0], 1001.F);
        tree.remove(20);
        QVERIFY(tree.bounds() == before);
        QCOMPARE(tree.count(), std::size_t{20});
    }

    void anItemMovesAmongTheOthers()
    {
        BoundsTree tree;
        fill(tree);
        QCOMPARE(tree.bounds().min[0], 0.F);
        tree.set(0, boxAt(7.5F));
        QCOMPARE(tree.bounds().min[0], 1.F);
        tree.set(0, boxAt(-5));
        QCOMPARE(tree.bounds().min[0], -5.F);
    }
};

QTEST_APPLESS_MAIN(TestBoundsTree)
#include "tst_BoundsTree.moc"

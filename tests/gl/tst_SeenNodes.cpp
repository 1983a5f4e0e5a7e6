#include "gl/ScenePairCase.h"

#include <algorithm>

/// What is seen in a part of the picture, and the outlines of several selected nodes.
class TestSeenNodes : public ScenePairCase {
    Q_OBJECT

private:
    static constexpr int side = 101;

    using Paths = std::vector<std::vector<NxNode*>>;

    /// In a part of the picture that is given from -1 to 1.
    [[nodiscard]] Paths seenIn(double left, double bottom, double right, double top)
    {
        const auto pixel = [](double place) { return static_cast<int>((place + 1) / 2 * side); };
        Paths paths = m_bench->drawing().seenIn(
            {pixel(left), pixel(bottom), pixel(right) - pixel(left), pixel(top) - pixel(bottom)}, DrawingBench::front(),
            side, side, 1);
        std::sort(paths.begin(), paths.end(),
            [this](const auto& a, const auto& b) { return placeOf(a.front()) < placeOf(b.front()); });
        return paths;
    }
    [[nodiscard]] int placeOf(const NxNode* node) const { return m_pair->scene->findChild(node); }
    [[nodiscard]] std::vector<NxNode*> leftPath() const { return {m_pair->left.get(), m_pair->leftMesh.get()}; }
    [[nodiscard]] std::vector<NxNode*> rightPath() const { return {m_pair->right.get(), m_pair->rightMesh.get()}; }

private Q_SLOTS:
    void init() { drawPair(); }
    void cleanup() { endDrawing(); }

    void meshesOfTheRectangleAreFound()
    {
        QCOMPARE(seenIn(-1, -1, 1, 1), (Paths{leftPath(), rightPath()}));
        QCOMPARE(seenIn(-1, -1, 0, 1), Paths{leftPath()});
        QCOMPARE(seenIn(0.4, -0.1, 0.6, 0.1), Paths{rightPath()});
        QCOMPARE(seenIn(-0.05, -1, 0.05, 1), Paths());
        QCOMPARE(seenIn(-5, -5, -0.5, 5), Paths{leftPath()});
        QCOMPARE(seenIn(2, 2, 3, 3), Paths());
        QCOMPARE(seenIn(0.5, 0, 0.2, 0), Paths());
        COMPARE_PIXEL(m_bench->draw(), -0.5, 0, red); // pictures are as before
    }

    void whatIsBehindIsNotSeen()
    {
        const NxRef<NxMesh> front = rectangle(-1, -1, 0, 1, 0.5F);
        m_pair->scene->addChild(front.get());
        QCOMPARE(seenIn(-1, -1, 1, 1), (Paths{rightPath(), {front.get()}}));
        NxNodeVisibility visibility;
        visibility.setHidden(std::vector<NxNode*>{front.get()});
        m_bench->drawing().setVisibility(visibility);
        QCOMPARE(seenIn(-1, -1, 1, 1), (Paths{leftPath(), rightPath()}));
    }

    void whatASectionCutsOffIsNotSeen()
    {
        m_bench->restyle([](NxDrawingStyle& style) {
            style.section.isOn = true;
            style.section.normal = VbVec3f(1, 0, 0);
            style.section.position = 0;
        });
        const QImage picture = m_bench->draw();
        const bool isLeftSeen = isNear(pixelAt(picture, -0.5, 0), red);
        QVERIFY(isLeftSeen != isNear(pixelAt(picture, 0.5, 0), green));
        QCOMPARE(seenIn(-1, -1, 1, 1), Paths{isLeftSeen ? leftPath() : rightPath()});
    }

    void aMeshIsFoundInEachPlace()
    {
        m_pair->right->addChild(m_pair->leftMesh.get());
        m_pair->right->removeChild(1);
        QCOMPARE(seenIn(-1, -1, 1, 1), (Paths{leftPath(), {m_pair->right.get(), m_pair->leftMesh.get()}}));
    }

    void manyMeshesHaveNumbersOfTheirOwn()
    {
        const NxRef<NxGroup> group(new NxGroup);
        constexpr int columns = 20;
        for (int i = 0; i < columns * columns; ++i) {
            const float x = static_cast<float>(i % columns) / columns * 2 - 1;
            const float y = static_cast<float>(i / columns) / columns * 2 - 1;
            group->addChild(rectangle(x, y, x + 2.F / columns, y + 2.F / columns, 1).get());
        }
        m_pair->scene->addChild(group.get());
        QCOMPARE(seenIn(-1, -1, 1, 1).size(), std::size_t{columns * columns});
        const Paths one = seenIn(-0.98, -0.98, -0.92, -0.92);
        QCOMPARE(one.size(), std::size_t{1});
        QCOMPARE(one.front().back(), group->getChild(0));
    }

    void otherSelectedNodesHaveAWeakerOutline()
    {
        m_bench->restyle([](NxDrawingStyle& style) {
            style.outlineColor = VbColor(1, 1, 1);
            style.otherOutlineColor = VbColor(0, 0, 1);
            style.outlineWidth = 4;
        });
        m_bench->drawing().setSelectedPath(leftPath());
        m_bench->drawing().setOtherSelectedNodes(
            std::vector<NxNode*>{m_pair->right.get(), m_pair->rightMesh.get(), m_pair->rightMaterial.get()});
        const QImage picture = m_bench->draw();
        const auto changed = [&](int from, int to) {
            int pixels = 0;
            for (int x = from; x < to; ++x) {
                for (int y = 0; y < picture.height(); ++y)
                    pixels += picture.pixel(x, y) != m_picture.pixel(x, y) ? 1 : 0;
            }
            return pixels;
        };
        const int weaker = changed(side / 2, side);
        QVERIFY(weaker > 50);
        QVERIFY2(changed(0, side / 2) > weaker, qPrintable(QString::number(weaker)));
        m_bench->drawing().setOtherSelectedNodes({});
        m_bench->drawing().setSelectedPath({});
        QCOMPARE(m_bench->draw(), m_picture);
    }

    void aLostContextIsMadeUpFor()
    {
        QCOMPARE(seenIn(-1, -1, 0, 1), Paths{leftPath()});
        m_bench->loseContext();
        QCOMPARE(seenIn(-1, -1, 0, 1), Paths{leftPath()});
    }
};

QTEST_MAIN(TestSeenNodes)
#include "tst_SeenNodes.moc"

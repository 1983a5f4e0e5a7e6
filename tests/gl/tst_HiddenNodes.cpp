#include "gl/ScenePairCase.h"

#include "meridane/gl/NxRayPick.h"

#include <array>

/// Nodes that are hidden or isolated in the picture and for picking.
class TestHiddenNodes : public ScenePairCase {
    Q_OBJECT

private:
    void hide(const std::vector<NxNode*>& nodes)
    {
        m_visibility.setHidden(nodes);
        m_bench->drawing().setVisibility(m_visibility);
    }
    void isolate(const std::vector<NxNode*>& nodes)
    {
        m_visibility.setIsolated(nodes);
        m_bench->drawing().setVisibility(m_visibility);
    }
    [[nodiscard]] static bool meets(const ScenePair& pair, const NxNodeVisibility& visibility, float x)
    {
        NxRayPick pick(NxRay{VbVec3f(x, 0, 10), VbVec3f(0, 0, -1)});
        pick.setVisibility(visibility);
        return pick.pick(*pair.scene).has_value();
    }

private Q_SLOTS:
    void init()
    {
        m_visibility = NxNodeVisibility();
        drawPair();
    }
    void cleanup() { endDrawing(); }

    void whatIsHiddenIsNotDrawn()
    {
        const NxBounds all = m_bench->drawing().bounds();
        hide({m_pair->left.get()});
        QImage picture = m_bench->draw();
        COMPARE_PIXEL(picture, -0.5, 0, black);
        COMPARE_PIXEL(picture, 0.5, 0, green);
        QVERIFY(m_bench->drawing().bounds().size()[0] < all.size()[0]);
        QVERIFY(m_bench->drawing().bounds(m_pair->left.get()).isEmpty());
        hide({});
        picture = m_bench->draw();
        COMPARE_PIXEL(picture, -0.5, 0, red);
        QVERIFY(m_bench->drawing().bounds() == all);
    }

    void whatIsIsolatedIsDrawnAlone()
    {
        isolate({m_pair->left.get()});
        QImage picture = m_bench->draw();
        COMPARE_PIXEL(picture, -0.5, 0, red);
        COMPARE_PIXEL(picture, 0.5, 0, black);
        hide({m_pair->leftMesh.get()}); // hidden wins
        picture = m_bench->draw();
        COMPARE_PIXEL(picture, -0.5, 0, black);
        isolate({});
        hide({});
        picture = m_bench->draw();
        COMPARE_PIXEL(picture, 0.5, 0, green);
    }

    void materialsKeepTheirEffect()
    {
        hide({m_pair->leftMaterial.get()});
        COMPARE_PIXEL(m_bench->draw(), -0.5, 0, red);
    }

    void editsAreFollowedWhileHidden()
    {
        hide({m_pair->left.get()});
        m_pair->left->translation.setValue(VbVec3f(0, 0, 0));
        m_pair->leftMesh->positions.setValues({{-1, -1, 0}, {1, -1, 0}, {1, 1, 0}, {-1, 1, 0}});
        COMPARE_PIXEL(m_bench->draw(), -0.5, 0, black);
        const NxRef<NxMesh> added = rectangle(-1, -1, 1, 1, 0.5F);
        m_pair->left->addChild(added.get());
        COMPARE_PIXEL(m_bench->draw(), -0.5, 0, black);
        hide({});
        COMPARE_PIXEL(m_bench->draw(), -0.5, 0, red);
    }

    void aRayPassesThroughThem()
    {
        NxNodeVisibility visibility;
        QVERIFY(visibility.showsAll());
        const float left = -0.5F;
        QVERIFY(meets(*m_pair, visibility, left));
        const std::array<NxNode*, 1> hidden{m_pair->left.get()};
        visibility.setHidden(hidden);
        QVERIFY(!meets(*m_pair, visibility, left));
        QVERIFY(meets(*m_pair, visibility, -left));
        visibility.setIsolated(hidden);
        QVERIFY(!meets(*m_pair, visibility, left));
        QVERIFY(!meets(*m_pair, visibility, -left));
        visibility.setHidden({});
        QVERIFY(meets(*m_pair, visibility, left));
        QVERIFY(!meets(*m_pair, visibility, -left));
        visibility.setIsolated({});
        QVERIFY(visibility.showsAll());
        QVERIFY(meets(*m_pair, visibility, -left));
    }

    void anotherSceneIsShownWhole()
    {
        hide({m_pair->left.get()});
        const NxRef<NxGroup> scene = m_pair->scene;
        m_bench->drawing().setScene(nullptr);
        m_bench->drawing().setScene(scene.get());
        COMPARE_PIXEL(m_bench->draw(), -0.5, 0, red);
    }

private:
    NxNodeVisibility m_visibility;
};

QTEST_MAIN(TestHiddenNodes)
#include "tst_HiddenNodes.moc"

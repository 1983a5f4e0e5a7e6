#include "app/AppScenes.h"

#include "orvane/app/tree/HiddenNodes.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/app/tree/facts/PlaceCount.h"

#include <QHelpEvent>
#include <QTest>
#include <QToolTip>
#include <QTreeView>

#include <chrono>
#include <vector>

using namespace std::chrono_literals;

/// In how many places of a scene nodes are.
class TestPlaceCount : public QObject {
    Q_OBJECT

private:
    using Nodes = std::vector<NxNode*>;

    static std::size_t placesOf(NxGroup& scene, const Nodes& nodes)
    {
        PlaceCount places(scene, nodes);
        return places.advance(1h) ? places.count() : 0;
    }

    NxRef<NxGroup> m_scene{new NxGroup};

private Q_SLOTS:
    void init() { m_scene = NxRef<NxGroup>(new NxGroup); }

    void sharedNodesAndWhatIsInSharedGroupsHaveSeveral()
    {
        const NxRef<NxGroup> group(new NxGroup);
        const NxRef<NxGroup> inside(new NxGroup);
        const NxRef<NxGroup> alone(new NxGroup);
        const NxRef<NxGroup> elsewhere(new NxGroup);
        group->addChild(inside.get());
        group->addChild(inside.get());
        m_scene->addChild(group.get());
        m_scene->addChild(alone.get());
        m_scene->addChild(group.get());
        QCOMPARE(placesOf(*m_scene, {alone.get()}), std::size_t{1});
        QCOMPARE(placesOf(*m_scene, {group.get()}), std::size_t{2});
        QCOMPARE(placesOf(*m_scene, {inside.get()}), std::size_t{4});
        QCOMPARE(placesOf(*m_scene, {inside.get(), alone.get(), elsewhere.get()}), std::size_t{5});
        PlaceCount places(*m_scene, Nodes{inside.get(), alone.get(), elsewhere.get()});
        QVERIFY(places.advance(1h));
        QCOMPARE(places.nodesFound(), std::size_t{2});
    }

    void aChangeOfTheStructureStartsAgain()
    {
        const NxRef<NxGroup> shared(new NxGroup);
        for (int i = 0; i < 1000; ++i)
            m_scene->addChild(shared.get());
        PlaceCount places(*m_scene, Nodes{shared.get()});
        QVERIFY(!places.advance(0s));
        QVERIFY(places.count() > 0);
        m_scene->removeAllChildren();
        m_scene->addChild(shared.get());
        QVERIFY(places.advance(1h));
        QCOMPARE(places.count(), std::size_t{1});
    }

    void moreThanCouldEverBeVisitedHaveAnEnd()
    {
        NxRef<NxGroup> below(new NxGroup);
        NxNode* const leaf = below.get();
        for (int level = 0; level < 40; ++level) {
            const NxRef<NxGroup> above(new NxGroup);
            above->addChild(below.get());
            above->addChild(below.get());
            below = above;
        }
        m_scene->addChild(below.get());
        const std::size_t places = placesOf(*m_scene, {leaf});
        QVERIFY(places > 100'000 && places <= PlaceCount::mostPlaces);
    }

    void theTipOfTheEyeNamesThem()
    {
        const NxRef<NxGroup> shared(new NxGroup);
        const NxRef<NxGroup> alone(new NxGroup);
        m_scene->addChild(shared.get());
        m_scene->addChild(alone.get());
        m_scene->addChild(shared.get());
        SceneTreePanel panel;
        panel.resize(400, 300);
        panel.setScene(m_scene.get());
        panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&panel));
        const auto hover = [&panel](int row) {
            const QModelIndex eye = panel.model()->index(row, SceneTreeModel::ShownColumn);
            const QPoint place = panel.view()->visualRect(eye).center();
            QHelpEvent event(QEvent::ToolTip, place, panel.view()->viewport()->mapToGlobal(place));
            QApplication::sendEvent(panel.view()->viewport(), &event);
        };
        hover(0);
        QTRY_VERIFY(QToolTip::text().contains(QStringLiteral("in 2 places")));
        QVERIFY(QToolTip::text().contains(QStringLiteral("Hides the node")));
        QTest::mouseClick(panel.view()->viewport(), Qt::LeftButton, Qt::NoModifier,
            panel.view()->visualRect(panel.model()->index(0, SceneTreeModel::ShownColumn)).center());
        QVERIFY(!panel.hidden().isEmpty());
        hover(2);
        QTRY_VERIFY(QToolTip::text().contains(QStringLiteral("Hidden in 2 places")));
        hover(1);
        QTRY_VERIFY(QToolTip::text().contains(QStringLiteral("Hides the node")));
        QVERIFY(!QToolTip::text().contains(QStringLiteral("places")));
        QToolTip::hideText();
    }
};

QTEST_MAIN(TestPlaceCount)
#include "tst_PlaceCount.moc"

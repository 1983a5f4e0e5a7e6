#include "app/AppScenes.h"
#include "app/StepClock.h"

#include "orvane/app/find/FoundNodes.h"
#include "orvane/app/find/NodeFinder.h"
#include "orvane/app/scene/Session.h"

#include "meridane/query/QueryFacts.h"
#include "meridane/scene/check/NxSceneProblem.h"
#include "meridane/scene/nodes/NxMaterial.h"

#include <QTest>

#include <memory>

using Direction = NodeFinder::Direction;

/// The search for nodes in slices, and how it follows the scene.
class TestNodeFinder : public QObject {
    Q_OBJECT

private:
    static meridane::Query query(const char* text) { return std::get<meridane::Query>(meridane::Query::parse(text)); }

    NxGroup& open(const char* text)
    {
        m_session->document().open(AppScenes::read(text), {});
        return *m_session->document().scene();
    }
    /// The names of all hits.
    QByteArray found()
    {
        QByteArray names;
        for (std::size_t i = 0; i < m_finder->count(); ++i)
            names += QByteArray(m_finder->path(i).back()->getName().toUtf8()) + " ";
        return names.trimmed();
    }
    static NxNode* material(const char* name)
    {
        auto* const node = new NxMaterial;
        node->setName(name);
        return node;
    }

    std::unique_ptr<Session> m_session;
    std::unique_ptr<NodeFinder> m_finder;

    static constexpr const char* robot = "#mrd 1.0\n"
                                         "Group \"robot\" {\n"
                                         "  Group \"left\" { Material \"arm 1\" { } Material \"leg\" { } }\n"
                                         "  Group \"right\" { Material \"arm 2\" { shininess = 0.5 } }\n"
                                         "}\n"
                                         "Material \"arm 3\" { }\n";

private Q_SLOTS:
    void init()
    {
        m_session = std::make_unique<Session>(AppSettings::Mode::None);
        m_finder = std::make_unique<NodeFinder>(m_session->services(), &StepClock::now);
    }

    void cleanup()
    {
        m_finder.reset();
        m_session.reset();
    }

    void hitsAreFoundInTheOrderOfTheScene()
    {
        NxGroup& scene = open(robot);
        QVERIFY(m_finder->isComplete());
        m_finder->search(query("arm"));
        QTRY_VERIFY(m_finder->isComplete());
        QCOMPARE(found(), QByteArray("arm 1 arm 2 arm 3"));
        const FoundNodes marks(m_finder.get());
        const NxNode& group = *scene.getChild(0);
        QVERIFY(!marks.isHit(group) && marks.leadsToHit(group));
        QVERIFY(marks.isHit(*scene.getChild(1)) && !marks.leadsToHit(*scene.getChild(1)));
        QCOMPARE(m_finder->place(*scene.getChild(1)).value(), std::size_t{2});
        QVERIFY(!m_finder->place(group));
        m_finder->search(query("leg"));
        QTRY_VERIFY(m_finder->isComplete());
        QCOMPARE(found(), QByteArray("leg"));
        m_finder->end();
        QCOMPARE(m_finder->count(), std::size_t{0});
        QVERIFY(!marks.isHit(*scene.getChild(1)));
    }

    void neighboursAreFoundFromAnyNode()
    {
        NxGroup& scene = open(robot);
        m_finder->search(query("arm"));
        QTRY_VERIFY(m_finder->isComplete());
        const NxNode* const left = scene.getChild(0)->getChildren()[0];
        const NxNode* const leg = left->getChildren()[1];
        QCOMPARE(m_finder->beside(nullptr, Direction::Next).value(), std::size_t{0});
        QCOMPARE(m_finder->beside(nullptr, Direction::Previous).value(), std::size_t{2});
        QCOMPARE(m_finder->beside(scene.getChild(0), Direction::Next).value(), std::size_t{0});
        QVERIFY(!m_finder->beside(scene.getChild(0), Direction::Previous));
        QCOMPARE(m_finder->beside(left->getChildren()[0], Direction::Next).value(), std::size_t{1});
        QCOMPARE(m_finder->beside(leg, Direction::Next).value(), std::size_t{1});
        QCOMPARE(m_finder->beside(leg, Direction::Previous).value(), std::size_t{0});
        QVERIFY(!m_finder->beside(scene.getChild(1), Direction::Next));
        QCOMPARE(m_finder->path(1).size(), std::size_t{3});
        QVERIFY(!m_finder->isBesideTheOneBefore(1));
    }

    void noSliceIsLongerThanItMay()
    {
        constexpr int nodes = 30000;
        m_session->document().open(AppScenes::wide(nodes), {});
        const TurnCounter turns;
        m_finder->search(query("t:Group"));
        QTRY_VERIFY(m_finder->isComplete());
        QCOMPARE(m_finder->count(), std::size_t{nodes + 1});
        QVERIFY2(turns.turns() > 100, qPrintable(QString::number(turns.turns())));
        QVERIFY2(turns.mostReadings() <= 6, qPrintable(QString::number(turns.mostReadings())));
    }

    void namesAreReadWhenNothingHappens()
    {
        m_session->document().open(AppScenes::wide(20000), {});
        QVERIFY(!m_finder->areNamesKnown());
        m_finder->prepare();
        QTRY_VERIFY(m_finder->areNamesKnown());
        QCOMPARE(m_finder->count(), std::size_t{0});
        m_finder->search(query("hand"));
        QVERIFY(m_finder->areNamesKnown());
        QTRY_VERIFY(m_finder->isComplete());
        m_finder->end();
        dynamic_cast<NxGroup&>(*m_session->document().scene()->getChild(0)).addChild(material("hand"));
        QVERIFY(!m_finder->areNamesKnown());
        QTRY_VERIFY(m_finder->areNamesKnown()); // they stay so between searches
        m_finder->search(query("hand"));
        QTRY_COMPARE(found(), QByteArray("hand"));
        m_session->document().close();
        QVERIFY(!m_finder->areNamesKnown());
    }

    void namesThatChangeBetweenSearchesAreReadAgain()
    {
        NxGroup& scene = open(robot);
        m_finder->search({});
        scene.getChild(1)->setName("hand");
        scene.getChild(1)->setName("foot");
        m_finder->search(query("foot"));
        QTRY_VERIFY(m_finder->isComplete());
        QCOMPARE(found(), QByteArray("foot"));
        m_finder->end();
        scene.removeChild(1);
        m_finder->search(query("arm or foot"));
        QTRY_VERIFY(m_finder->isComplete());
        QCOMPARE(found(), QByteArray("arm 1 arm 2"));
    }

    void theFirstHitsAreKnownBeforeTheLast()
    {
        m_session->document().open(AppScenes::wide(30000), {});
        m_finder->search(query("t:Group"));
        while (m_finder->count() == 0)
            QCoreApplication::processEvents();
        QVERIFY(!m_finder->isComplete());
        // Another key in between.
        m_finder->search(query("t:Material"));
        QCOMPARE(m_finder->count(), std::size_t{0});
        QTRY_VERIFY(m_finder->isComplete());
        QCOMPARE(m_finder->count(), std::size_t{0});
    }

    void changedNamesAndValuesAreFollowed()
    {
        NxGroup& scene = open(robot);
        m_finder->search(query("arm or f:shininess >0.9"));
        QTRY_VERIFY(m_finder->isComplete());
        QCOMPARE(found(), QByteArray("arm 1 arm 2 arm 3"));
        scene.getChild(1)->setName("foot");
        QTRY_COMPARE(found(), QByteArray("arm 1 arm 2"));
        auto& leg = dynamic_cast<NxMaterial&>(*scene.getChild(0)->getChildren()[0]->getChildren()[1]);
        leg.shininess.setValue(1);
        QTRY_COMPARE(found(), QByteArray("arm 1 leg arm 2"));
        // In the same step, the second write isn't reported.
        leg.shininess.setValue(0.5F);
        QTRY_COMPARE(found(), QByteArray("arm 1 arm 2"));
        leg.shininess.setValue(1);
        QTRY_COMPARE(found(), QByteArray("arm 1 leg arm 2"));
        QTRY_VERIFY(m_finder->isComplete());
    }

    void nodesThatComeAndGoAreFollowed()
    {
        NxGroup& scene = open(robot);
        m_finder->search(query("arm"));
        QTRY_VERIFY(m_finder->isComplete());
        scene.insertChild(material("arm 0"), 0);
        QVERIFY(!m_finder->isComplete());
        QCOMPARE(m_finder->count(), std::size_t{3}); // those before are shown until the search is done
        QTRY_VERIFY(m_finder->isComplete());
        QCOMPARE(found(), QByteArray("arm 0 arm 1 arm 2 arm 3"));
        scene.removeChild(1);
        QTRY_VERIFY(m_finder->isComplete());
        QCOMPARE(found(), QByteArray("arm 0 arm 3"));
        scene.removeAllChildren();
        m_finder->search(query("arm")); // while the hits aren't those of the scene
        QTRY_VERIFY(m_finder->isComplete());
        QCOMPARE(m_finder->count(), std::size_t{0});
    }

    void changesDuringASearchAreFollowed()
    {
        m_session->document().open(AppScenes::wide(20000), {});
        auto& group = dynamic_cast<NxGroup&>(*m_session->document().scene()->getChild(0));
        m_finder->search(query("arm or leg"));
        QVERIFY(!m_finder->isComplete());
        for (int i = 0; i < 5; ++i) {
            group.getChild(100 * i)->setName("arm");
            QCoreApplication::processEvents();
            group.addChild(material("leg"));
            QCoreApplication::processEvents();
            group.removeChild(7);
            QCoreApplication::processEvents();
        }
        QTRY_VERIFY(m_finder->isComplete());
        QCOMPARE(m_finder->count(), std::size_t{10});
    }

    void undoAndRedoAreFollowed()
    {
        NxGroup& scene = open(robot);
        m_finder->search(query("arm"));
        QTRY_VERIFY(m_finder->isComplete());
        OrvServices& services = m_session->services();
        services.beginEdit();
        scene.removeChild(1);
        scene.getChild(0)->getChildren()[0]->setName("arms");
        services.endEdit();
        QTRY_VERIFY(m_finder->isComplete() && found() == "arms arm 1 arm 2");
        services.undo();
        QTRY_VERIFY(m_finder->isComplete() && found() == "arm 1 arm 2 arm 3");
        services.redo();
        QTRY_VERIFY(m_finder->isComplete() && found() == "arms arm 1 arm 2");
    }

    void aSceneThatIsClosedIsForgotten()
    {
        open(robot);
        m_finder->search(query("arm"));
        QTRY_VERIFY(m_finder->count() > 0);
        m_session->document().close();
        QCOMPARE(m_finder->count(), std::size_t{0});
        m_finder->search(query("arm")); // without a scene
        QVERIFY(m_finder->isComplete());
        open(robot);
        m_finder->search(query("leg"));
        QTRY_COMPARE(found(), QByteArray("leg"));
    }

    void factsAreUsedWhenTheyCome()
    {
        NxGroup& scene = open(robot);
        m_finder->search(query("unused"));
        QTRY_VERIFY(m_finder->isComplete());
        QCOMPARE(m_finder->count(), std::size_t{0});
        const auto facts = std::make_shared<meridane::QueryFacts>();
        NxSceneProblem problem;
        problem.kind = NxProblemKind::UnusedMaterial;
        problem.node = scene.getChild(1);
        facts->add(problem);
        m_finder->setFacts(facts);
        QTRY_COMPARE(found(), QByteArray("arm 3"));
        // A query that needs none.
        m_finder->search(query("leg"));
        QVERIFY(m_finder->facts() == nullptr);
        QTRY_COMPARE(found(), QByteArray("leg"));
    }
};

QTEST_GUILESS_MAIN(TestNodeFinder)
#include "tst_NodeFinder.moc"

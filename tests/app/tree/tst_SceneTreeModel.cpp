#include "app/AppScenes.h"

#include "orvane/app/tree/SceneTreeModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

namespace {

constexpr int million = 1'000'000;

QString nameOf(const QModelIndex& index)
{
    return index.data().toString();
}

} // namespace

class TestSceneTreeModel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_scene = AppScenes::robot();
        QVERIFY(m_scene);
        m_model = std::make_unique<SceneTreeModel>();
        m_model->setScene(m_scene.get());
        m_robot = m_model->index(0, 0);
        m_group = dynamic_cast<NxGroup*>(m_scene->getChild(0));
    }

    void cleanup()
    {
        m_model.reset();
        m_scene = NxRef<NxGroup>();
        AppScenes::runSensors();
    }

    void showsNamesAndClasses()
    {
        QCOMPARE(m_model->rowCount(), 2);
        QCOMPARE(nameOf(m_robot), QStringLiteral("robot"));
        QCOMPARE(nameOf(m_model->index(0, 1)), QStringLiteral("Group"));
        QCOMPARE(nameOf(m_model->index(1, 1)), QStringLiteral("PointLight"));
    }

    void showsTheClassOfANodeWithoutName()
    {
        m_model->fetchMore(m_robot);
        const QModelIndex unnamed = m_model->index(2, 0, m_robot);
        QCOMPARE(nameOf(unnamed), QStringLiteral("Mesh"));
        QCOMPARE(unnamed.data(Qt::EditRole).toString(), QString());
        QVERIFY(unnamed.data(Qt::FontRole).value<QFont>().italic());
    }

    void makesRowsWhenTheyAreFetched()
    {
        QVERIFY(m_model->hasChildren(m_robot));
        QVERIFY(m_model->canFetchMore(m_robot));
        QCOMPARE(m_model->rowCount(m_robot), 0);
        m_model->fetchMore(m_robot);
        QCOMPARE(m_model->rowCount(m_robot), 3);
        QVERIFY(!m_model->canFetchMore(m_robot));
        QVERIFY(!m_model->hasChildren(m_model->index(1, 0)));
    }

    void obeysTheRulesOfModelsThroughChanges()
    {
        const QAbstractItemModelTester tester(m_model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        m_model->fetchMore(m_robot);
        m_group->removeChild(1);
        AppScenes::runSensors();
        m_group->insertChild(new NxGroup, 0);
        m_scene->addChild(new NxGroup);
        AppScenes::runSensors();
        m_group->removeAllChildren();
        AppScenes::runSensors();
        m_scene->insertChild(new NxGroup, 0);
        AppScenes::runSensors();
        QCOMPARE(m_model->rowCount(), 4);
        m_model->setScene(nullptr);
        QCOMPARE(m_model->rowCount(), 0);
    }

    void keepsPersistentIndexesOfNodesThatStay()
    {
        m_model->fetchMore(m_robot);
        const QPersistentModelIndex hand = m_model->index(1, 0, m_robot);
        m_scene->insertChild(new NxGroup, 0);
        m_group->removeChild(0);
        AppScenes::runSensors();
        QCOMPARE(hand.row(), 0);
        QCOMPARE(hand.parent().row(), 1);
        QCOMPARE(nameOf(hand), QStringLiteral("hand"));
    }

    void followsTheNameOfANodeThatIsShown()
    {
        QCOMPARE(nameOf(m_robot), QStringLiteral("robot"));
        const QSignalSpy changed(m_model.get(), &QAbstractItemModel::dataChanged);
        m_group->setName("machine");
        AppScenes::runSensors();
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.front().front().toModelIndex(), m_robot);
        QCOMPARE(nameOf(m_robot), QStringLiteral("machine"));
    }

    void followsTheFirstChildOfANodeThatIsShown()
    {
        m_scene->addChild(new NxGroup);
        AppScenes::runSensors();
        const QModelIndex empty = m_model->index(2, 0);
        QCOMPARE(nameOf(empty), QStringLiteral("Group"));
        QVERIFY(!m_model->hasChildren(empty));
        const QSignalSpy inserted(m_model.get(), &QAbstractItemModel::rowsInserted);
        dynamic_cast<NxGroup*>(m_scene->getChild(2))->addChild(new NxGroup);
        AppScenes::runSensors();
        QCOMPARE(inserted.size(), 1);
        QCOMPARE(m_model->rowCount(empty), 1);
    }

    void showsANodeInEachOfItsPlaces()
    {
        NxNode* arm = m_group->getChild(0);
        m_scene->addChild(arm);
        AppScenes::runSensors();
        m_model->fetchMore(m_robot);
        const QModelIndex inside = m_model->index(0, 0, m_robot);
        const QModelIndex outside = m_model->index(2, 0);
        QCOMPARE(m_model->node(inside), arm);
        QCOMPARE(m_model->node(outside), arm);
        QCOMPARE(nameOf(inside), nameOf(outside));
        const QSignalSpy changed(m_model.get(), &QAbstractItemModel::dataChanged);
        arm->setName("leg");
        AppScenes::runSensors();
        QCOMPARE(changed.size(), 2);
    }

    void asksForANewName()
    {
        const QSignalSpy asked(m_model.get(), &SceneTreeModel::renameRequested);
        QVERIFY(m_model->setData(m_robot, QStringLiteral("robot")));
        QCOMPARE(asked.size(), 0);
        QVERIFY(m_model->setData(m_robot, QStringLiteral("machine")));
        QCOMPARE(asked.size(), 1);
        QCOMPARE(nameOf(m_robot), QStringLiteral("robot"));
        QVERIFY(!m_model->setData(m_model->index(0, 1), QStringLiteral("Mesh")));
    }

    void findsANodeAnywhereInTheScene()
    {
        NxNode* hand = m_group->getChild(1);
        const QModelIndex found = m_model->findNode(hand);
        QCOMPARE(m_model->node(found), hand);
        QCOMPARE(m_model->path(found), (std::vector<NxNode*>{m_group, hand}));
        QCOMPARE(m_model->group(found), m_group);
        const NxRef<NxGroup> stranger(new NxGroup);
        QVERIFY(!m_model->findNode(stranger.get()).isValid());
        QVERIFY(!m_model->findNode(nullptr).isValid());
    }

    void findsANodeBeforeTheSensorsRun()
    {
        const NxRef<NxGroup> machine(new NxGroup);
        const NxRef<NxGroup> wheel(new NxGroup);
        machine->addChild(wheel.get());
        m_group->addChild(machine.get());
        const std::vector<NxNode*> path{m_group, machine.get(), wheel.get()};
        const QModelIndex found = m_model->indexOfPath(path);
        QCOMPARE(m_model->path(found), path);
        const QSignalSpy inserted(m_model.get(), &QAbstractItemModel::rowsInserted);
        AppScenes::runSensors();
        QCOMPARE(inserted.size(), 0);
        QCOMPARE(m_model->node(found), wheel.get());
    }

    void searchesASharedNodeOnce()
    {
        // Each level holds the next one twice, so there are 2^60 ways down.
        NxRef<NxGroup> level(new NxGroup);
        for (int i = 0; i < 60; ++i) {
            NxRef<NxGroup> above(new NxGroup);
            above->addChild(level.get());
            above->addChild(level.get());
            level = above;
        }
        m_model->setScene(level.get());
        const NxRef<NxGroup> stranger(new NxGroup);
        QVERIFY(!m_model->findNode(stranger.get()).isValid());
        m_model->setScene(nullptr);
    }

    void holdsAMillionNodes()
    {
        const NxRef<NxGroup> scene = AppScenes::wide(million);
        m_model->setScene(scene.get());
        const QModelIndex group = m_model->index(0, 0);
        m_model->fetchMore(group);
        QCOMPARE(m_model->rowCount(group), million);
        const QModelIndex last = m_model->index(million - 1, 0, group);
        QCOMPARE(last.parent(), group);
        QCOMPARE(nameOf(last), QStringLiteral("Group"));
        m_model->node(last)->setName("last");
        AppScenes::runSensors();
        QCOMPARE(nameOf(last), QStringLiteral("last"));
        dynamic_cast<NxGroup*>(scene->getChild(0))->removeChild(million / 2);
        AppScenes::runSensors();
        QCOMPARE(m_model->rowCount(group), million - 1);
        m_model->setScene(nullptr);
    }

private:
    NxRef<NxGroup> m_scene;
    NxGroup* m_group = nullptr;
    std::unique_ptr<SceneTreeModel> m_model;
    QModelIndex m_robot;
};

QTEST_MAIN(TestSceneTreeModel)
#include "tst_SceneTreeModel.moc"

#include "app/AppScenes.h"
#include "app/StepClock.h"

#include "orvane/app/scene/NodeCommands.h"
#include "orvane/app/scene/SceneDisposal.h"
#include "orvane/app/scene/SceneDocument.h"
#include "orvane/app/scene/UpdateSceneCommand.h"
#include "orvane/extender/OrvServices.h"

#include "meridane/scene/edit/ChildrenPlan.h"
#include "meridane/scene/fields/NxField.h"

#include <QSignalSpy>
#include <QTest>

class TestSceneDocument : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_disposal = std::make_unique<SceneDisposal>(&StepClock::now);
        m_services = std::make_unique<OrvServices>();
        m_document = std::make_unique<SceneDocument>(*m_services, *m_disposal);
    }

    void cleanup()
    {
        m_document.reset();
        m_services.reset();
        m_disposal.reset();
    }

    void startsClosed()
    {
        QVERIFY(!m_document->isOpen());
        QCOMPARE(m_document->scene(), nullptr);
        QVERIFY(!m_document->isModified());
    }

    void isModifiedFromTheFirstCommandToTheSave()
    {
        m_document->open(AppScenes::robot(), QStringLiteral("/x/robot.mrd"));
        QVERIFY(!m_document->isModified());
        const QSignalSpy modified(m_document.get(), &SceneDocument::modifiedChanged);
        rename("machine");
        QVERIFY(m_document->isModified());
        m_services->undo();
        QVERIFY(!m_document->isModified());
        m_services->redo();
        m_document->setSaved(QStringLiteral("/x/other.mrd"));
        QVERIFY(!m_document->isModified());
        QCOMPARE(m_document->fileName(), QStringLiteral("/x/other.mrd"));
        QCOMPARE(modified.size(), 4);
    }

    void pathsCountFromWhereTheSceneWasOpened()
    {
        m_document->open(AppScenes::robot(), QStringLiteral("/x/robot.mrd"));
        QCOMPARE(m_document->pathFolder(), QStringLiteral("/x"));
        m_document->setSaved(QStringLiteral("/y/robot.mrd"));
        QCOMPARE(m_document->pathFolder(), QStringLiteral("/x"));
        m_document->newScene();
        QCOMPARE(m_document->pathFolder(), QString());
        m_document->setSaved(QStringLiteral("/y/new.mrd"));
        QCOMPARE(m_document->pathFolder(), QStringLiteral("/y"));
    }

    void asksForAFileWhereTheSceneWasImported()
    {
        m_document->open(AppScenes::robot(), QStringLiteral("/x/robot.glb"));
        QCOMPARE(m_document->displayName(), QStringLiteral("robot.glb"));
        QCOMPARE(m_document->saveFileName(), QString());
        m_document->newScene();
        QCOMPARE(m_document->saveFileName(), QString());
        QVERIFY(m_document->isOpen());
    }

    void letsGoInOrderWhenAnotherSceneIsOpened()
    {
        m_document->open(AppScenes::robot(), QStringLiteral("/x/robot.mrd"));
        NxNode* node = m_document->scene()->getChild(1);
        m_services->selectNode(node);
        m_services->selectField(node->getFields().front());
        rename("machine");
        QStringList steps;
        const QObject listener;
        connect(
            m_services.get(), &OrvServices::selectedFieldChanged, &listener, [&] { steps += QStringLiteral("field"); });
        connect(
            m_services.get(), &OrvServices::selectedNodeChanged, &listener, [&] { steps += QStringLiteral("node"); });
        connect(
            m_document.get(), &SceneDocument::sceneAboutToChange, &listener, [&] { steps += QStringLiteral("views"); });
        connect(m_services.get(), &OrvServices::historyChanged, &listener, [&] { steps += QStringLiteral("history"); });
        connect(m_document.get(), &SceneDocument::sceneChanged, &listener, [&] { steps += QStringLiteral("scene"); });
        m_document->newScene();
        QCOMPARE(steps.join(u' '), QStringLiteral("field node views history scene"));
        QVERIFY(!m_services->canUndo());
        QVERIFY(!m_document->isModified());
    }

    void takesALargeSceneApartInSlices()
    {
        constexpr int nodes = 1000;
        // Each slice takes 8 ms, and reads the clock once to begin with.
        constexpr int readingsPerSlice = 9;
        m_document->open(AppScenes::wide(nodes), QStringLiteral("/x/wide.mrd"));
        const TurnCounter counter;
        m_document->close();
        QVERIFY(m_disposal->isBusy());
        QTRY_VERIFY(!m_disposal->isBusy());
        QVERIFY2(counter.mostReadings() <= readingsPerSlice, qPrintable(QString::number(counter.mostReadings())));
        QVERIFY2(counter.turns() > nodes / readingsPerSlice, qPrintable(QString::number(counter.turns())));
    }

    void leavesNodesAloneThatOthersHold()
    {
        m_document->open(AppScenes::robot(), QStringLiteral("/x/robot.mrd"));
        const NxRef<NxNode> robot(m_document->scene()->getChild(0));
        m_document->close();
        m_disposal->finish();
        QCOMPARE(robot->getRefCount(), 1);
        QCOMPARE(robot->getChildren().size(), std::size_t{3});
    }

    void takesNodesAwayAndBack()
    {
        m_document->open(AppScenes::robot(), QStringLiteral("/x/robot.mrd"));
        NxGroup* scene = m_document->scene();
        const std::string before = NxSceneWriter::toText(scene);
        meridane::ChildrenPlan plan;
        plan.remove(*scene, std::vector{0});
        m_services->pushCommand(new UpdateSceneCommand(
            plan.changes(), UpdateSceneCommand::Undo::ByCommand, *m_disposal, std::make_shared<bool>(true)));
        QCOMPARE(scene->getNumChildren(), 1);
        m_services->pushCommand(new AddNodeCommand(scene, NxRef<NxNode>(new NxGroup), *m_disposal));
        QCOMPARE(scene->getNumChildren(), 2);
        const std::string after = NxSceneWriter::toText(scene);
        m_services->undo();
        m_services->undo();
        QCOMPARE(NxSceneWriter::toText(scene), before);
        m_services->redo();
        m_services->redo();
        QCOMPARE(NxSceneWriter::toText(scene), after);
    }

private:
    void rename(const char* name)
    {
        m_services->pushCommand(new RenameNodeCommand(m_document->scene()->getChild(0), name));
    }

    std::unique_ptr<SceneDisposal> m_disposal;
    std::unique_ptr<OrvServices> m_services;
    std::unique_ptr<SceneDocument> m_document;
};

QTEST_MAIN(TestSceneDocument)
#include "tst_SceneDocument.moc"

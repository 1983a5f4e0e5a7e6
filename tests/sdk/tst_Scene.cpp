#include "plugin/ToolHarness.h"
#include "sdk/Angle.h"

#include "orvane/extender/OrvDocument.h"

#include <QSignalSpy>

// What plug-ins learn of the open scene.
class TestScene : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void itAnnouncesWhatHappensToTheScene()
    {
        ToolHarness tool;
        const QSignalSpy opened(&orv::scene(), &orv::Scene::opened);
        const QSignalSpy closing(&orv::scene(), &orv::Scene::aboutToClose);
        const QSignalSpy closed(&orv::scene(), &orv::Scene::closed);
        QVERIFY(orv::scene().root() == nullptr);
        const NxRef<NxGroup> root(new NxGroup);
        tool.services.document().open(OrvDocument::makeJournal(*root));
        QCOMPARE(opened.count(), 1);
        QCOMPARE(orv::scene().root(), root.get());
        tool.services.document().close();
        QCOMPARE(closing.count(), 1);
        QCOMPARE(closed.count(), 1);
        QVERIFY(orv::scene().root() == nullptr);
    }

    void itIsMadeForEachTool()
    {
        for (int i = 0; i < 2; ++i) {
            const ToolHarness tool;
            QVERIFY(orv::scene().root() == nullptr);
        }
    }

    void anEditIsAnnounced()
    {
        ToolHarness tool;
        const NxRef<NxGroup> root(new NxGroup);
        const NxRef<Signpost> post(new Signpost);
        root->addChild(post.get());
        tool.services.document().open(OrvDocument::makeJournal(*root));
        QSignalSpy edited(&orv::scene(), &orv::Scene::edited);
        orv::edit(post->heading, {1});
        QTRY_VERIFY(edited.count() > 0);
        tool.services.document().close();
    }

    void parentsFollowTheStructure()
    {
        ToolHarness tool;
        const NxRef<NxGroup> root(new NxGroup);
        const NxRef<NxGroup> first(new NxGroup);
        const NxRef<NxGroup> second(new NxGroup);
        const NxRef<Signpost> post(new Signpost);
        QVERIFY(orv::scene().parents(*post).empty());
        root->addChild(first.get());
        root->addChild(second.get());
        first->addChild(post.get());
        second->addChild(post.get());
        second->addChild(post.get());
        tool.services.document().open(OrvDocument::makeJournal(*root));
        QCOMPARE(orv::scene().parents(*post), (std::vector<NxNode*>{first.get(), second.get()}));
        QCOMPARE(orv::scene().parents(*first), std::vector<NxNode*>{root.get()});
        QVERIFY(orv::scene().parents(*root).empty());
        first->removeChild(0);
        QCOMPARE(orv::scene().parents(*post), std::vector<NxNode*>{second.get()});
        tool.services.document().close();
        QVERIFY(orv::scene().parents(*post).empty());
    }

    void theSelectionIsGivenByClass()
    {
        ToolHarness tool;
        const NxRef<Signpost> post(new Signpost);
        QVERIFY(orv::selected<Signpost>() == nullptr);
        orv::select(*post);
        QCOMPARE(orv::selected<Signpost>(), post.get());
        QCOMPARE(orv::selected<NxTransform>(), post.get());
        QVERIFY(orv::selected<NxFieldGallery>() == nullptr);
        orv::select(post->heading);
        QCOMPARE(orv::selected<SFAngle>(), &post->heading);
        QVERIFY(orv::selected<NxSFFloat>() == nullptr);
        orv::select(tool.node->sfFloat);
        QCOMPARE(orv::selected<NxFieldGallery>(), tool.node.get());
        tool.services.select(nullptr, nullptr);
    }
};

QTEST_MAIN(TestScene)
#include "tst_Scene.moc"

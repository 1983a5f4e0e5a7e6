#include "scene/RandomScene.h"
#include "scene/TestNodes.h"
#include "scene/journal/JournalRun.h"
#include "scene/recovery/RecoveryRun.h"

#include "meridane/scene/nodes/NxFieldGallery.h"
#include "meridane/scene/nodes/NxTransform.h"
#include "meridane/scene/nodes/NxUnknownNode.h"

#include <QTest>

#include <bit>
#include <cstdint>
#include <limits>

using meridane::RecoveryDescription;
using Base = RecoveryDescription::Base;

namespace {

struct Scene {
    NxRef<NxGroup> root{new NxGroup};
    NxRef<NxTransform> arm{new NxTransform};
    NxRef<NxTransform> leg{new NxTransform};
    NxRef<ProbeNode> probe{new ProbeNode};
    NxRef<NxFieldGallery> gallery{new NxFieldGallery};

    Scene()
    {
        arm->setName("arm");
        arm->addChild(probe.get());
        leg->addChild(probe.get()); // in two places
        root->addChild(arm.get());
        root->addChild(leg.get());
        root->addChild(gallery.get());
    }
};

using Change = void (*)(Scene&, JournalRun&);

} // namespace
Q_DECLARE_METATYPE(Base)

/// What is captured of each kind of change: the file always gives the scene as it is.
class TestRecoveryCapture : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<Scene> m_scene;
    std::unique_ptr<JournalRun> m_journal;
    std::unique_ptr<RecoveryRun> m_run;

    void start(Base base)
    {
        m_scene = std::make_unique<Scene>();
        m_journal = std::make_unique<JournalRun>(*m_scene->root);
        m_run = std::make_unique<RecoveryRun>(m_journal->journal(), base);
    }
    void compare()
    {
        const std::string text = m_run->recoverText();
        QVERIFY2(text == m_journal->text(), text.substr(0, 400).c_str());
        const NxRef<NxGroup> recovered = m_run->recover();
        QCOMPARE(findDifference(*recovered, *m_scene->root), std::string());
    }
    void captureAndCompare()
    {
        m_run->runAll();
        compare();
    }

private Q_SLOTS:
    void cleanup()
    {
        m_run.reset();
        m_journal.reset();
        m_scene.reset();
    }

    void eachKindOfChange_data()
    {
        QTest::addColumn<Change>("change");
        const auto row = [](const char* name, Change change) { QTest::newRow(name) << change; };
        row("a value", [](Scene& scene, JournalRun&) { scene.probe->size.setValue(7); });
        row("a long text",
            [](Scene& scene, JournalRun&) { scene.probe->title.setValue(VbString(std::string(300'000, '"'))); });
        row("NaN, -0 and their like", [](Scene& scene, JournalRun&) {
            scene.probe->size.setValue(std::bit_cast<float>(std::uint32_t{0xFFC12345}));
            scene.gallery->sfDouble.setValue(-0.0);
            scene.gallery->mfFloat.setValues(
                std::vector<float>{-0.0F, std::bit_cast<float>(std::uint32_t{0x7F800001})});
        });
        row("a value back to its default", [](Scene& scene, JournalRun& journal) {
            scene.probe->size.setValue(7);
            journal.finish();
            scene.probe->size.setValue(1.5F);
        });
        row("a flag", [](Scene& scene, JournalRun&) { scene.probe->weights.setIgnored(1); });
        row("a name", [](Scene& scene, JournalRun&) { scene.leg->setName("leg \"1\"\n"); });
        row("no name", [](Scene& scene, JournalRun&) { scene.arm->setName(""); });
        row("a row", [](Scene& scene, JournalRun&) { scene.probe->weights.set1Value(1, 9); });
        row("inserted rows", [](Scene& scene, JournalRun&) { scene.probe->weights.insertSpace(1, 3); });
        row("deleted rows", [](Scene& scene, JournalRun&) { scene.probe->weights.deleteValues(0, 2); });
        row("no rows", [](Scene& scene, JournalRun&) { scene.probe->weights.deleteValues(0, -1); });
        row("a list",
            [](Scene& scene, JournalRun&) { scene.probe->weights.setValues(std::vector<float>(100'000, 4)); });
        row("a list of texts", [](Scene& scene, JournalRun&) {
            scene.gallery->mfString.setValues(std::vector<VbString>(2000, VbString("a \"b\", c")));
            scene.gallery->mfString.insertSpace(5, 2);
            scene.gallery->mfString.deleteValues(1, 2);
        });
        row("an image", [](Scene& scene, JournalRun&) {
            // Two whole pieces, so that the last one isn't recognised by its length.
            scene.gallery->sfImage.setValue(VbVec2s(256, 128), 4, std::vector<unsigned char>(std::size_t{1} << 17U, 5));
        });
        row("no image", [](Scene& scene, JournalRun& journal) {
            scene.gallery->sfImage.setValue(VbVec2s(2, 1), 1, std::vector<unsigned char>{1, 2});
            journal.finish();
            static_cast<void>(scene.gallery->sfImage.takeBytes());
        });
        row("a new node", [](Scene& scene, JournalRun&) { scene.arm->addChild(new ProbeNode); });
        row("a new tree", [](Scene& scene, JournalRun&) {
            const NxRef<NxTransform> hand(new NxTransform);
            const NxRef<ProbeNode> finger(new ProbeNode);
            finger->size.setValue(3);
            finger->setName("finger");
            finger->title.setIgnored(1);
            hand->addChild(finger.get());
            hand->addChild(finger.get());
            hand->addChild(scene.gallery.get());
            scene.arm->insertChild(hand.get(), 0);
        });
        row("an unknown node", [](Scene& scene, JournalRun&) {
            const NxRef<NxUnknownNode> widget(new NxUnknownNode);
            widget->setClassName("Widget");
            widget->addUnknownField({"alpha", "[1, 2, # ]\n \"}\"]", true});
            widget->addUnknownField({"beta", std::string(200'000, 'x'), false});
            widget->addChild(new ProbeNode);
            scene.root->insertChild(widget.get(), 1);
        });
        row("an unknown field", [](Scene& scene, JournalRun&) {
            const NxRef<ProbeNode> node(new ProbeNode);
            node->addUnknownField({"alpha", "1", false});
            scene.root->addChild(node.get());
        });
        row("a removed node", [](Scene& scene, JournalRun&) { scene.root->removeChild(0); });
        row("no children", [](Scene& scene, JournalRun&) { scene.root->removeAllChildren(); });
        row("a moved node", [](Scene& scene, JournalRun&) {
            scene.root->removeChild(1);
            scene.arm->insertChild(scene.leg.get(), 1);
        });
        row("parents change places", [](Scene& scene, JournalRun&) {
            scene.root->removeChild(1);
            scene.arm->addChild(scene.leg.get());
            scene.arm->removeChild(1);
            scene.root->removeChild(0);
            scene.leg->addChild(scene.arm.get());
            scene.root->addChild(scene.leg.get());
        });
        row("undo and redo", [](Scene& scene, JournalRun& journal) {
            scene.probe->weights.insertSpace(1, 3);
            scene.probe->weights.set1Value(2, 8);
            scene.root->removeChild(1);
            scene.arm->setName("other");
            auto* const step = journal.finish();
            step->undo();
            step->redo();
            step->undo();
        });
        row("a step that is reverted", [](Scene& scene, JournalRun& journal) {
            scene.probe->weights.setValues(std::vector<float>{1});
            scene.root->addChild(new ProbeNode);
            journal.journal().revertStep();
        });
        row("a removed node changes", [](Scene& scene, JournalRun& journal) {
            scene.root->removeChild(0);
            auto* const removal = journal.finish();
            scene.arm->setName("removed");
            auto* const renaming = journal.finish();
            renaming->undo();
            renaming->redo();
            removal->undo();
        });
    }

    void eachKindOfChange()
    {
        QFETCH(Change, change);
        for (const Base base : {Base::File, Base::Nothing}) {
            // In one capture, and with a capture after the start, within the step, and after it.
            for (const bool isWatched : {false, true}) {
                start(base);
                if (isWatched)
                    m_run->runAll();
                change(*m_scene, *m_journal);
                captureAndCompare();
                m_journal->finish();
                m_scene->probe->size.setValue(99);
                captureAndCompare();
                cleanup();
            }
        }
    }
};

QTEST_APPLESS_MAIN(TestRecoveryCapture)
#include "tst_RecoveryCapture.moc"

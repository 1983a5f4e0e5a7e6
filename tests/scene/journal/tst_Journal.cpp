#include "scene/FieldCatalogue.h"
#include "scene/NotificationCount.h"
#include "scene/TestNodes.h"
#include "scene/journal/JournalRun.h"

#include "meridane/scene/nodes/NxFieldGallery.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <QTest>

using meridane::ChangeRecord;
using meridane::Journal;

using Write = void (*)(ProbeNode&);

/// What is recorded, and when.
class TestJournal : public QObject {
    Q_OBJECT

private:
    NxRef<NxGroup> m_scene;
    NxRef<ProbeNode> m_probe;
    std::unique_ptr<JournalRun> m_run;

    void start()
    {
        m_scene = new NxGroup;
        m_probe = new ProbeNode;
        m_scene->addChild(m_probe.get());
        m_run = std::make_unique<JournalRun>(*m_scene);
    }

    [[nodiscard]] std::size_t openRecords()
    {
        const auto* step = m_run->finish();
        return step != nullptr ? step->records().size() : 0;
    }

private Q_SLOTS:
    void init() { start(); }
    void cleanup() { m_run.reset(); }

    void nodesAreNumberedInTheOrderOfAFile()
    {
        const NxRef<NxGroup> scene(new NxGroup);
        const NxRef<NxGroup> group(new NxGroup);
        const NxRef<ProbeNode> shared(new ProbeNode);
        const NxRef<ProbeNode> last(new ProbeNode);
        group->addChild(shared.get());
        scene->addChild(group.get());
        scene->addChild(shared.get());
        scene->addChild(last.get());
        Journal journal(*scene);
        while (journal.run(std::chrono::seconds(0))) { }
        QCOMPARE(journal.nodeCount(), std::size_t{4});
        QCOMPARE(journal.node(0), scene.get());
        QCOMPARE(journal.node(1), group.get());
        QCOMPARE(journal.node(2), shared.get());
        QCOMPARE(journal.number(*last), std::size_t{3});
        QVERIFY(!journal.number(*m_probe));
        QCOMPARE(journal.node(4), nullptr);
    }

    void aSlowNumberingRunsInSlices()
    {
        const NxRef<NxGroup> scene(new NxGroup);
        for (int i = 0; i < 10'000; ++i)
            scene->addChild(new ProbeNode);
        Journal journal(*scene);
        int slices = 1;
        while (journal.run(std::chrono::seconds(0)))
            ++slices;
        QVERIFY(slices > 10);
        QCOMPARE(journal.nodeCount(), std::size_t{10'001});
    }

    void writesToOtherNodesAreNotRecorded()
    {
        const NxRef<ProbeNode> other(new ProbeNode);
        other->size.setValue(3);
        other->weights.deleteValues(0, 1);
        other->setName("other");
        NxSFFloat lone(nullptr, "lone");
        lone.setValue(4);
        QVERIFY(!m_run->journal().hasRecords());
    }

    void withoutAJournalNothingIsRecorded()
    {
        m_run.reset();
        QVERIFY(meridane::ChangeRecorder::attached() == nullptr);
        m_probe->size.setValue(3);
        QCOMPARE(m_probe->size.getValue(), 3.0F);
    }

    void manyWritesOfOneStepAreOneRecord()
    {
        for (int i = 0; i < 100'000; ++i) {
            m_probe->size.setValue(static_cast<float>(i));
            m_probe->weights.set1Value(1, static_cast<float>(i));
            m_probe->title.setIgnored(i % 2);
        }
        QVERIFY(m_run->journal().bytes() < 1024);
        auto* step = m_run->finish();
        QCOMPARE(step->records().size(), std::size_t{3});
        step->undo();
        QCOMPARE(m_probe->size.getValue(), 1.5F);
        QCOMPARE(m_probe->weights[1], 2.0F);
        QVERIFY(!m_probe->title.isIgnored());
        step->redo();
        QVERIFY(m_probe->title.isIgnored());
        QCOMPARE(m_probe->size.getValue(), 99'999.0F);
        QCOMPARE(m_probe->weights[1], 99'999.0F);
    }

    void eachStepHasItsOwnRecord()
    {
        m_probe->size.setValue(2);
        auto* const first = m_run->finish();
        m_probe->size.setValue(3);
        auto* const second = m_run->finish();
        second->undo();
        QCOMPARE(m_probe->size.getValue(), 2.0F);
        first->undo();
        QCOMPARE(m_probe->size.getValue(), 1.5F);
    }

    void writesThatCancelOutAreNoStep_data()
    {
        QTest::addColumn<Write>("write");
        const auto row = [](const char* name, Write write) { QTest::newRow(name) << write; };
        row("the same value", [](ProbeNode& node) { node.size.setValue(1.5F); });
        row("a value and back", [](ProbeNode& node) {
            node.size.setValue(2);
            node.size.setValue(1.5F);
        });
        row("a row and back", [](ProbeNode& node) {
            node.weights.set1Value(0, 7);
            node.weights.set1Value(0, 1);
        });
        row("an insertion and a deletion", [](ProbeNode& node) {
            node.weights.insertSpace(1, 5);
            node.weights.set1Value(3, 9);
            node.weights.deleteValues(1, 5);
        });
        row("a deletion and the same rows again", [](ProbeNode& node) {
            node.weights.deleteValues(1, 2);
            node.weights.insertSpace(1, 2);
            node.weights.set1Value(1, 2);
            node.weights.set1Value(2, 3);
        });
        row("a row, then the whole list", [](ProbeNode& node) {
            node.weights.set1Value(2, 9);
            node.weights.setValues(std::vector<float>{});
            node.weights.setValues(std::vector<float>{1, 2, 3});
        });
        row("the flag twice", [](ProbeNode& node) {
            node.size.setIgnored(1);
            node.size.setIgnored(0);
        });
        row("a name and back", [](ProbeNode& node) {
            node.setName("a");
            node.setName("");
        });
    }

    void writesThatCancelOutAreNoStep()
    {
        QFETCH(Write, write);
        write(*m_probe);
        QVERIFY(m_run->journal().hasRecords());
        QVERIFY(!m_run->journal().hasChanges());
        QVERIFY(m_run->finish() == nullptr);
        QVERIFY(!m_run->journal().hasRecords());
        // The marks of the step are gone, so that the next write is recorded.
        m_probe->size.setValue(8);
        m_probe->weights.set1Value(0, 8);
        QCOMPARE(openRecords(), std::size_t{2});
    }

    void childrenThatComeAndGoAreNoStep()
    {
        const NxRef<ProbeNode> child(new ProbeNode);
        m_scene->addChild(child.get());
        m_scene->removeChild(1);
        QVERIFY(!m_run->journal().hasChanges());
        m_scene->removeChild(0);
        m_scene->addChild(child.get());
        QVERIFY(m_run->journal().hasChanges());
        QVERIFY(m_run->finish() != nullptr);
    }

    void aWriteThatFailsIsNotRecorded()
    {
        QVERIFY(!m_probe->size.set("no number"));
        QVERIFY(!m_probe->weights.set1Value(7, 1));
        QVERIFY(!m_probe->weights.set1(0, "no number"));
        NxMField::setMaximumNum(3);
        m_probe->weights.insertSpace(0, 1);
        NxMField::setMaximumNum(std::numeric_limits<int>::max());
        QCOMPARE(m_probe->weights.getNum(), 3);
        QVERIFY(!m_run->journal().hasRecords());
    }

    void aNodeThatIsAddedIsFollowedWithAllBelowIt()
    {
        const NxRef<NxGroup> group(new NxGroup);
        const NxRef<ProbeNode> below(new ProbeNode);
        group->addChild(below.get());
        below->size.setValue(2);
        QVERIFY(!m_run->journal().hasRecords());
        m_scene->addChild(group.get());
        QCOMPARE(m_run->finish()->records().size(), std::size_t{1});
        below->size.setValue(3);
        QCOMPARE(m_run->finish()->records().size(), std::size_t{1});
        QCOMPARE(m_run->journal().number(*group), std::size_t{2});
        QCOMPARE(m_run->journal().number(*below), std::size_t{3});
    }

    void anAdoptedTreeIsFollowed()
    {
        // Two trees whose nodes have the same numbers in their own journals.
        std::vector<NxRef<NxGroup>> trees;
        for (int i = 0; i < 2; ++i) {
            const NxRef<NxGroup>& tree = trees.emplace_back(new NxGroup);
            tree->addChild(new ProbeNode);
            tree->addChild(new ProbeNode);
            Journal journal(*tree);
            while (journal.run(std::chrono::seconds(0))) { }
            m_run->journal().adopt(journal);
            m_scene->addChild(tree.get());
        }
        QCOMPARE(m_run->finish()->records().size(), std::size_t{2});
        QCOMPARE(m_run->journal().nodeCount(), std::size_t{8});
        std::vector<NxNode*> nodes{m_scene.get(), m_probe.get()};
        for (const NxRef<NxGroup>& tree : trees)
            nodes.insert(nodes.end(), {tree.get(), tree->getChild(0), tree->getChild(1)});
        for (std::size_t number = 0; number < nodes.size(); ++number) {
            QCOMPARE(m_run->journal().node(number), nodes[number]);
            QCOMPARE(m_run->journal().number(*nodes[number]), number);
            nodes[number]->setName("a");
        }
        QCOMPARE(m_run->finish()->records().size(), std::size_t{8});
        m_scene->addChild(new ProbeNode);
        QCOMPARE(m_run->journal().number(*m_scene->getChild(3)), std::size_t{8});
        m_scene->removeChild(2);
        m_run->finish();
        m_run->steps().clear();
        trees.clear();
        QVERIFY(m_run->journal().node(5) == nullptr);
        QVERIFY(m_run->journal().node(6) == nullptr);
        QVERIFY(m_run->journal().node(4) != nullptr);
    }

    void aRemovedNodeIsKeptAlive()
    {
        m_probe->title.setValue("kept");
        m_run->finish();
        m_scene->removeChild(0);
        auto* const removal = m_run->finish();
        m_probe = nullptr;
        removal->undo();
        m_run->steps().front()->undo();
        QCOMPARE(m_scene->getNumChildren(), 1);
        QCOMPARE(static_cast<ProbeNode*>(m_scene->getChild(0))->title.getValue(), VbString("untitled"));
    }

    void aNodeThatDiesLosesItsNumber()
    {
        m_scene->removeChild(0);
        m_run->finish();
        m_run->steps().clear();
        QCOMPARE(m_run->journal().node(1), m_probe.get());
        m_probe = nullptr;
        QVERIFY(m_run->journal().node(1) == nullptr);
    }

    void aJournalThatIsGoneLeavesTheSceneAlone()
    {
        m_probe->size.setValue(2);
        m_run.reset();
        m_probe->size.setValue(3);
        const auto steps = std::make_unique<JournalRun>(*m_scene);
        m_probe->size.setValue(4);
        auto* const step = steps->finish();
        step->undo();
        QCOMPARE(m_probe->size.getValue(), 3.0F);
    }

    void observersAreNotifiedOncePerPlace()
    {
        NotificationCount sizes(m_probe->size);
        NotificationCount weights(m_probe->weights);
        m_probe->size.setValue(2);
        m_probe->weights.insertSpace(0, 2);
        m_probe->weights.set1Value(4, 2);
        auto* const step = m_run->finish();
        sizes.take();
        weights.take();
        step->undo();
        QCOMPARE(sizes.take(), 1);
        QCOMPARE(weights.take(), 1);
        step->redo();
        QCOMPARE(sizes.take(), 1);
        QCOMPARE(weights.take(), 1);
    }

    void revertingAStepPutsEverythingBack()
    {
        const std::string before = m_run->text();
        m_probe->size.setValue(2);
        m_probe->weights.deleteValues(0, 2);
        m_probe->setName("probe");
        m_scene->addChild(new ProbeNode);
        m_run->journal().revertStep();
        QCOMPARE(m_run->text(), before);
        QVERIFY(!m_run->journal().hasRecords());
    }

    void aReplacedListIsMovedIntoItsRecord()
    {
        m_probe->weights.setValues(std::vector<float>(1000, 1));
        m_run->finish();
        const float* const values = m_probe->weights.getValues().data();
        m_probe->weights.setValues(std::vector<float>(10, 2));
        auto* const step = m_run->finish();
        step->undo();
        QCOMPARE(m_probe->weights.getValues().data(), values);
    }

    void bigListsAreRecordedByTheirRows()
    {
        m_probe->weights.setValues(std::vector<float>(1'000'000, 1));
        m_run->finish();
        m_probe->weights.set1Value(500'000, 2);
        m_probe->weights.insertSpace(10, 1);
        m_probe->weights.deleteValues(20, 2);
        QVERIFY(m_run->journal().bytes() < 1000);
    }
};

QTEST_APPLESS_MAIN(TestJournal)
#include "tst_Journal.moc"

#include "scene/TestNodes.h"
#include "scene/journal/JournalRun.h"

#include <QTest>

using meridane::ChangeRecord;
using meridane::Journal;
using meridane::PlaceChange;
using Kind = ChangeRecord::Kind;

namespace {

/// Keeps what it is informed of.
class Recorder final : public meridane::JournalListener {
public:
    void aboutToChange(const PlaceChange& change) noexcept override { changes.push_back(change); }
    void aboutToDestroy(std::size_t number) noexcept override { destroyed.push_back(number); }

    std::vector<PlaceChange> changes;
    std::vector<std::size_t> destroyed;
};

} // namespace

/// What listeners of a journal are informed of.
class TestJournalListener : public QObject {
    Q_OBJECT

private:
    NxRef<NxGroup> m_scene;
    NxRef<ProbeNode> m_probe;
    std::unique_ptr<JournalRun> m_run;
    std::unique_ptr<Recorder> m_recorder;

    std::vector<PlaceChange> take() { return std::exchange(m_recorder->changes, {}); }
    [[nodiscard]] std::size_t takeCount() { return take().size(); }

    static bool isRows(const PlaceChange& change, std::size_t start, std::size_t removed, std::size_t inserted)
    {
        return change.start == start && change.removed == removed && change.inserted == inserted;
    }

private Q_SLOTS:
    void init()
    {
        m_scene = new NxGroup;
        m_probe = new ProbeNode;
        m_scene->addChild(m_probe.get());
        m_run = std::make_unique<JournalRun>(*m_scene);
        m_recorder = std::make_unique<Recorder>();
        m_run->journal().addListener(*m_recorder);
    }
    void cleanup()
    {
        m_run.reset();
        m_recorder.reset();
    }

    void eachPlaceIsReportedOnceInAStep()
    {
        for (int i = 0; i < 3; ++i) {
            m_probe->size.setValue(static_cast<float>(i));
            m_probe->size.setIgnored(i % 2);
            m_probe->setName("a");
            m_probe->weights.set1Value(1, static_cast<float>(i));
        }
        const std::vector<PlaceChange> changes = take();
        QCOMPARE(changes.size(), std::size_t{4});
        QCOMPARE(changes[0].kind, Kind::Value);
        QCOMPARE(changes[0].field, &m_probe->size);
        QCOMPARE(changes[0].cause, PlaceChange::Cause::Write);
        QCOMPARE(changes[1].kind, Kind::Name);
        QCOMPARE(changes[1].node, m_probe.get());
        QCOMPARE(changes[2].kind, Kind::Rows);
        QVERIFY(isRows(changes[2], 1, 1, 1));
        QCOMPARE(changes[3].kind, Kind::Ignored);
        m_run->finish();
        m_probe->size.setValue(9);
        QCOMPARE(takeCount(), std::size_t{1});
    }

    void rowsAndChildrenAreReportedWithTheirNumbers()
    {
        m_probe->weights.insertSpace(1, 4);
        m_probe->weights.deleteValues(5, 2);
        m_scene->addChild(new ProbeNode);
        m_scene->removeAllChildren();
        m_probe->weights.setValues(std::vector<float>(9));
        const std::vector<PlaceChange> changes = take();
        QCOMPARE(changes.size(), std::size_t{5});
        QVERIFY(isRows(changes[0], 1, 0, 4));
        QVERIFY(isRows(changes[1], 5, 2, 0));
        QCOMPARE(changes[2].kind, Kind::Children);
        QVERIFY(isRows(changes[2], 1, 0, 1));
        QVERIFY(isRows(changes[3], 0, 2, 0));
        QCOMPARE(changes[4].kind, Kind::Value);
        QCOMPARE(changes[4].removed, std::size_t{5});
    }

    void undoAndRedoAreReported()
    {
        m_probe->weights.insertSpace(1, 4);
        m_probe->title.setValue("a");
        m_probe->weights.setValues(std::vector<float>(9));
        auto* const step = m_run->finish();
        take();
        step->undo();
        std::vector<PlaceChange> changes = take();
        QCOMPARE(changes.size(), std::size_t{3});
        QCOMPARE(changes[0].kind, Kind::Value);
        QCOMPARE(changes[0].cause, PlaceChange::Cause::Exchange);
        QCOMPARE(changes[0].removed, std::size_t{9});
        QCOMPARE(changes[1].field, &m_probe->title);
        QVERIFY(isRows(changes[2], 1, 4, 0));
        step->redo();
        changes = take();
        QCOMPARE(changes.size(), std::size_t{3});
        QVERIFY(isRows(changes[0], 1, 0, 4));
        QCOMPARE(changes[2].removed, std::size_t{7});
    }

    void aStepThatIsRevertedIsReported()
    {
        m_probe->size.setValue(2);
        take();
        m_run->journal().revertStep();
        const std::vector<PlaceChange> changes = take();
        QCOMPARE(changes.size(), std::size_t{1});
        QCOMPARE(changes.front().cause, PlaceChange::Cause::Exchange);
    }

    void judgingAStepIsNotReported()
    {
        m_probe->weights.insertSpace(1, 4);
        m_probe->weights.deleteValues(1, 4);
        m_scene->addChild(new ProbeNode);
        m_scene->removeChild(1);
        take();
        QVERIFY(!m_run->journal().hasChanges());
        QVERIFY(m_run->finish() == nullptr);
        QCOMPARE(takeCount(), std::size_t{0});
    }

    void aWriteThatFailsIsTakenBack()
    {
        m_run->journal().add(std::make_unique<Probe>(*m_probe));
        m_run->journal().withdraw();
        const std::vector<PlaceChange> changes = take();
        QCOMPARE(changes.size(), std::size_t{2});
        QVERIFY(isRows(changes[0], 1, 0, 7));
        QVERIFY(isRows(changes[1], 1, 7, 0));
    }

    void aPlaceIsReportedAgainWithoutASecondRecord()
    {
        const auto write = [this](float value) {
            m_probe->size.setValue(value);
            m_probe->size.setIgnored(value > 3 ? 1 : 0);
            m_probe->setName(VbString(std::to_string(value)));
            m_probe->weights.set1Value(1, value);
            m_probe->weights.set1Value(2, value);
        };
        write(4);
        QCOMPARE(takeCount(), std::size_t{5});
        const std::size_t bytes = m_run->journal().bytes();
        for (float value : {3.0F, 5.0F, 6.0F}) {
            m_run->journal().reportAgain(m_probe->size);
            m_run->journal().reportAgain(m_probe->weights);
            m_run->journal().reportAgain(*m_probe);
            write(value);
            write(value + 10);
            QVERIFY(takeCount() >= 4);
        }
        m_run->journal().reportAllAgain();
        write(1);
        QCOMPARE(takeCount(), std::size_t{5});
        QCOMPARE(m_run->journal().bytes(), bytes);
        const std::string after = m_run->text();
        auto* const step = m_run->finish();
        QCOMPARE(step->records().size(), std::size_t{4}); // the flag is as it was
        step->undo();
        QCOMPARE(m_probe->size.getValue(), 1.5F);
        QCOMPARE(m_probe->weights[2], 3.0F);
        QVERIFY(m_probe->getName().isEmpty());
        step->redo();
        QCOMPARE(m_run->text(), after);
    }

    void aReplacedListIsReportedAgainWithoutItsRows()
    {
        m_probe->weights.setValues(std::vector<float>(9));
        m_run->journal().reportAgain(m_probe->weights);
        take();
        m_probe->weights.insertSpace(1, 2);
        m_probe->weights.set1Value(3, 4);
        QCOMPARE(takeCount(), std::size_t{2});
        m_probe->weights.setValues(std::vector<float>(2));
        QCOMPARE(take().front().removed, std::size_t{11});
        m_probe->weights.insertSpace(1, 2);
        QCOMPARE(takeCount(), std::size_t{0}); // it is known to have changed as a whole
        auto* const step = m_run->finish();
        QCOMPARE(step->records().size(), std::size_t{1});
        step->undo();
        QCOMPARE(m_probe->weights.getNum(), 3);
    }

    void aDestroyedNodeIsReported()
    {
        m_scene->removeChild(0);
        m_run->finish();
        m_run->steps().clear();
        QVERIFY(m_recorder->destroyed.empty());
        m_probe = nullptr;
        QCOMPARE(m_recorder->destroyed, std::vector<std::size_t>{1});
    }

    void aListenerThatIsRemovedHearsNothing()
    {
        Recorder other;
        m_run->journal().addListener(other);
        m_run->journal().removeListener(*m_recorder);
        m_probe->size.setValue(3);
        QCOMPARE(takeCount(), std::size_t{0});
        QCOMPARE(other.changes.size(), std::size_t{1});
        m_run->journal().removeListener(other);
    }

private:
    /// A record of rows that are about to be inserted.
    class Probe final : public ChangeRecord {
    public:
        explicit Probe(ProbeNode& node)
            : ChangeRecord(Kind::Rows, node)
            , m_field(&node.weights)
        {
        }
        [[nodiscard]] NxField* field() const noexcept override { return m_field; }
        [[nodiscard]] Extent extent() const noexcept override { return {1, 7, 0}; }
        void exchange() override { }
        [[nodiscard]] bool isSameAsNow() const override { return true; }
        void notify() const override { }
        [[nodiscard]] std::size_t bytes() const override { return 1; }

    private:
        NxField* m_field;
    };
};

QTEST_APPLESS_MAIN(TestJournalListener)
#include "tst_JournalListener.moc"

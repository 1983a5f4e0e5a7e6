#include "base/FailingMemory.h"
#include "scene/TestNodes.h"
#include "scene/journal/JournalRun.h"
#include "scene/recovery/RecoveryRun.h"

#include "meridane/scene/nodes/NxFieldGallery.h"
#include "meridane/scene/nodes/NxTransform.h"
#include "meridane/scene/recovery/RecoveryReplay.h"

#include <QTest>

#include <functional>
#include <optional>

using FailingMemory::allocationsLeft;
using meridane::RecoveryFileReader;
using meridane::RecoveryReplay;
using Base = meridane::RecoveryDescription::Base;

namespace {

/// Lets each allocation of the work fail in turn, and calls `check` after each run; `failed` is false in the last one.
/// The work starts from a new state each time.
void failEachAllocation(const std::function<void()>& start, const std::function<void()>& work,
    const std::function<void(bool failed)>& check)
{
    bool failed = true;
    for (long succeed = 0; failed; ++succeed) {
        start();
        allocationsLeft = succeed;
        work();
        failed = allocationsLeft < 0;
        allocationsLeft = -1;
        check(failed);
    }
}

} // namespace

/// Captures and replays that run out of memory.
class TestRecoveryMemory : public QObject {
    Q_OBJECT

private:
    NxRef<NxGroup> m_root;
    NxRef<ProbeNode> m_probe;
    std::unique_ptr<JournalRun> m_journal;
    std::unique_ptr<RecoveryRun> m_run;
    std::string m_before; // the scene at the first commit
    long m_failures = 0;

    void start()
    {
        m_run.reset();
        m_journal.reset();
        m_root = new NxGroup;
        m_probe = new ProbeNode;
        m_root->addChild(m_probe.get());
        m_journal = std::make_unique<JournalRun>(*m_root);
        m_run = std::make_unique<RecoveryRun>(m_journal->journal(), Base::Nothing);
        m_run->runAll();
        m_before = m_journal->text();
    }
    void change()
    {
        m_probe->title.setValue("a text that is longer than a short one");
        m_probe->weights.insertSpace(1, 100);
        m_probe->weights.set1Value(5, 3);
        m_probe->size.setIgnored(1);
        m_probe->setName("a name that is longer than a short one");
        const NxRef<NxTransform> group(new NxTransform);
        const NxRef<NxFieldGallery> gallery(new NxFieldGallery);
        group->addChild(gallery.get());
        group->addChild(m_probe.get());
        m_root->addChild(group.get());
    }
    /// The file gives the scene as it is, or, if the capture failed, as it was; and a new capture succeeds.
    void check(bool failed)
    {
        m_failures += m_run->capture().hasFailed() ? 1 : 0;
        QVERIFY(failed || !m_run->capture().hasFailed());
        m_run->runAll();
        const std::string recovered = m_run->recoverText();
        QCOMPARE(recovered, m_run->capture().hasFailed() ? m_before : m_journal->text());
        QVERIFY(!m_run->capture().hasFailed() || !m_run->capture().hasWork());
        RecoveryRun next(m_journal->journal(), Base::Nothing);
        next.runAll();
        QCOMPARE(next.recoverText(), m_journal->text());
    }

private Q_SLOTS:
    void init() { m_failures = 0; }
    void cleanup()
    {
        m_run.reset();
        m_journal.reset();
    }

    void aCaptureThatRunsOutOfMemoryKeepsTheLatestCommit()
    {
        failEachAllocation(
            [this] {
                start();
                change();
            },
            [this] { m_run->runAll(); }, [this](bool failed) { check(failed); });
        QVERIFY2(m_failures > 20, std::to_string(m_failures).c_str());
    }

    void aChangeThatIsNotNotedFailsTheCapture()
    {
        failEachAllocation([this] { start(); },
            [this] {
                try {
                    change();
                } catch (const std::bad_alloc&) { // NOLINT(bugprone-empty-catch): then it hasn't happened
                }
            },
            [this](bool failed) { check(failed); });
        QVERIFY2(m_failures > 5, std::to_string(m_failures).c_str());
    }

    void aReplayThatRunsOutOfMemoryFails()
    {
        start();
        change();
        m_run->runAll();
        const std::string bytes = m_run->bytes();
        const std::string expected = m_journal->text();
        std::unique_ptr<RecoveryFileReader> file;
        std::optional<RecoveryReplay> replay;
        failEachAllocation(
            [&] {
                replay.reset();
                file = std::make_unique<RecoveryFileReader>(bytes);
            },
            [&] {
                if (file->run() == RecoveryFileReader::State::Done) {
                    replay.emplace(*file, nullptr);
                    replay->run();
                }
            },
            [&](bool failed) {
                if (failed && !replay) {
                    QCOMPARE(file->failure(), std::string("it doesn't fit in memory"));
                } else if (replay->state() == RecoveryReplay::State::Failed) {
                    QVERIFY(failed);
                    QVERIFY2(replay->failure().ends_with("doesn't fit in memory"), replay->failure().c_str());
                    ++m_failures;
                } else {
                    QCOMPARE(NxSceneWriter::toText(replay->takeScene().get()), expected);
                }
            });
        QVERIFY2(m_failures > 20, std::to_string(m_failures).c_str());
    }
};

QTEST_APPLESS_MAIN(TestRecoveryMemory)
#include "tst_RecoveryMemory.moc"

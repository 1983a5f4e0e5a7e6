#include "scene/RandomScene.h"
#include "scene/journal/JournalRun.h"
#include "scene/journal/RandomChanges.h"
#include "scene/recovery/RecoveryRun.h"

#include <QTest>

#include <algorithm>

using Base = meridane::RecoveryDescription::Base;

namespace {

/// A user who edits, undoes and redoes at random.
class RandomUser {
public:
    explicit RandomUser(unsigned int seed)
        : m_scene(makeRandomScene(seed))
        , m_random(seed)
        , m_changes(*m_scene, seed)
        , m_journal(*m_scene)
    {
    }

    [[nodiscard]] NxGroup& scene() { return *m_scene; }
    [[nodiscard]] JournalRun& journal() { return m_journal; }
    [[nodiscard]] RandomValues& random() { return m_random; }

    void act()
    {
        auto& steps = m_journal.steps();
        switch (m_random.below(10)) {
        case 0:
            m_journal.journal().revertStep();
            return;
        case 1:
            finish();
            if (m_position > 0)
                steps[--m_position]->undo();
            return;
        case 2:
            finish();
            if (m_position < steps.size())
                steps[m_position++]->redo();
            return;
        case 3:
            finish();
            return;
        case 4:
            dropOldSteps();
            return;
        default:
            m_changes.makeSome();
        }
    }

private:
    void finish()
    {
        auto& steps = m_journal.steps();
        const std::size_t count = steps.size();
        if (m_journal.finish() == nullptr)
            return;
        // The new step replaces those that could be redone.
        std::rotate(steps.begin() + static_cast<std::ptrdiff_t>(m_position), steps.end() - 1, steps.end());
        steps.resize(++m_position);
        Q_ASSERT(steps.size() <= count + 1);
    }
    /// So that some nodes are destroyed.
    void dropOldSteps()
    {
        auto& steps = m_journal.steps();
        const std::size_t count = m_random.below(m_position + 1);
        steps.erase(steps.begin(), steps.begin() + static_cast<std::ptrdiff_t>(count));
        m_position -= count;
        m_changes.releaseNodes();
    }

    NxRef<NxGroup> m_scene;
    RandomValues m_random;
    RandomChanges m_changes;
    JournalRun m_journal;
    std::size_t m_position = 0; // of the history
};

} // namespace

/// Random changes of random scenes, with slices of captures at any time between them.
class TestRandomRecovery : public QObject {
    Q_OBJECT

private:
    static void compare(const RecoveryRun& run, RandomUser& user)
    {
        QCOMPARE(run.recoverText(), user.journal().text());
        const NxRef<NxGroup> recovered = run.recover();
        QCOMPARE(findDifference(*recovered, user.scene()), std::string());
        QVERIFY(recovered->getName() == user.scene().getName());
    }

private Q_SLOTS:
    void eachCommitGivesTheSceneOfItsMoment_data()
    {
        QTest::addColumn<unsigned int>("seed");
        for (unsigned int seed = 1; seed <= 40; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }

    void eachCommitGivesTheSceneOfItsMoment()
    {
        QFETCH(unsigned int, seed);
        RandomUser user(seed);
        std::vector<std::unique_ptr<RecoveryRun>> runs;
        runs.push_back(std::make_unique<RecoveryRun>(user.journal().journal(), Base::File));
        runs.push_back(std::make_unique<RecoveryRun>(user.journal().journal(), Base::Nothing));
        if (seed % 2 == 0)
            runs.front()->runAll();
        std::uint64_t commits = 0;
        for (int i = 0; i < 150; ++i) {
            user.act();
            // In the midst of steps, and of other captures.
            for (const auto& run : runs) {
                const std::uint64_t before = run->capture().commitCount();
                if (user.random().below(3) == 0)
                    run->runSlice();
                if (run->capture().commitCount() == before)
                    continue;
                ++commits;
                compare(*run, user);
            }
            if (i == 80)
                runs.push_back(std::make_unique<RecoveryRun>(user.journal().journal(), Base::Nothing));
        }
        QVERIFY(commits > 20);
        for (const auto& run : runs) {
            run->runAll();
            compare(*run, user);
            QVERIFY(!run->capture().hasWork());
            QVERIFY(!run->capture().hasFailed());
        }
    }
};

QTEST_APPLESS_MAIN(TestRandomRecovery)
#include "tst_RandomRecovery.moc"

#include "extender/Recording.h"
#include "extender/TestCommand.h"

#include "orvane/extender/detail/OrvHistory.h"

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxFieldGallery.h"
#include "meridane/scene/nodes/NxPointLight.h"

#include <QTest>

#include <array>
#include <cstddef>
#include <new>
#include <utility>

#include <malloc.h>

using namespace Qt::StringLiterals;

namespace {

// Like the command that a slider's drag makes: it holds the texts before and after, and takes the new one when
// executed.
class SetValueCommand : public OrvCommand {
public:
    explicit SetValueCommand(NxField& field)
        : m_field(field)
    {
        m_field.get(m_old);
    }

    void execute() override { m_field.get(m_new); }
    void undo() override { m_field.set(m_old); }
    void redo() override { m_field.set(m_new); }

private:
    NxField& m_field;
    VbString m_old;
    VbString m_new;
};

// A node that tells of its death.
class MortalNode : public NxPointLight {
public:
    explicit MortalNode(bool& isDead)
        : m_isDead(isDead)
    {
    }

private:
    ~MortalNode() override { m_isDead = true; }

    bool& m_isDead;
};

// A list that stands alone, in memory that it leaves cleared, so that whoever still uses it ends at a null pointer.
class MortalList {
public:
    MortalList() { m_field->insertSpace(0, 100); }
    MortalList(const MortalList&) = delete;
    MortalList& operator=(const MortalList&) = delete;
    ~MortalList() { destroy(); }

    [[nodiscard]] NxField* field() const { return m_field; }
    [[nodiscard]] bool isAlive() const { return m_field != nullptr; }
    void destroy()
    {
        if (m_field == nullptr)
            return;
        std::exchange(m_field, nullptr)->~NxMFFloat();
        m_memory.fill(std::byte());
    }

private:
    alignas(NxMFFloat) std::array<std::byte, sizeof(NxMFFloat)> m_memory{};
    NxMFFloat* m_field = new (m_memory.data()) NxMFFloat(nullptr, "list");
};

constexpr int alone = -1;

} // namespace

class TestOrvHistory : public QObject {
    Q_OBJECT

    QStringList m_calls;

    TestCommand* push(OrvHistory& history, const char* name, int action = alone, NxField* field = nullptr)
    {
        auto command = std::make_unique<TestCommand>(QString::fromLatin1(name), m_calls);
        TestCommand* const result = command.get();
        history.push(std::move(command), {action, field, nullptr, nullptr});
        return result;
    }

    /// Pushes a command that does something as it is executed.
    void pushDoing(OrvHistory& history, const char* name, const TestCommand::Action& action)
    {
        auto command = std::make_unique<TestCommand>(QString::fromLatin1(name), m_calls);
        command->whenExecuted = action;
        history.push(std::move(command), {alone, nullptr, nullptr, nullptr});
    }

    static QStringList pairs(const char* text)
    {
        QStringList result;
        const QStringList all = words(text);
        for (qsizetype i = 0; i + 1 < all.size(); i += 2)
            result.append(all.at(i) + u' ' + all.at(i + 1));
        return result;
    }

private Q_SLOTS:
    void init() { m_calls.clear(); }

    void aNewHistoryIsEmptyAndClean()
    {
        OrvHistory history;
        QVERIFY(!history.canUndo());
        QVERIFY(!history.canRedo());
        QVERIFY(history.isClean());
        QCOMPARE(history.undoDepth(), 0);
        QCOMPARE(history.bytes(), std::size_t(0));
        history.undo();
        history.redo();
    }

    void aCommandIsExecutedOnceThenUndoneAndRedone()
    {
        OrvHistory history;
        push(history, "a");
        QCOMPARE(taken(m_calls), pairs("execute a"));
        history.undo();
        history.redo();
        history.undo();
        QCOMPARE(taken(m_calls), pairs("undo a redo a undo a"));
        QVERIFY(!history.canUndo());
        QVERIFY(history.canRedo());
    }

    void commandsOutsideOfActionsAreStepsOfTheirOwn()
    {
        OrvHistory history;
        push(history, "a");
        push(history, "b");
        QCOMPARE(history.undoDepth(), 2);
        taken(m_calls);
        history.undo();
        QCOMPARE(m_calls, pairs("undo b"));
    }

    void commandsOfOneActionAreOneStepUndoneInReverse()
    {
        OrvHistory history;
        push(history, "a", 1);
        push(history, "b", 1);
        push(history, "c", 1);
        push(history, "d", 2);
        QCOMPARE(history.undoDepth(), 2);
        QCOMPARE(taken(m_calls), pairs("execute a execute b execute c execute d"));
        history.undo();
        history.undo();
        QCOMPARE(taken(m_calls), pairs("undo d undo c undo b undo a"));
        history.redo();
        QCOMPARE(taken(m_calls), pairs("redo a redo b redo c"));
        QVERIFY(history.canRedo());
    }

    void aPushDropsWhatCouldBeRedone()
    {
        OrvHistory history;
        push(history, "a");
        push(history, "b");
        history.undo();
        taken(m_calls);
        push(history, "c");
        QCOMPARE(m_calls, pairs("execute c destroy b"));
        QVERIFY(!history.canRedo());
        QCOMPARE(history.undoDepth(), 2);
    }

    void anUndoWithinAnActionSplitsItsStep()
    {
        OrvHistory history;
        push(history, "a", 1);
        push(history, "b", 2);
        history.undo();
        push(history, "c", 2);
        QCOMPARE(history.undoDepth(), 2);
        taken(m_calls);
        history.undo();
        QCOMPARE(m_calls, pairs("undo c"));
    }

    void theCleanMarkFollowsUndoAndRedo()
    {
        OrvHistory history;
        push(history, "a");
        QVERIFY(!history.isClean());
        history.setClean();
        QVERIFY(history.isClean());
        push(history, "b");
        QVERIFY(!history.isClean());
        history.undo();
        QVERIFY(history.isClean());
        history.undo();
        QVERIFY(!history.isClean());
        history.redo();
        QVERIFY(history.isClean());
    }

    void aCleanStateThatIsGoneNeverComesBack()
    {
        OrvHistory history;
        push(history, "a");
        history.setClean();
        history.undo();
        push(history, "b");
        QVERIFY(!history.isClean());
        history.undo();
        QVERIFY(!history.isClean());
    }

    void anActionGoesOnAsANewStepBehindTheCleanMark()
    {
        OrvHistory history;
        push(history, "a", 1);
        history.setClean();
        push(history, "b", 1);
        QCOMPARE(history.undoDepth(), 2);
        history.undo();
        QVERIFY(history.isClean());
    }

    void clearDestroysEverythingAndIsClean()
    {
        OrvHistory history;
        push(history, "a", 1);
        push(history, "b", 1);
        push(history, "c");
        history.undo();
        taken(m_calls);
        history.clear();
        m_calls.sort();
        QCOMPARE(m_calls, pairs("destroy a destroy b destroy c"));
        QVERIFY(!history.canUndo() && !history.canRedo());
        QVERIFY(history.isClean());
        QCOMPARE(history.undoDepth(), 0);
        QCOMPARE(history.bytes(), std::size_t(0));
    }

    void theEndDestroysEverything()
    {
        {
            OrvHistory history;
            push(history, "a");
            taken(m_calls);
        }
        QCOMPARE(m_calls, pairs("destroy a"));
    }

    void whatACommandPushesWhileExecutedIsPartOfItsStep()
    {
        OrvHistory history;
        push(history, "first");
        pushDoing(history, "outer", [&] {
            push(history, "inner", 7);
            m_calls.append(u"outer goes-on"_s);
        });
        QCOMPARE(taken(m_calls), pairs("execute first execute outer execute inner outer goes-on"));
        QCOMPARE(history.undoDepth(), 2);
        history.undo();
        QCOMPARE(taken(m_calls), pairs("undo inner undo outer"));
        history.redo();
        QCOMPARE(taken(m_calls), pairs("redo outer redo inner"));
    }

    void whatACommandPushesWhileUndoneOrRedoneIsExecutedAndDropped()
    {
        OrvHistory history;
        TestCommand* const command = push(history, "a");
        push(history, "b");
        history.undo();
        command->whenUndone = [&] { push(history, "x"); };
        command->whenRedone = [&] { push(history, "y"); };
        taken(m_calls);
        history.undo();
        QCOMPARE(taken(m_calls), pairs("undo a execute x destroy x"));
        history.redo();
        QCOMPARE(taken(m_calls), pairs("redo a execute y destroy y"));
        QVERIFY(history.canRedo());
        QCOMPARE(history.undoDepth(), 1);
    }

    void aCommandCannotMoveInTheHistory()
    {
        OrvHistory history;
        push(history, "a");
        TestCommand* const command = push(history, "b");
        command->whenUndone = [&] {
            history.undo();
            history.redo();
        };
        taken(m_calls);
        history.undo();
        QCOMPARE(taken(m_calls), pairs("undo b"));
        pushDoing(history, "c", [&] { history.undo(); });
        QCOMPARE(taken(m_calls), pairs("execute c destroy b"));
        QCOMPARE(history.undoDepth(), 2);
    }

    void aCommandThatClearsTheHistoryEndsFirst()
    {
        OrvHistory history;
        push(history, "a");
        taken(m_calls);
        pushDoing(history, "b", [&] {
            history.clear();
            m_calls.append(u"b goes-on"_s);
        });
        QCOMPARE(m_calls, pairs("execute b b goes-on destroy a destroy b"));
        QVERIFY(!history.canUndo());
        QVERIFY(history.isClean());
    }

    void nodesLiveAsLongAsTheCommandAndNoLonger()
    {
        bool nodeIsDead = false;
        bool ownerIsDead = false;
        OrvHistory history;
        {
            const NxRef<NxFieldContainer> node(new MortalNode(nodeIsDead));
            const NxRef<MortalNode> owner(new MortalNode(ownerIsDead));
            auto command = std::make_unique<SetValueCommand>(owner->intensity);
            owner->intensity.setValue(0.5F);
            history.push(std::move(command), {alone, &owner->intensity, node.get(), owner.get()});
        }
        QVERIFY(!nodeIsDead && !ownerIsDead);
        history.undo();
        QVERIFY(!nodeIsDead && !ownerIsDead);
        push(history, "next");
        QVERIFY(nodeIsDead && ownerIsDead);
    }

    void nodesOfMergedCommandsLiveAsLongAsTheStep()
    {
        bool firstIsDead = false;
        bool secondIsDead = false;
        OrvHistory history;
        for (bool* isDead : {&firstIsDead, &secondIsDead}) {
            const NxRef<NxFieldContainer> node(new MortalNode(*isDead));
            history.push(std::make_unique<TestCommand>(u"a"_s, m_calls), {3, nullptr, node.get(), node.get()});
        }
        QCOMPARE(history.undoDepth(), 1);
        QVERIFY(!firstIsDead && !secondIsDead);
        history.clear();
        QVERIFY(firstIsDead && secondIsDead);
    }

    void beyondTheLimitTheOldestStepsAreGone()
    {
        OrvHistory history;
        push(history, "a");
        const std::size_t bytesOfStep = history.bytes();
        QVERIFY(bytesOfStep > 0);
        history.setLimit(3 * bytesOfStep);
        push(history, "b");
        push(history, "c");
        QCOMPARE(history.undoDepth(), 3);
        taken(m_calls);
        push(history, "d");
        QCOMPARE(taken(m_calls), pairs("execute d destroy a"));
        QCOMPARE(history.undoDepth(), 3);
        QCOMPARE(history.bytes(), 3 * bytesOfStep);
        for (int i = 0; i < 4; ++i)
            history.undo();
        QCOMPARE(taken(m_calls), pairs("undo d undo c undo b"));
        QVERIFY(!history.canUndo());
        QVERIFY(!history.isClean());
        for (int i = 0; i < 4; ++i)
            history.redo();
        QCOMPARE(taken(m_calls), pairs("redo b redo c redo d"));
    }

    void aLowerLimitActsAtOnceButKeepsTheNewestStep()
    {
        OrvHistory history;
        push(history, "a");
        push(history, "b");
        push(history, "c");
        taken(m_calls);
        history.setLimit(1);
        QCOMPARE(taken(m_calls), pairs("destroy a destroy b"));
        QCOMPARE(history.undoDepth(), 1);
        history.undo();
        QCOMPARE(taken(m_calls), pairs("undo c"));
        QVERIFY(!history.canUndo());
    }

    void droppingGoesOnAfterTheHistoryWasCleared()
    {
        OrvHistory history;
        history.setLimit(1);
        push(history, "a");
        push(history, "b");
        history.clear();
        QCOMPARE(history.bytes(), std::size_t(0));
        push(history, "c");
        QCOMPARE(history.undoDepth(), 1);
        push(history, "d");
        QCOMPARE(history.undoDepth(), 1);
    }

    void theNumberOfStepsIsBounded()
    {
        OrvHistory history;
        for (int i = 0; i < OrvHistory::maximumSteps + 10; ++i)
            history.push(std::make_unique<TestCommand>(QString(), m_calls), {alone, nullptr, nullptr, nullptr});
        QCOMPARE(history.undoDepth(), OrvHistory::maximumSteps);
    }

    void theEstimateGrowsWithTheValueAndWithTheRowsRemoved()
    {
        const NxRef<NxFieldGallery> node(new NxFieldGallery);
        NxSFString text(nullptr, "text");
        const auto costOf = [&](NxField& field, const TestCommand::Action& action) {
            OrvHistory history;
            auto command = std::make_unique<TestCommand>(u"a"_s, m_calls);
            command->whenExecuted = action;
            history.push(std::move(command), {alone, &field, nullptr, nullptr});
            return history.bytes();
        };
        const std::size_t small = costOf(text, {});
        text.setValue(VbString(std::string_view(std::string(1000000, 'x'))));
        const std::size_t large = costOf(text, {});
        QVERIFY2(large - small >= 2000000, "two texts of a million characters");

        NxMFFloat list(nullptr, "list");
        list.insertSpace(0, 1000000);
        const std::size_t row = costOf(list, {});
        QVERIFY2(row < 1000, "one row of a long list is cheap");
        const std::size_t removal = costOf(list, [&] { list.deleteValues(0, 1000000); });
        QVERIFY2(removal > std::size_t(40) * 1000000, "each removed row has a text");
    }

    void aFieldMayDieWhileTheCommandIsExecuted()
    {
        OrvHistory history;
        MortalList list;
        history.push(std::make_unique<TestCommand>(u"a"_s, m_calls), {alone, list.field(), nullptr, nullptr});
        const std::size_t bytes = history.bytes();
        auto command = std::make_unique<TestCommand>(u"b"_s, m_calls);
        command->whenExecuted = [&] { list.destroy(); };
        history.push(std::move(command), {alone, list.field(), nullptr, nullptr});
        QCOMPARE(history.undoDepth(), 2);
        QCOMPARE(history.bytes(), 2 * bytes);
    }

    void aFieldMayDieWhileACommandOfACommandIsExecuted()
    {
        OrvHistory history;
        MortalList list;
        pushDoing(history, "a", [&] {
            auto inner = std::make_unique<TestCommand>(u"b"_s, m_calls);
            inner->whenExecuted = [&] { list.destroy(); };
            history.push(std::move(inner), {alone, list.field(), nullptr, nullptr});
        });
        QCOMPARE(history.undoDepth(), 1);
    }

    void aFieldMayDieWithTheStepsThatAPushCutsOff()
    {
        class OwningCommand : public TestCommand {
        public:
            OwningCommand(QStringList& calls, MortalList& list)
                : TestCommand(u"owner"_s, calls)
                , m_list(list)
            {
            }
            ~OwningCommand() override { m_list.destroy(); }

        private:
            MortalList& m_list;
        };
        OrvHistory history;
        MortalList list;
        history.push(std::make_unique<OwningCommand>(m_calls, list), {alone, list.field(), nullptr, nullptr});
        history.undo();
        push(history, "a", alone, list.field());
        QVERIFY(!list.isAlive());
        QCOMPARE(history.undoDepth(), 1);
    }

    void aLongDragTakesLittleMemoryAStep()
    {
#if defined(__SANITIZE_ADDRESS__)
        QSKIP("the sanitizer's allocator doesn't count");
#endif
        constexpr int steps = 100000;
        const NxRef<NxPointLight> light(new NxPointLight);
        OrvHistory history;
        const auto usedBytes = [] { return mallinfo2().uordblks + mallinfo2().hblkhd; };
        const std::size_t before = usedBytes();
        for (int i = 0; i < steps; ++i) {
            light->intensity.setValue(static_cast<float>(i) * 1.00001e-5F);
            history.push(
                std::make_unique<SetValueCommand>(light->intensity), {1, &light->intensity, light.get(), light.get()});
        }
        const double bytesPerStep = static_cast<double>(usedBytes() - before) / steps;
        const double estimate = static_cast<double>(history.bytes()) / steps;
        qInfo("%.1f bytes a step, estimated at %.1f", bytesPerStep, estimate);
        QCOMPARE(history.undoDepth(), 1);
        QVERIFY2(bytesPerStep <= 200, "a drag of many steps must stay small");
        QVERIFY2(estimate >= bytesPerStep && estimate <= 2 * bytesPerStep, "the estimate is honest");
    }
};

QTEST_APPLESS_MAIN(TestOrvHistory)
#include "tst_OrvHistory.moc"

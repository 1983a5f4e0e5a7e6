#include "extender/HistoryCase.h"

#include <QTest>

#include <cstddef>

using namespace Qt::StringLiterals;

class TestOrvHistory : public HistoryCase {
    Q_OBJECT

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

    void aForgottenCleanStateNeverComesBack()
    {
        OrvHistory history;
        push(history, "a");
        history.setClean();
        history.forgetClean();
        QVERIFY(!history.isClean());
        history.undo();
        QVERIFY(!history.isClean());
        push(history, "b");
        QVERIFY(!history.isClean());
        history.setClean();
        QVERIFY(history.isClean());
        history.forgetClean();
        history.clear();
        QVERIFY(history.isClean());
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
};

QTEST_APPLESS_MAIN(TestOrvHistory)
#include "tst_OrvHistory.moc"

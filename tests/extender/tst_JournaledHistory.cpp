#include "extender/HistoryCase.h"

#include "meridane/base/NxDelayQueue.h"
#include "meridane/scene/fields/NxFieldSensor.h"
#include "meridane/scene/file/NxSceneWriter.h"
#include "meridane/scene/journal/Journal.h"
#include "meridane/scene/nodes/NxFieldGallery.h"

#include <QTest>

#include <chrono>

/// The history of a scene with a journal.
class TestJournaledHistory : public HistoryCase {
    Q_OBJECT

private:
    [[nodiscard]] NxSFFloat& number() const { return m_gallery->sfFloat; }
    [[nodiscard]] std::string text() const { return NxSceneWriter::toText(m_scene.get()); }

    void start(OrvHistory::Moves moves)
    {
        m_scene = new NxGroup;
        m_gallery = new NxFieldGallery;
        m_scene->addChild(m_gallery.get());
        m_journal = std::make_unique<meridane::Journal>(*m_scene);
        while (m_journal->run(std::chrono::hours(1))) { }
        m_journal->record();
        m_history = std::make_unique<OrvHistory>();
        m_history->setJournal(m_journal.get(), moves);
        number().setValue(1);
        m_history->finishStep();
        m_history->setClean();
    }

    /// A step without a command, as a change by an editor that pushes none.
    void write(float value, int action = alone, int typing = alone)
    {
        m_history->beginStep({action, typing});
        number().setValue(value);
        m_history->finishStep();
    }

    NxRef<NxGroup> m_scene;
    NxRef<NxFieldGallery> m_gallery;
    std::unique_ptr<meridane::Journal> m_journal;
    std::unique_ptr<OrvHistory> m_history;

private Q_SLOTS:
    void init()
    {
        m_calls.clear();
        start(OrvHistory::Moves::Exact);
    }
    void cleanup()
    {
        m_history.reset();
        m_journal.reset();
    }

    void aChangeWithoutACommandIsAStep()
    {
        write(2);
        QCOMPARE(m_history->undoDepth(), 2);
        QVERIFY(!m_history->isClean());
        m_history->undo();
        QCOMPARE(number().getValue(), 1.0F);
        QVERIFY(m_history->isClean());
        m_history->redo();
        QCOMPARE(number().getValue(), 2.0F);
        QVERIFY(!m_history->isClean());
    }

    void theOpenStepCountsAtOnce()
    {
        number().setValue(2);
        QVERIFY(m_history->canUndo());
        QVERIFY(!m_history->isClean());
        QCOMPARE(m_history->undoDepth(), 2);
        number().setValue(1);
        m_history->undo();
        QCOMPARE(number().getValue(), 0.0F);
    }

    void aCommandThatDoesNotUndoIsUndone()
    {
        pushDoing(*m_history, "a", [this] { number().setValue(5); });
        m_history->finishStep();
        taken(m_calls);
        m_history->undo();
        QCOMPARE(taken(m_calls), pairs("undo a"));
        QCOMPARE(number().getValue(), 1.0F);
        m_history->redo();
        QCOMPARE(taken(m_calls), pairs("redo a"));
        QCOMPARE(number().getValue(), 5.0F);
    }

    void whatACommandWritesAsItIsUndoneIsTakenBack()
    {
        TestCommand* const command = push(*m_history, "a");
        number().setValue(5);
        m_history->finishStep();
        command->whenUndone = [this] {
            number().setValue(77);
            m_gallery->setName("odd");
            push(*m_history, "x");
        };
        const std::string after = text();
        m_history->undo();
        QCOMPARE(number().getValue(), 1.0F);
        QVERIFY(m_gallery->getName().isEmpty());
        QVERIFY(m_history->isClean());
        m_history->redo();
        QCOMPARE(text(), after);
    }

    void commandsThatChangeNothingJoinTheStepBefore()
    {
        write(2);
        push(*m_history, "a");
        push(*m_history, "b");
        m_history->finishStep();
        QCOMPARE(m_history->undoDepth(), 2);
        taken(m_calls);
        m_history->undo();
        QCOMPARE(taken(m_calls), pairs("undo b undo a"));
        QCOMPARE(number().getValue(), 1.0F);
        QVERIFY(m_history->isClean());
    }

    void commandsThatChangeNothingKeepWhatCanBeRedone()
    {
        write(2);
        m_history->undo();
        push(*m_history, "a");
        m_history->finishStep();
        QVERIFY(m_history->canRedo());
        QVERIFY(m_history->isClean());
        m_history->redo();
        QCOMPARE(number().getValue(), 2.0F);
    }

    void commandsThatChangeNothingFormAStepIfNoneIsBefore()
    {
        m_history->clear();
        push(*m_history, "a");
        push(*m_history, "b");
        m_history->finishStep();
        QCOMPARE(m_history->undoDepth(), 1);
        QVERIFY(m_history->isClean());
        taken(m_calls);
        m_history->undo();
        QCOMPARE(taken(m_calls), pairs("undo b undo a"));
        QVERIFY(m_history->isClean());
    }

    void writesThatCancelOutAreNoStep()
    {
        write(2);
        m_history->undo();
        m_history->beginStep({});
        number().setValue(7);
        number().setValue(1);
        QVERIFY(!m_history->finishStep());
        QVERIFY(m_history->isClean());
        QVERIFY(m_history->canRedo());
        QCOMPARE(m_history->undoDepth(), 1);
    }

    void theCommandsAndWritesOfOneActionAreOneStep()
    {
        m_history->beginStep({4});
        number().setValue(2);
        push(*m_history, "a", 4);
        m_gallery->setName("named");
        push(*m_history, "b", 4);
        m_history->finishStep();
        QCOMPARE(m_history->undoDepth(), 2);
        m_history->undo();
        QVERIFY(m_history->isClean());
        QVERIFY(m_gallery->getName().isEmpty());
    }

    void typingIsOneStepAndASavedStateInItStays()
    {
        write(2, 1, 9);
        write(22, 2, 9);
        QCOMPARE(m_history->undoDepth(), 2);
        m_history->setClean();
        write(222, 3, 9);
        QCOMPARE(m_history->undoDepth(), 3);
        m_history->undo();
        QCOMPARE(number().getValue(), 22.0F);
        QVERIFY(m_history->isClean());
        m_history->undo();
        QCOMPARE(number().getValue(), 1.0F);
    }

    void typingThatEndsWhereItBeganIsNoStep()
    {
        write(2, 1, 9);
        write(1, 2, 9);
        QCOMPARE(m_history->undoDepth(), 1);
        QVERIFY(m_history->isClean());
    }

    void whatObserversWriteAfterAnUndoIsTakenBack()
    {
        write(2);
        m_history->undo();
        m_history->beginPass();
        push(*m_history, "refresh");
        number().setValue(1.5F);
        m_history->endPass(true);
        QCOMPARE(number().getValue(), 1.0F);
        QVERIFY(m_history->isClean());
        QVERIFY(m_history->canRedo());
        m_history->redo();
        QCOMPARE(number().getValue(), 2.0F);
    }

    void observersThatAnswerWithoutEndKeepWhatTheyWrite()
    {
        NxFieldSensor rounder(
            [](void* data, NxSensor*) {
                auto& field = *static_cast<NxSFFloat*>(data);
                if (field.getValue() == 1)
                    field.setValue(1.5F);
            },
            &number());
        write(2);
        NxDelayQueue::getDefault().process();
        rounder.attach(&number());
        m_history->undo();
        int passes = 0;
        for (; !NxDelayQueue::getDefault().isEmpty() && passes < 100; ++passes) {
            m_history->beginPass();
            NxDelayQueue::getDefault().process();
            m_history->endPass(NxDelayQueue::getDefault().isEmpty());
        }
        QVERIFY(passes > 1 && passes < 20);
        m_history->finishStep();
        QCOMPARE(number().getValue(), 1.5F);
        QVERIFY(!m_history->isClean());
    }

    void aWriteRightAfterAnUndoIsKept()
    {
        write(2);
        m_history->undo();
        number().setValue(3);
        m_history->beginPass();
        m_history->endPass(true);
        m_history->finishStep();
        QCOMPARE(number().getValue(), 3.0F);
        QCOMPARE(m_history->undoDepth(), 2);
        QVERIFY(!m_history->canRedo());
    }

    void aDeletedNodeComesBackWithEverything()
    {
        const std::string before = text();
        m_history->beginStep({});
        m_scene->removeChild(0);
        m_history->finishStep();
        m_gallery = nullptr;
        m_history->undo();
        QCOMPARE(text(), before);
        m_gallery = static_cast<NxFieldGallery*>(m_scene->getChild(0));
    }

    void theStepsSayWhatTheyChange()
    {
        m_gallery->setName("arm");
        m_history->finishStep();
        QCOMPARE(m_history->undoText(), QStringLiteral("Rename arm"));
        write(2);
        QCOMPARE(m_history->undoText(), QStringLiteral("Set arm.sfFloat"));
        m_history->undo();
        QCOMPARE(m_history->undoText(), QStringLiteral("Rename arm"));
        QCOMPARE(m_history->redoText(), QStringLiteral("Set arm.sfFloat"));
        m_history->beginStep({});
        number().setIgnored(1);
        m_history->finishStep();
        QCOMPARE(m_history->undoText(), QStringLiteral("Ignore arm.sfFloat"));
        QCOMPARE(m_history->redoText(), QString());
        m_scene->removeChild(0);
        m_history->finishStep();
        QCOMPARE(m_history->undoText(), QStringLiteral("Remove arm"));
        m_scene->addChild(m_gallery.get());
        m_history->finishStep();
        QCOMPARE(m_history->undoText(), QStringLiteral("Add arm"));
    }

    void theOldestStepsGoBeyondTheLimit()
    {
        for (int i = 0; i < 1000; ++i)
            write(static_cast<float>(i + 2));
        const std::size_t bytes = m_history->bytes();
        m_history->setLimit(bytes / 2);
        QVERIFY(m_history->undoDepth() > 400 && m_history->undoDepth() < 600);
        QVERIFY(m_history->bytes() <= bytes / 2);
        while (m_history->canUndo())
            m_history->undo();
        QVERIFY(number().getValue() > 400.0F);
        QVERIFY(!m_history->isClean());
        m_history->setLimit(1);
        QCOMPARE(m_history->undoDepth(), 0);
    }

    void inTheModeOfCommandsAStepIsUndoneAsTheyDoIt()
    {
        cleanup();
        start(OrvHistory::Moves::Commands);
        TestCommand* const honest = push(*m_history, "honest");
        honest->whenUndone = [this] { number().setValue(1); };
        honest->whenRedone = [this] { number().setValue(2); };
        number().setValue(2);
        m_history->finishStep();
        m_history->undo();
        QVERIFY(m_history->isClean());
        m_history->redo();
        QCOMPARE(number().getValue(), 2.0F);
        QVERIFY(!m_history->isClean());
        pushDoing(*m_history, "careless", [this] { number().setValue(3); });
        m_history->finishStep();
        m_history->setClean();
        m_history->undo();
        QCOMPARE(number().getValue(), 3.0F);
        QVERIFY(m_history->isClean());
    }
};

QTEST_APPLESS_MAIN(TestJournaledHistory)
#include "tst_JournaledHistory.moc"

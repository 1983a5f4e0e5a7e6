#include "VirtualSlot.h"
#include "plugin/EditorHarness.h"
#include "plugin/RecordingEditor.h"

#include "meridane/scene/fields/NxSField.h"
#include "meridane/scene/fields/single/NxSFFloat.h"

#include <memory>

class TestOrvFieldEditors : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_tool = std::make_unique<ToolHarness>();
        m_editor = std::make_unique<RecordingEditor>("E", NxSField::getClassTypeId(), m_calls);
    }

    void cleanup()
    {
        m_editor.reset();
        m_tool.reset();
        m_calls.clear();
        QVERIFY(ToolHarness::noWidgetIsLeft());
    }

    void constructorMakesTheFrameAndTheStrings()
    {
        QCOMPARE(m_editor->getAuthor(), VbString("KLD"));
        QCOMPARE(m_editor->getDescription(), VbString("Field Editor for Orvane."));
        QCOMPARE(m_editor->getVersion(), VbString("1.0.0"));
        QVERIFY(m_editor->getFrame() != nullptr);
        QCOMPARE(m_editor->getWidget(), m_editor->getFrame());
        QVERIFY(m_editor->getFrame()->parent() == nullptr);
        QVERIFY(m_editor->getFrame()->children().isEmpty());
        QVERIFY(!m_editor->getFrame()->isVisible());
        QVERIFY(m_editor->getEditedObject() == nullptr);
    }

    void rangeIsZeroAtFirst()
    {
        const FieldRange& range = m_editor->range();
        QCOMPARE(range.floatMin, 0.0F);
        QCOMPARE(range.floatMax, 0.0F);
        QCOMPARE(range.doubleMin, 0.0F);
        QCOMPARE(range.doubleMax, 0.0F);
        QCOMPARE(range.intMin, 0);
        QCOMPARE(range.intMax, 0);
        QVERIFY(!range.bounded);
    }

    void loadHidesTheFrame()
    {
        m_editor->getFrame()->show();
        m_editor->load();
        QCOMPARE(m_calls, QStringList({QStringLiteral("E load"), QStringLiteral("E hide")}));
        QVERIFY(!m_editor->getFrame()->isVisible());
        m_editor->unload();
    }

    void activateTakesTheFieldReadsItAndShows()
    {
        m_editor->load();
        m_editor->setEditedObject(&m_tool->node->sfFloat);
        m_calls.clear();
        m_editor->activate();
        QCOMPARE(m_calls,
            QStringList({QStringLiteral("E activate"), QStringLiteral("E setField"),
                QStringLiteral("E updateFromField"), QStringLiteral("E show")}));
        QVERIFY(m_editor->isActive());
        QVERIFY(m_editor->getFrame()->isVisible());
        m_editor->deactivate();
        m_editor->unload();
    }

    void activateWithoutObjectOnlyRecordsTheActivation()
    {
        EditorRun run(*m_editor);
        m_calls.clear();
        m_editor->activate();
        QCOMPARE(m_calls, QStringList(QStringLiteral("E activate")));
        QVERIFY(m_editor->isActive());
        QVERIFY(!m_editor->getFrame()->isVisible());
    }

    void activateWithAnObjectThatIsNoFieldShowsNothing()
    {
        EditorRun run(*m_editor);
        m_editor->setEditedObject(m_tool->node.get());
        m_editor->getFrame()->show(); // as a dock does that takes it in
        m_calls.clear();
        m_editor->activate();
        QCOMPARE(m_calls, QStringList(QStringLiteral("E activate")));
        QVERIFY(!m_editor->getFrame()->isVisible());
    }

    void changesReachTheEditorFromTheQueueOnly()
    {
        EditorRun run(*m_editor, m_tool->node->sfFloat);
        m_calls.clear();
        m_tool->node->sfFloat.setValue(3);
        QVERIFY(m_calls.isEmpty());
        ToolHarness::pump();
        QCOMPARE(m_calls, QStringList(QStringLiteral("E updateFromField")));
    }

    void severalChangesReachTheEditorOnce()
    {
        EditorRun run(*m_editor, m_tool->node->sfFloat);
        m_calls.clear();
        for (int value = 1; value < 5; ++value)
            m_tool->node->sfFloat.setValue(static_cast<float>(value));
        ToolHarness::pump();
        QCOMPARE(m_calls.count(QStringLiteral("E updateFromField")), 1);
    }

    void changesOfTheIgnoredFlagReachTheEditor()
    {
        EditorRun run(*m_editor, m_tool->node->sfFloat);
        m_calls.clear();
        m_tool->node->sfFloat.setIgnored(1);
        ToolHarness::pump();
        QCOMPARE(m_calls, QStringList(QStringLiteral("E updateFromField")));
    }

    void undoReachesTheEditorWithoutANewCommand()
    {
        class Change final : public OrvCommand {
        public:
            explicit Change(NxSFFloat& field)
                : m_field(field)
            {
            }
            void execute() override { m_field.setValue(2); }
            void undo() override { m_field.setValue(1); }
            void redo() override { execute(); }

        private:
            NxSFFloat& m_field;
        };
        EditorRun run(*m_editor, m_tool->node->sfFloat);
        m_tool->services.pushCommand(new Change(m_tool->node->sfFloat));
        ToolHarness::pump();
        m_calls.clear();
        m_tool->services.undo();
        ToolHarness::pump();
        QCOMPARE(m_calls, QStringList(QStringLiteral("E updateFromField")));
        QCOMPARE(m_tool->services.pushed, 1);
    }

    void deactivateStopsFollowingAndHides()
    {
        EditorRun run(*m_editor, m_tool->node->sfFloat);
        m_tool->node->sfFloat.setValue(3);
        m_calls.clear();
        m_editor->deactivate();
        QCOMPARE(m_calls, QStringList({QStringLiteral("E deactivate"), QStringLiteral("E hide")}));
        QVERIFY(!m_editor->isActive());
        QVERIFY(!m_editor->getFrame()->isVisible());
        m_tool->node->sfFloat.setValue(4);
        ToolHarness::pump();
        QCOMPARE(m_calls.count(QStringLiteral("E updateFromField")), 0);
    }

    void deactivateTwiceHidesAgain()
    {
        EditorRun run(*m_editor, m_tool->node->sfFloat);
        m_editor->deactivate();
        m_editor->getFrame()->show();
        m_calls.clear();
        m_editor->deactivate();
        QCOMPARE(m_calls, QStringList({QStringLiteral("E deactivate"), QStringLiteral("E hide")}));
        QVERIFY(!m_editor->getFrame()->isVisible());
    }

    void changesWhileIdleAreReadAtTheNextActivation()
    {
        EditorRun run(*m_editor, m_tool->node->sfFloat);
        m_editor->deactivate();
        m_tool->node->sfFloat.setValue(7);
        ToolHarness::pump();
        m_calls.clear();
        m_editor->activate();
        QCOMPARE(m_calls.count(QStringLiteral("E updateFromField")), 1);
    }

    void anotherFieldTakesTheSensorAway()
    {
        EditorRun run(*m_editor, m_tool->node->sfFloat);
        m_editor->setField(&m_tool->node->sfDouble);
        m_calls.clear();
        m_tool->node->sfFloat.setValue(3);
        ToolHarness::pump();
        QVERIFY(m_calls.isEmpty());
        m_tool->node->sfDouble.setValue(3);
        ToolHarness::pump();
        QCOMPARE(m_calls, QStringList(QStringLiteral("E updateFromField")));
    }

    void dyingFieldLeavesTheEditorAlone()
    {
        auto field = std::make_unique<NxSFFloat>(nullptr, nullptr);
        EditorRun run(*m_editor, *field);
        m_calls.clear();
        field->setValue(3);
        field.reset();
        ToolHarness::pump();
        QVERIFY(m_calls.isEmpty());
        QVERIFY(m_editor->getFrame()->isVisible());
    }

    void loadAfterUnloadFollowsAgain()
    {
        m_editor->load();
        m_editor->unload();
        EditorRun run(*m_editor, m_tool->node->sfFloat);
        m_calls.clear();
        m_tool->node->sfFloat.setValue(3);
        ToolHarness::pump();
        QCOMPARE(m_calls, QStringList(QStringLiteral("E updateFromField")));
    }

    void virtualOperationsStandInTheirOrder()
    {
        const auto first = virtualSlot(&OrvEditor::getWidget);
        QCOMPARE(virtualSlot(&OrvFieldEditors::setField), first + 1);
        QCOMPARE(virtualSlot(&OrvFieldEditors::updateFromField), first + 2);
        QCOMPARE(virtualSlot(&OrvFieldEditors::setRefreshEnabled), first + 3);
        QCOMPARE(virtualSlot(&OrvFieldEditors::swapRows), first + 4);
        QCOMPARE(virtualSlot(&OrvFieldEditors::reservedRowOperation), first + 5);
        QCOMPARE(virtualSlot(&OrvFieldEditors::setCellValue), first + 6);
        QCOMPARE(virtualSlot(&OrvFieldEditors::setRowColor), first + 7);
        QCOMPARE(virtualSlot(&OrvFieldEditors::applyChanges), first + 8);
    }

private:
    std::unique_ptr<ToolHarness> m_tool;
    QStringList m_calls;
    std::unique_ptr<RecordingEditor> m_editor;
};

QTEST_MAIN(TestOrvFieldEditors)
#include "tst_OrvFieldEditors.moc"

#include "plugin/FieldEditors/SFWidgets/NumericEditorCase.h"

/// Typing into the line of the six numeric editors.
class TestNumericEditorLines : public NumericEditorCase {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(ToolHarness::noWidgetIsLeft()); }

    void typingAloneWritesNothing_data() { editors(); }

    void typingAloneWritesNothing()
    {
        NumericEditorRun run(type(), QStringLiteral("2"));
        run.driver.type(QStringLiteral("5"));
        QCOMPARE(run.fieldText(), QStringLiteral("2"));
        QCOMPARE(run.pushed(), 0);
    }

    void returnWritesTwiceAheadOfTheRefresh_data() { editors(); }

    void returnWritesTwiceAheadOfTheRefresh()
    {
        NumericEditorRun run(type(), QStringLiteral("2"));
        run.driver.typeAndReturn(QStringLiteral("5"));
        QCOMPARE(run.fieldText(), QStringLiteral("5"));
        QCOMPARE(run.pushed(), 2);
        QCOMPARE(run.position(), 5 * positionsOfOne());
    }

    void returnWritesNothingAfterTheRefresh_data() { editors(); }

    void returnWritesNothingAfterTheRefresh()
    {
        NumericEditorRun run(type(), QStringLiteral("2"));
        run.driver.typeAndReturn(QStringLiteral("5"));
        ToolHarness::pump();
        QCOMPARE(run.lineText(), shown(QStringLiteral("5")));
        QTest::keyClick(run.driver.line, Qt::Key_Return);
        run.driver.slider->setFocus();
        QCOMPARE(run.pushed(), 2);
    }

    void leavingTheLineWritesOnce_data() { editors(); }

    void leavingTheLineWritesOnce()
    {
        NumericEditorRun run(type(), QStringLiteral("2"));
        run.driver.toggleBox(); // it has no say here
        run.driver.typeAndLeave(QStringLiteral("5"));
        QCOMPARE(run.fieldText(), QStringLiteral("5"));
        QCOMPARE(run.pushed(), 1);
        ToolHarness::pump();
        run.driver.line->setFocus();
        run.driver.slider->setFocus();
        QCOMPARE(run.pushed(), 1);
    }

    void typingTheSameValueAgainWritesIt_data() { editors(); }

    void typingTheSameValueAgainWritesIt()
    {
        NumericEditorRun run(type(), QStringLiteral("2"));
        run.driver.typeAndLeave(QStringLiteral("2"));
        QCOMPARE(run.fieldText(), QStringLiteral("2"));
        QCOMPARE(run.pushed(), 1);
    }

    void unappliedTextCountsAsEdited_data() { editors(); }

    void unappliedTextCountsAsEdited()
    {
        NumericEditorRun run(type(), QStringLiteral("2"));
        QVERIFY(!run.editor->edited());
        run.editor->setFocusLeaveEvent();
        QCOMPARE(run.pushed(), 0);
        run.driver.type(QStringLiteral("5"));
        QVERIFY(run.editor->edited());
        run.editor->setFocusLeaveEvent();
        QCOMPARE(run.pushed(), 1);
    }

    void undoOfATypedValueKeepsIt_data() { editors(); }

    void undoOfATypedValueKeepsIt()
    {
        NumericEditorRun run(type(), QStringLiteral("2"));
        run.driver.typeAndLeave(QStringLiteral("5"));
        QCOMPARE(run.pushed(), 1);
        run.command(0).undo();
        QCOMPARE(run.fieldText(), QStringLiteral("5"));
        run.command(0).redo();
        QCOMPARE(run.fieldText(), QStringLiteral("5"));
    }
};

QTEST_MAIN(TestNumericEditorLines)
#include "tst_NumericEditorLines.moc"

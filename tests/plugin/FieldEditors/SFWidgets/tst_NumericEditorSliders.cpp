#include "plugin/FieldEditors/SFWidgets/NumericEditorCase.h"

/// The slider of the six numeric editors: by mouse, keys and wheel.
class TestNumericEditorSliders : public NumericEditorCase {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(ToolHarness::noWidgetIsLeft()); }

    void pressWritesNothing_data() { editors(); }

    void pressWritesNothing()
    {
        NumericEditorRun run(type(), QStringLiteral("2"));
        run.driver.press();
        run.driver.release(); // the release writes
        QCOMPARE(run.pushed(), 1);
        QCOMPARE(run.fieldText(), QStringLiteral("2"));
        run.driver.press();
        QCOMPARE(run.pushed(), 1);
    }

    void dragWritesEachStepAndTheRelease_data() { editors(); }

    void dragWritesEachStepAndTheRelease()
    {
        NumericEditorRun run(type(), QStringLiteral("2"));
        run.driver.press();
        for (const int value : {3, 4, 6}) {
            run.driver.dragTo(run.driver.slider->minimum() + value * positionsOfOne());
            QCOMPARE(run.fieldText(), QString::number(value));
            QCOMPARE(run.lineText(), shown(QString::number(value)));
        }
        QCOMPARE(run.pushed(), 3);
        run.driver.release();
        QCOMPARE(run.pushed(), 4);
        ToolHarness::pump();
        QCOMPARE(run.lineText(), shown(QStringLiteral("6")));
        QCOMPARE(run.pushed(), 4);
    }

    void dragWithClearedBoxWritesAtRelease_data() { editors(); }

    void dragWithClearedBoxWritesAtRelease()
    {
        NumericEditorRun run(type(), QStringLiteral("2"));
        run.driver.toggleBox();
        run.driver.press();
        run.driver.dragTo(run.driver.slider->minimum() + 3 * positionsOfOne());
        run.driver.dragTo(run.driver.slider->minimum() + 6 * positionsOfOne());
        QCOMPARE(run.lineText(), shown(QStringLiteral("6")));
        QCOMPARE(run.fieldText(), QStringLiteral("2"));
        QCOMPARE(run.pushed(), 0);
        run.driver.release();
        QCOMPARE(run.fieldText(), QStringLiteral("6"));
        QCOMPARE(run.pushed(), 1);
        run.command(0).undo();
        QCOMPARE(run.fieldText(), QStringLiteral("2"));
        run.command(0).redo();
        QCOMPARE(run.fieldText(), QStringLiteral("6"));
    }

    void keyAndWheelWriteLikeOneStep_data() { editors(); }

    void keyAndWheelWriteLikeOneStep()
    {
        NumericEditorRun run(type(), QStringLiteral("2"));
        QTest::keyClick(run.driver.slider, Qt::Key_Right);
        QCOMPARE(run.pushed(), 1);
        QVERIFY(run.fieldText() != QStringLiteral("2"));
        const QString before = run.fieldText();
        run.driver.turnWheelUp();
        QCOMPARE(run.pushed(), 2);
        QVERIFY(run.fieldText() != before);
    }

    void keyAndWheelWithClearedBoxWriteNothing_data() { editors(); }

    void keyAndWheelWithClearedBoxWriteNothing()
    {
        NumericEditorRun run(type(), QStringLiteral("2"));
        run.driver.toggleBox();
        QTest::keyClick(run.driver.slider, Qt::Key_PageUp);
        run.driver.turnWheelUp();
        QVERIFY(run.lineText() != shown(QStringLiteral("2")));
        run.driver.line->setFocus();
        QTest::keyClick(run.driver.line, Qt::Key_Return);
        QCOMPARE(run.fieldText(), QStringLiteral("2"));
        QCOMPARE(run.pushed(), 0);
    }

    void clearedBoxSurvivesAChangeOfField_data() { editors(); }

    void clearedBoxSurvivesAChangeOfField()
    {
        NumericEditorRun run(type(), QStringLiteral("2"));
        run.driver.toggleBox();
        run.deselect();
        run.select(run.field);
        QVERIFY(!run.driver.box->isChecked());
        QTest::keyClick(run.driver.slider, Qt::Key_Right);
        QCOMPARE(run.pushed(), 0);
    }

    void undoOfADragGoesBackToThePress_data() { editors(); }

    void undoOfADragGoesBackToThePress()
    {
        NumericEditorRun run(type(), QStringLiteral("2"));
        run.driver.press();
        run.driver.dragTo(run.driver.slider->minimum() + 3 * positionsOfOne());
        run.driver.dragTo(run.driver.slider->minimum() + 6 * positionsOfOne());
        run.driver.release();
        run.command(0).undo();
        QCOMPARE(run.fieldText(), QStringLiteral("2"));
        ToolHarness::pump();
        QCOMPARE(run.lineText(), shown(QStringLiteral("2")));
        run.command(0).redo();
        QCOMPARE(run.fieldText(), QStringLiteral("3"));
        QCOMPARE(run.pushed(), 3);
    }

    void undoOfLaterStepsKeepsWhatTheyWrote_data() { editors(); }

    void undoOfLaterStepsKeepsWhatTheyWrote()
    {
        NumericEditorRun run(type(), QStringLiteral("2"));
        run.driver.press();
        run.driver.dragTo(run.driver.slider->minimum() + 3 * positionsOfOne());
        run.driver.dragTo(run.driver.slider->minimum() + 6 * positionsOfOne());
        run.driver.release();
        for (const int later : {1, 2}) {
            run.set(QStringLiteral("9"));
            run.command(later).undo();
            QCOMPARE(run.fieldText(), QStringLiteral("6"));
        }
    }

    void undoOfAKeyOrWheelKeepsTheValue_data() { editors(); }

    void undoOfAKeyOrWheelKeepsTheValue()
    {
        NumericEditorRun run(type(), QStringLiteral("2"));
        QTest::keyClick(run.driver.slider, Qt::Key_PageUp);
        run.driver.turnWheelUp();
        QCOMPARE(run.pushed(), 2);
        const QString last = run.fieldText();
        run.command(1).undo();
        QCOMPARE(run.fieldText(), last);
        run.command(0).undo();
        QVERIFY(run.fieldText() != QStringLiteral("2"));
    }

    void historyTakesAWholeDragBack_data() { editors(); }

    void historyTakesAWholeDragBack()
    {
        NumericEditorRun run(type(), QStringLiteral("2"));
        run.driver.press();
        run.driver.dragTo(run.driver.slider->minimum() + 3 * positionsOfOne());
        run.driver.dragTo(run.driver.slider->minimum() + 6 * positionsOfOne());
        run.driver.release();
        run.services().undo();
        QCOMPARE(run.fieldText(), QStringLiteral("2"));
        ToolHarness::pump();
        QCOMPARE(run.lineText(), shown(QStringLiteral("2")));
        run.services().redo();
        QCOMPARE(run.fieldText(), QStringLiteral("6"));
    }
};

QTEST_MAIN(TestNumericEditorSliders)
#include "tst_NumericEditorSliders.moc"

#include "plugin/FieldEditors/SFWidgets/NumericEditorRun.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

/// What the six numeric editors have in common.
class tst_NumericEditors : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void editorBearsItsNames_data() { editors(); }
    void editorBearsItsNames();
    void editAreaIsTheSlider_data() { editors(); }
    void editAreaIsTheSlider();
    void valueIsShownWithoutACommand_data() { editors(); }
    void valueIsShownWithoutACommand();
    void outsideChangeIsFollowedWithoutACommand_data() { editors(); }
    void outsideChangeIsFollowedWithoutACommand();
    void changeWhileIdleIsReadAtTheNextActivation_data() { editors(); }
    void changeWhileIdleIsReadAtTheNextActivation();

    void pressWritesNothing_data() { editors(); }
    void pressWritesNothing();
    void dragWritesEachStepAndTheRelease_data() { editors(); }
    void dragWritesEachStepAndTheRelease();
    void dragWithClearedBoxWritesAtRelease_data() { editors(); }
    void dragWithClearedBoxWritesAtRelease();
    void keyAndWheelWriteLikeOneStep_data() { editors(); }
    void keyAndWheelWriteLikeOneStep();
    void keyAndWheelWithClearedBoxWriteNothing_data() { editors(); }
    void keyAndWheelWithClearedBoxWriteNothing();
    void clearedBoxSurvivesAChangeOfField_data() { editors(); }
    void clearedBoxSurvivesAChangeOfField();

    void undoOfADragGoesBackToThePress_data() { editors(); }
    void undoOfADragGoesBackToThePress();
    void undoOfLaterStepsKeepsWhatTheyWrote_data() { editors(); }
    void undoOfLaterStepsKeepsWhatTheyWrote();
    void undoOfATypedValueKeepsIt_data() { editors(); }
    void undoOfATypedValueKeepsIt();
    void undoOfAKeyOrWheelKeepsTheValue_data() { editors(); }
    void undoOfAKeyOrWheelKeepsTheValue();
    void historyTakesAWholeDragBack_data() { editors(); }
    void historyTakesAWholeDragBack();

    void typingAloneWritesNothing_data() { editors(); }
    void typingAloneWritesNothing();
    void returnWritesTwiceAheadOfTheRefresh_data() { editors(); }
    void returnWritesTwiceAheadOfTheRefresh();
    void returnWritesNothingAfterTheRefresh_data() { editors(); }
    void returnWritesNothingAfterTheRefresh();
    void leavingTheLineWritesOnce_data() { editors(); }
    void leavingTheLineWritesOnce();
    void typingTheSameValueAgainWritesIt_data() { editors(); }
    void typingTheSameValueAgainWritesIt();
    void unappliedTextCountsAsEdited_data() { editors(); }
    void unappliedTextCountsAsEdited();

    void defaultButtonWritesTheDefault_data() { editors(); }
    void defaultButtonWritesTheDefault();
    void ignoreButtonSetsTheFlag_data() { editors(); }
    void ignoreButtonSetsTheFlag();
    void editorWithoutAFieldWritesNothing_data() { editors(); }
    void editorWithoutAFieldWritesNothing();
    void nullFieldWritesNothing_data() { editors(); }
    void nullFieldWritesNothing();

private:
    static void editors();
    static QString type()
    {
        QFETCH(QString, type);
        return type;
    }
};

namespace {

/// A float shows six decimals, all others no more than they need.
QString shown(const QString& value)
{
    QFETCH(QString, type);
    return type == QLatin1String("SFFloat") ? value + QLatin1String(".000000") : value;
}

/// How many positions a step of one is: real sliders have a hundred from 0 to 10, integer ones from 0 to 100.
int positionsOfOne()
{
    QFETCH(QString, type);
    return type == QLatin1String("SFFloat") || type == QLatin1String("SFDouble") ? 10 : 1;
}

} // namespace

void tst_NumericEditors::cleanup()
{
    QVERIFY(ToolHarness::noWidgetIsLeft());
}

void tst_NumericEditors::editors()
{
    QTest::addColumn<QString>("type");
    for (const char* type : {"SFFloat", "SFDouble", "SFInt32", "SFShort", "SFUInt32", "SFUShort"})
        QTest::newRow(type) << QString::fromLatin1(type);
}

void tst_NumericEditors::editorBearsItsNames()
{
    const NumericEditorRun run(type());
    const QString className = QStringLiteral("Dv%1Widget").arg(type());
    QCOMPARE(run.editor->objectName(), className);
    QCOMPARE(QString::fromLatin1(run.editor->metaObject()->className()), className);
    QCOMPARE(run.editor->metaObject()->superClass(), &DvSFieldWidget::staticMetaObject);
    QCOMPARE(QString::fromUtf8(run.editor->getName().toUtf8()), type());
    QVERIFY(run.field->isOfType(run.editor->getHandledType()));
    QVERIFY(run.editor->getHandledType().isDerivedFrom(run.field->getTypeId()));
    const auto* label = run.editor->getFrame()->findChild<QLabel*>(QStringLiteral("m_label"));
    QCOMPARE(label->text(), QStringLiteral("<p align=\"center\">%1</p>").arg(type()));
    QCOMPARE(makeNumericEditor(type(), "mine")->objectName(), QStringLiteral("mine"));
}

void tst_NumericEditors::editAreaIsTheSlider()
{
    const NumericEditorRun run(type());
    QVERIFY(run.editor->getFrame()->findChild<QFrame*>(QStringLiteral("m_editionFrame")) == nullptr);
    const auto* slider = run.editor->getFrame()->findChild<QFrame*>(QStringLiteral("DvSliderFrame"));
    QVERIFY(slider != nullptr);
    QCOMPARE(slider->frameShape(), QFrame().frameShape());
    QCOMPARE(slider->layout()->objectName(), QStringLiteral("orvaneslider"));
    QCOMPARE(slider->layout()->contentsMargins(), QMargins(2, 2, 2, 2));
    QCOMPARE(slider->layout()->spacing(), 4);
}

void tst_NumericEditors::valueIsShownWithoutACommand()
{
    NumericEditorRun run(type(), QStringLiteral("2"));
    QCOMPARE(run.lineText(), shown(QStringLiteral("2")));
    QCOMPARE(run.position(), 2 * positionsOfOne());
    QCOMPARE(run.positions(), 100);
    QVERIFY(run.driver.box->isChecked());
    QCOMPARE(run.fieldText(), QStringLiteral("2"));
    QCOMPARE(run.pushed(), 0);
}

void tst_NumericEditors::outsideChangeIsFollowedWithoutACommand()
{
    NumericEditorRun run(type(), QStringLiteral("2"));
    run.set(QStringLiteral("7"));
    run.set(QStringLiteral("8"));
    ToolHarness::pump();
    QCOMPARE(run.lineText(), shown(QStringLiteral("8")));
    QCOMPARE(run.position(), 8 * positionsOfOne());
    QCOMPARE(run.pushed(), 0);
}

void tst_NumericEditors::changeWhileIdleIsReadAtTheNextActivation()
{
    NumericEditorRun run(type(), QStringLiteral("2"));
    run.deselect();
    run.set(QStringLiteral("7"));
    ToolHarness::pump();
    QCOMPARE(run.lineText(), shown(QStringLiteral("2")));
    run.select(run.field);
    QCOMPARE(run.lineText(), shown(QStringLiteral("7")));
    QCOMPARE(run.pushed(), 0);
}

void tst_NumericEditors::pressWritesNothing()
{
    NumericEditorRun run(type(), QStringLiteral("2"));
    run.driver.press();
    run.driver.release(); // the release writes
    QCOMPARE(run.pushed(), 1);
    QCOMPARE(run.fieldText(), QStringLiteral("2"));
    run.driver.press();
    QCOMPARE(run.pushed(), 1);
}

void tst_NumericEditors::dragWritesEachStepAndTheRelease()
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

void tst_NumericEditors::dragWithClearedBoxWritesAtRelease()
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

void tst_NumericEditors::keyAndWheelWriteLikeOneStep()
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

void tst_NumericEditors::keyAndWheelWithClearedBoxWriteNothing()
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

void tst_NumericEditors::clearedBoxSurvivesAChangeOfField()
{
    NumericEditorRun run(type(), QStringLiteral("2"));
    run.driver.toggleBox();
    run.deselect();
    run.select(run.field);
    QVERIFY(!run.driver.box->isChecked());
    QTest::keyClick(run.driver.slider, Qt::Key_Right);
    QCOMPARE(run.pushed(), 0);
}

void tst_NumericEditors::undoOfADragGoesBackToThePress()
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

void tst_NumericEditors::undoOfLaterStepsKeepsWhatTheyWrote()
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

void tst_NumericEditors::undoOfATypedValueKeepsIt()
{
    NumericEditorRun run(type(), QStringLiteral("2"));
    run.driver.typeAndLeave(QStringLiteral("5"));
    QCOMPARE(run.pushed(), 1);
    run.command(0).undo();
    QCOMPARE(run.fieldText(), QStringLiteral("5"));
    run.command(0).redo();
    QCOMPARE(run.fieldText(), QStringLiteral("5"));
}

void tst_NumericEditors::undoOfAKeyOrWheelKeepsTheValue()
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

void tst_NumericEditors::historyTakesAWholeDragBack()
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

void tst_NumericEditors::typingAloneWritesNothing()
{
    NumericEditorRun run(type(), QStringLiteral("2"));
    run.driver.type(QStringLiteral("5"));
    QCOMPARE(run.fieldText(), QStringLiteral("2"));
    QCOMPARE(run.pushed(), 0);
}

void tst_NumericEditors::returnWritesTwiceAheadOfTheRefresh()
{
    NumericEditorRun run(type(), QStringLiteral("2"));
    run.driver.typeAndReturn(QStringLiteral("5"));
    QCOMPARE(run.fieldText(), QStringLiteral("5"));
    QCOMPARE(run.pushed(), 2);
    QCOMPARE(run.position(), 5 * positionsOfOne());
}

void tst_NumericEditors::returnWritesNothingAfterTheRefresh()
{
    NumericEditorRun run(type(), QStringLiteral("2"));
    run.driver.typeAndReturn(QStringLiteral("5"));
    ToolHarness::pump();
    QCOMPARE(run.lineText(), shown(QStringLiteral("5")));
    QTest::keyClick(run.driver.line, Qt::Key_Return);
    run.driver.slider->setFocus();
    QCOMPARE(run.pushed(), 2);
}

void tst_NumericEditors::leavingTheLineWritesOnce()
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

void tst_NumericEditors::typingTheSameValueAgainWritesIt()
{
    NumericEditorRun run(type(), QStringLiteral("2"));
    run.driver.typeAndLeave(QStringLiteral("2"));
    QCOMPARE(run.fieldText(), QStringLiteral("2"));
    QCOMPARE(run.pushed(), 1);
}

void tst_NumericEditors::unappliedTextCountsAsEdited()
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

void tst_NumericEditors::defaultButtonWritesTheDefault()
{
    NumericEditorRun run(type(), QStringLiteral("2"));
    QTest::mouseClick(&run.button("m_defaultButton"), Qt::LeftButton);
    QVERIFY(run.field->isDefault());
    QCOMPARE(run.pushed(), 1);
    ToolHarness::pump();
    QCOMPARE(run.lineText(), shown(run.fieldText()));
    run.command(0).undo();
    QVERIFY(run.field->isDefault());
}

void tst_NumericEditors::ignoreButtonSetsTheFlag()
{
    NumericEditorRun run(type(), QStringLiteral("2"));
    QPushButton& button = run.button("m_ignoreButton");
    QTest::mouseClick(&button, Qt::LeftButton);
    QVERIFY(run.field->isIgnored());
    QCOMPARE(run.pushed(), 1);
    run.command(0).undo();
    QVERIFY(!run.field->isIgnored());
    ToolHarness::pump();
    QVERIFY(!button.isChecked());
    run.command(0).redo();
    ToolHarness::pump();
    QVERIFY(button.isChecked());
    QCOMPARE(run.pushed(), 1);
}

void tst_NumericEditors::editorWithoutAFieldWritesNothing()
{
    NumericEditorRun run(type());
    run.editor->show();
    run.editor->updateFromField();
    run.editor->applyChanges();
    run.editor->setCommandValue();
    QVERIFY(!run.editor->edited());
    run.driver.press();
    run.driver.dragTo(run.driver.slider->maximum());
    run.driver.release();
    run.driver.typeAndReturn(QStringLiteral("5"));
    QTest::keyClick(run.driver.slider, Qt::Key_Left);
    QCOMPARE(run.pushed(), 0);
}

void tst_NumericEditors::nullFieldWritesNothing()
{
    NumericEditorRun run(type(), QStringLiteral("2"));
    run.editor->setField(nullptr);
    run.editor->updateFromField();
    run.driver.typeAndReturn(QStringLiteral("5"));
    QTest::keyClick(run.driver.slider, Qt::Key_Left);
    QCOMPARE(run.fieldText(), QStringLiteral("2"));
    QCOMPARE(run.pushed(), 0);
}

QTEST_MAIN(tst_NumericEditors)
#include "tst_NumericEditors.moc"

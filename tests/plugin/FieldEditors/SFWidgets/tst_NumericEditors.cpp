#include "plugin/FieldEditors/SFWidgets/NumericEditorCase.h"

#include <QLabel>
#include <QPushButton>

/// Names, looks and buttons that the six numeric editors have in common.
class TestNumericEditors : public NumericEditorCase {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(ToolHarness::noWidgetIsLeft()); }

    void editorBearsItsNames_data() { editors(); }

    void editorBearsItsNames()
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

    void editAreaIsTheSlider_data() { editors(); }

    void editAreaIsTheSlider()
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

    void valueIsShownWithoutACommand_data() { editors(); }

    void valueIsShownWithoutACommand()
    {
        NumericEditorRun run(type(), QStringLiteral("2"));
        QCOMPARE(run.lineText(), shown(QStringLiteral("2")));
        QCOMPARE(run.position(), 2 * positionsOfOne());
        QCOMPARE(run.positions(), 100);
        QVERIFY(run.driver.box->isChecked());
        QCOMPARE(run.fieldText(), QStringLiteral("2"));
        QCOMPARE(run.pushed(), 0);
    }

    void outsideChangeIsFollowedWithoutACommand_data() { editors(); }

    void outsideChangeIsFollowedWithoutACommand()
    {
        NumericEditorRun run(type(), QStringLiteral("2"));
        run.set(QStringLiteral("7"));
        run.set(QStringLiteral("8"));
        ToolHarness::pump();
        QCOMPARE(run.lineText(), shown(QStringLiteral("8")));
        QCOMPARE(run.position(), 8 * positionsOfOne());
        QCOMPARE(run.pushed(), 0);
    }

    void changeWhileIdleIsReadAtTheNextActivation_data() { editors(); }

    void changeWhileIdleIsReadAtTheNextActivation()
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

    void defaultButtonWritesTheDefault_data() { editors(); }

    void defaultButtonWritesTheDefault()
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

    void ignoreButtonSetsTheFlag_data() { editors(); }

    void ignoreButtonSetsTheFlag()
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

    void editorWithoutAFieldWritesNothing_data() { editors(); }

    void editorWithoutAFieldWritesNothing()
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

    void nullFieldWritesNothing_data() { editors(); }

    void nullFieldWritesNothing()
    {
        NumericEditorRun run(type(), QStringLiteral("2"));
        run.editor->setField(nullptr);
        run.editor->updateFromField();
        run.driver.typeAndReturn(QStringLiteral("5"));
        QTest::keyClick(run.driver.slider, Qt::Key_Left);
        QCOMPARE(run.fieldText(), QStringLiteral("2"));
        QCOMPARE(run.pushed(), 0);
    }
};

QTEST_MAIN(TestNumericEditors)
#include "tst_NumericEditors.moc"

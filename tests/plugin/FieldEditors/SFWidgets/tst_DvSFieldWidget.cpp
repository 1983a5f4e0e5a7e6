#include "VirtualSlot.h"
#include "plugin/EditorHarness.h"
#include "plugin/PlainEditor.h"

#include <QMetaMethod>
#include <QPushButton>

#include <memory>

class TestDvSFieldWidget : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tool = std::make_unique<ToolHarness>(); }

    void cleanup()
    {
        m_tool.reset();
        QVERIFY(ToolHarness::noWidgetIsLeft());
    }

    void objectNameIsTheGivenOne()
    {
        QCOMPARE(PlainEditor("Mine").objectName(), QStringLiteral("Mine"));
        QCOMPARE(PlainEditor(1, "Mine").objectName(), QStringLiteral("Mine"));
    }

    void objectNameWithoutANameDependsOnTheConstructor()
    {
        QCOMPARE(PlainEditor(nullptr).objectName(), QString());
        QCOMPARE(PlainEditor(1, nullptr).objectName(), QStringLiteral("DvSFieldWidget"));
    }

    void ignoreButtonShowsTheFlag()
    {
        m_tool->node->sfFloat.setIgnored(1);
        PlainEditor editor;
        EditorRun run(editor, m_tool->node->sfFloat);
        QVERIFY(run.find<QPushButton>("m_ignoreButton")->isChecked());
        run.select(&m_tool->node->sfDouble);
        QVERIFY(!run.find<QPushButton>("m_ignoreButton")->isChecked());
    }

    void flagSetElsewhereMovesTheButtonWithoutACommand()
    {
        PlainEditor editor;
        const EditorRun run(editor, m_tool->node->sfFloat);
        auto* const button = run.find<QPushButton>("m_ignoreButton");
        m_tool->node->sfFloat.setIgnored(1);
        QVERIFY(!button->isChecked());
        ToolHarness::pump();
        QVERIFY(button->isChecked());
        QCOMPARE(m_tool->services.pushed, 0);
    }

    void ignoreButtonSetsTheFlagAndPushes()
    {
        NxField& field = m_tool->node->sfFloat;
        PlainEditor editor;
        const EditorRun run(editor, field);
        auto* const button = run.find<QPushButton>("m_ignoreButton");
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(field.isIgnored());
        QCOMPARE(m_tool->services.pushed, 1);
        m_tool->services.undo();
        ToolHarness::pump();
        QVERIFY(!field.isIgnored());
        QVERIFY(!button->isChecked());
        m_tool->services.redo();
        ToolHarness::pump();
        QVERIFY(field.isIgnored());
        QVERIFY(button->isChecked());
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(!field.isIgnored());
        QCOMPARE(m_tool->services.pushed, 2);
    }

    void defaultButtonRestoresTheDefaultAndPushes()
    {
        NxField& field = m_tool->node->sfFloat;
        const QString defaultText = ToolHarness::textOf(field);
        QVERIFY(field.set("12.5"));
        PlainEditor editor;
        const EditorRun run(editor, field);
        QTest::mouseClick(run.find<QPushButton>("m_defaultButton"), Qt::LeftButton);
        QCOMPARE(ToolHarness::textOf(field), defaultText);
        QCOMPARE(m_tool->services.pushed, 1);
    }

    void defaultButtonPushesAlsoAtTheDefault()
    {
        PlainEditor editor;
        const EditorRun run(editor, m_tool->node->sfFloat);
        QTest::mouseClick(run.find<QPushButton>("m_defaultButton"), Qt::LeftButton);
        QTest::mouseClick(run.find<QPushButton>("m_defaultButton"), Qt::LeftButton);
        QCOMPARE(m_tool->services.pushed, 2);
    }

    void undoOfTheDefaultLeavesTheDefault()
    {
        NxField& field = m_tool->node->sfFloat;
        const QString defaultText = ToolHarness::textOf(field);
        QVERIFY(field.set("12.5"));
        PlainEditor editor;
        const EditorRun run(editor, field);
        QTest::mouseClick(run.find<QPushButton>("m_defaultButton"), Qt::LeftButton);
        QVERIFY(m_tool->services.canUndo());
        m_tool->services.undo();
        QCOMPARE(ToolHarness::textOf(field), defaultText);
    }

    void buttonsWithoutAFieldDoNothing()
    {
        PlainEditor editor;
        const EditorRun run(editor);
        editor.updateFromField();
        QTest::mouseClick(run.find<QPushButton>("m_defaultButton"), Qt::LeftButton);
        QTest::mouseClick(run.find<QPushButton>("m_ignoreButton"), Qt::LeftButton);
        QCOMPARE(m_tool->services.pushed, 0);
    }

    void defaultButtonWithoutAContainerDoesNothing()
    {
        NxSFFloat field(nullptr, nullptr);
        field.setValue(5);
        PlainEditor editor;
        const EditorRun run(editor, field);
        QTest::mouseClick(run.find<QPushButton>("m_defaultButton"), Qt::LeftButton);
        QCOMPARE(field.getValue(), 5.0F);
        QCOMPARE(m_tool->services.pushed, 0);
    }

    void leavingWritesOnlyWhatWasTyped()
    {
        PlainEditor editor;
        editor.setFocusLeaveEvent();
        QCOMPARE(editor.askedForEdits, 1);
        QCOMPARE(editor.applied, 0);
        editor.hasEdits = true;
        editor.setFocusLeaveEvent();
        QCOMPARE(editor.applied, 1);
    }

    void commandValueIsAlwaysWritten()
    {
        PlainEditor editor;
        editor.setCommandValue();
        QCOMPARE(editor.applied, 1);
        QCOMPARE(editor.askedForEdits, 0);
    }

    void slotsStandInTheirOrder()
    {
        QStringList slotNames;
        const QMetaObject& meta = DvSFieldWidget::staticMetaObject;
        for (int index = meta.methodOffset(); index < meta.methodCount(); ++index) {
            QCOMPARE(meta.method(index).methodType(), QMetaMethod::Slot);
            slotNames << QString::fromLatin1(meta.method(index).methodSignature());
        }
        QCOMPARE(slotNames,
            QStringList({QStringLiteral("languageChange()"), QStringLiteral("setCommandValue()"),
                QStringLiteral("setFocusLeaveEvent()"), QStringLiteral("ignoreButtonStateChanged()"),
                QStringLiteral("setDefaultFieldValue()"), QStringLiteral("applyChanges()")}));
    }

    void virtualOperationsStandInTheirOrder()
    {
        const auto last = virtualSlot(&OrvFieldEditors::applyChanges);
        QCOMPARE(virtualSlot(&DvSFieldWidget::edited), last + 1);
        QCOMPARE(virtualSlot(&DvSFieldWidget::languageChange), last + 2);
        QCOMPARE(virtualSlot(&DvSFieldWidget::setCommandValue), last + 3);
        QCOMPARE(virtualSlot(&DvSFieldWidget::setDefaultFieldValue), last + 4);
    }

    void operationsOfListsAreEmpty()
    {
        NxField& field = m_tool->node->sfColor;
        const QString before = ToolHarness::textOf(field);
        PlainEditor editor;
        const EditorRun run(editor, field);
        editor.setRefreshEnabled(false);
        editor.swapRows(0, 1);
        editor.reservedRowOperation();
        editor.setCellValue(0, 0, QStringLiteral("1 1 1"));
        editor.setRowColor(0, VbVec4f(1, 1, 1, 1));
        editor.DvSFieldWidget::applyChanges();
        QCOMPARE(ToolHarness::textOf(field), before);
        QCOMPARE(m_tool->services.pushed, 0);
        field.setIgnored(1);
        ToolHarness::pump();
        QVERIFY(run.find<QPushButton>("m_ignoreButton")->isChecked()); // the refresh isn't held back
    }

    void fieldStaysAfterDeactivation()
    {
        PlainEditor editor;
        const EditorRun run(editor, m_tool->node->sfFloat);
        QCOMPARE(editor.field(), &m_tool->node->sfFloat);
        editor.deactivate();
        QCOMPARE(editor.field(), &m_tool->node->sfFloat);
    }

private:
    std::unique_ptr<ToolHarness> m_tool;
};

QTEST_MAIN(TestDvSFieldWidget)
#include "tst_DvSFieldWidget.moc"

#include "FieldEditors/SFWidgets/DvSFNameWidget.h"
#include "plugin/LineEditorRun.h"
#include "plugin/WriteCounter.h"

#include <QHBoxLayout>
#include <QLabel>

#include <memory>

namespace {

using Run = LineEditorRun<DvSFNameWidget>;

} // namespace

class tst_DvSFNameWidget : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tool = std::make_unique<ToolHarness>(); }
    void cleanup();

    void editorBearsItsNames();
    void lineFillsTheEditArea();
    void valueIsShownWithoutACommand();
    void typingAloneWritesNothing();
    void returnWritesAndPushesOnce();
    void returnPushesACommandEvenWhenUnchanged();
    void leavingAnEditedLineWritesAndPushesOnce();
    void leavingWritesWhatWasTypedEvenWhenUnchanged();
    void leavingAnUntouchedLineWritesAndPushesOnce();
    void finishedEditingIsWrittenWithoutAskingForEdits();
    void emptyTextIsWritten();
    void charactersOfLatin1ReachTheField();
    void charactersOutsideLatin1AreLost();
    void undoKeepsTheValue();
    void otherFieldGoesThroughItsTextForm();
    void refusedTextOfAnotherFieldKeepsItsValue();

    void outsideChangeIsFollowedWithoutACommand();
    void changeWhileIdleIsReadAtTheNextActivation();
    void typedTextCountsAsEditedUntilTheRefresh();
    void defaultButtonWritesTheDefault();
    void ignoreButtonSetsTheFlag();
    void nullFieldWritesNothing();
    void nullFieldIsShownAsNothing();

private:
    NxFieldGallery& node() { return *m_tool->node; }
    int pushed() const { return m_tool->services.pushed; }

    std::unique_ptr<ToolHarness> m_tool;
};

void tst_DvSFNameWidget::cleanup()
{
    m_tool.reset();
    QVERIFY(ToolHarness::noWidgetIsLeft());
}

void tst_DvSFNameWidget::editorBearsItsNames()
{
    Run run;
    QCOMPARE(run.editor.objectName(), QStringLiteral("DvSFNameWidget"));
    QCOMPARE(DvSFNameWidget("mine").objectName(), QStringLiteral("mine"));
    QCOMPARE(run.editor.metaObject()->superClass(), &DvSFieldWidget::staticMetaObject);
    QCOMPARE(run.editor.getName(), VbString("SFName"));
    QVERIFY(run.editor.getHandledType() == NxSFName::getClassTypeId());
    QCOMPARE(run.editor.getFrame()->findChild<QLabel*>(QStringLiteral("m_label"))->text(),
        QStringLiteral("<p align=\"center\">SFName</p>"));
}

void tst_DvSFNameWidget::lineFillsTheEditArea()
{
    const Run run;
    auto* const area = run.editor.getFrame()->findChild<QFrame*>(QStringLiteral("m_editionFrame"));
    QVERIFY(area != nullptr);
    QCOMPARE(run.line->parentWidget(), area);
    QCOMPARE(run.line->alignment(), Qt::AlignLeft);
    const auto* layout = qobject_cast<QHBoxLayout*>(area->layout());
    QCOMPARE(layout->count(), 1);
    QCOMPARE(layout->stretch(0), 1);
}

void tst_DvSFNameWidget::valueIsShownWithoutACommand()
{
    node().sfName.setValue(VbName("abc"));
    const Run run(node().sfName);
    QCOMPARE(run.line->text(), QStringLiteral("abc"));
    QCOMPARE(pushed(), 0);
}

void tst_DvSFNameWidget::typingAloneWritesNothing()
{
    NxSFName& field = node().sfName;
    field.setValue(VbName("abc"));
    Run run(field);
    const WriteCounter counter(field);
    run.type(QStringLiteral("xyz"));
    QCOMPARE(field.getValue(), VbName("abc"));
    QCOMPARE(counter.writes, 0);
    QCOMPARE(pushed(), 0);
}

void tst_DvSFNameWidget::returnWritesAndPushesOnce()
{
    NxSFName& field = node().sfName;
    Run run(field);
    const WriteCounter counter(field);
    run.type(QStringLiteral("xyz"));
    run.pressReturn();
    QCOMPARE(field.getValue(), VbName("xyz"));
    QCOMPARE(counter.writes, 1);
    QCOMPARE(pushed(), 1);
}

void tst_DvSFNameWidget::returnPushesACommandEvenWhenUnchanged()
{
    NxSFName& field = node().sfName;
    field.setValue(VbName("abc"));
    Run run(field);
    const WriteCounter counter(field);
    run.pressReturn();
    run.pressReturn();
    QCOMPARE(field.getValue(), VbName("abc"));
    QCOMPARE(counter.writes, 2);
    QCOMPARE(pushed(), 2);
}

void tst_DvSFNameWidget::leavingAnEditedLineWritesAndPushesOnce()
{
    NxSFName& field = node().sfName;
    Run run(field);
    run.type(QStringLiteral("xyz"));
    run.leave();
    QCOMPARE(field.getValue(), VbName("xyz"));
    QCOMPARE(pushed(), 1);
}

void tst_DvSFNameWidget::leavingWritesWhatWasTypedEvenWhenUnchanged()
{
    NxSFName& field = node().sfName;
    field.setValue(VbName("a"));
    Run run(field);
    run.type(QStringLiteral("a"));
    run.leave();
    QCOMPARE(field.getValue(), VbName("a"));
    QCOMPARE(pushed(), 1);
}

void tst_DvSFNameWidget::leavingAnUntouchedLineWritesAndPushesOnce()
{
    NxSFName& field = node().sfName;
    field.setValue(VbName("abc"));
    Run run(field);
    const WriteCounter counter(field);
    run.enter();
    run.leave();
    QCOMPARE(field.getValue(), VbName("abc"));
    QCOMPARE(counter.writes, 1);
    QCOMPARE(pushed(), 1);
}

void tst_DvSFNameWidget::finishedEditingIsWrittenWithoutAskingForEdits()
{
    Run run(node().sfName);
    QVERIFY(!run.editor.edited());
    Q_EMIT run.line->editingFinished();
    QCOMPARE(pushed(), 1);
}

void tst_DvSFNameWidget::emptyTextIsWritten()
{
    NxSFName& field = node().sfName;
    field.setValue(VbName("abc"));
    Run run(field);
    run.type(QString());
    run.pressReturn();
    QCOMPARE(field.getValue(), VbName(""));
    QCOMPARE(pushed(), 1);
    m_tool->services.undo();
    QCOMPARE(field.getValue(), VbName(""));
}

void tst_DvSFNameWidget::charactersOfLatin1ReachTheField()
{
    NxSFName& field = node().sfName;
    Run run(field);
    run.line->setText(QString::fromUtf8("caf\xC3\xA9"));
    run.pressReturn();
    QCOMPARE(field.getValue(), VbName("caf\xE9"));
    ToolHarness::pump();
    QCOMPARE(run.line->text(), QString::fromUtf8("caf\xC3\xA9"));
}

void tst_DvSFNameWidget::charactersOutsideLatin1AreLost()
{
    NxSFName& field = node().sfName;
    Run run(field);
    run.line->setText(QString::fromUtf8("a\xE2\x82\xAC"
                                        "b"));
    run.pressReturn();
    QCOMPARE(field.getValue(), VbName("a?b"));
    ToolHarness::pump();
    QCOMPARE(run.line->text(), QStringLiteral("a?b"));
}

void tst_DvSFNameWidget::undoKeepsTheValue()
{
    NxSFName& field = node().sfName;
    field.setValue(VbName("abc"));
    Run run(field);
    run.type(QStringLiteral("xyz"));
    run.pressReturn();
    m_tool->services.undo();
    QCOMPARE(field.getValue(), VbName("xyz"));
    m_tool->services.redo();
    QCOMPARE(field.getValue(), VbName("xyz"));
}

void tst_DvSFNameWidget::otherFieldGoesThroughItsTextForm()
{
    NxSFVec3s& field = node().sfVec3s;
    QVERIFY(field.set("1 2 3"));
    Run run(field);
    QCOMPARE(run.line->text(), QStringLiteral("1 2 3"));
    run.type(QStringLiteral("4 5 6"));
    run.pressReturn();
    QCOMPARE(ToolHarness::textOf(field), QStringLiteral("4 5 6"));
    QCOMPARE(pushed(), 1);
}

void tst_DvSFNameWidget::refusedTextOfAnotherFieldKeepsItsValue()
{
    NxSFVec3s& field = node().sfVec3s;
    QVERIFY(field.set("1 2 3"));
    Run run(field);
    run.type(QStringLiteral("4 5"));
    run.pressReturn();
    QCOMPARE(ToolHarness::textOf(field), QStringLiteral("1 2 3"));
    QCOMPARE(run.line->text(), QStringLiteral("4 5"));
    QCOMPARE(pushed(), 1);
    field.setIgnored(1); // any notification will do
    ToolHarness::pump();
    QCOMPARE(run.line->text(), QStringLiteral("1 2 3"));
}

void tst_DvSFNameWidget::outsideChangeIsFollowedWithoutACommand()
{
    NxSFName& field = node().sfName;
    const Run run(field);
    field.setValue(VbName("abc"));
    QCOMPARE(run.line->text(), QString());
    ToolHarness::pump();
    QCOMPARE(run.line->text(), QStringLiteral("abc"));
    QCOMPARE(pushed(), 0);
}

void tst_DvSFNameWidget::changeWhileIdleIsReadAtTheNextActivation()
{
    NxSFName& field = node().sfName;
    Run run(field);
    run.editor.deactivate();
    field.setValue(VbName("abc"));
    ToolHarness::pump();
    QCOMPARE(run.line->text(), QString());
    run.select(&field);
    QCOMPARE(run.line->text(), QStringLiteral("abc"));
    QCOMPARE(pushed(), 0);
}

void tst_DvSFNameWidget::typedTextCountsAsEditedUntilTheRefresh()
{
    Run run(node().sfName);
    QVERIFY(!run.editor.edited());
    run.type(QStringLiteral("x"));
    QVERIFY(run.editor.edited());
    run.pressReturn();
    ToolHarness::pump();
    QVERIFY(!run.editor.edited());
}

void tst_DvSFNameWidget::defaultButtonWritesTheDefault()
{
    NxSFName& field = node().sfName;
    field.setValue(VbName("abc"));
    Run run(field);
    run.click("m_defaultButton");
    QVERIFY(field.isDefault());
    QCOMPARE(pushed(), 1);
    ToolHarness::pump();
    QCOMPARE(run.line->text(), QString());
    m_tool->services.undo();
    QVERIFY(field.isDefault());
}

void tst_DvSFNameWidget::ignoreButtonSetsTheFlag()
{
    NxSFName& field = node().sfName;
    Run run(field);
    run.click("m_ignoreButton");
    QVERIFY(field.isIgnored());
    QCOMPARE(pushed(), 1);
    m_tool->services.undo();
    QVERIFY(!field.isIgnored());
    ToolHarness::pump();
    QVERIFY(!run.ignoreIsChecked());
}

void tst_DvSFNameWidget::nullFieldWritesNothing()
{
    NxSFName& field = node().sfName;
    Run run(field);
    run.editor.setField(nullptr);
    run.type(QStringLiteral("x"));
    run.pressReturn();
    run.editor.applyChanges();
    run.click("m_defaultButton");
    run.click("m_ignoreButton");
    QCOMPARE(field.getValue(), VbName(""));
    QCOMPARE(pushed(), 0);
}

void tst_DvSFNameWidget::nullFieldIsShownAsNothing()
{
    NxSFName& field = node().sfName;
    field.setValue(VbName("abc"));
    Run run(field);
    run.editor.setField(nullptr);
    run.editor.updateFromField();
    QCOMPARE(run.line->text(), QString());
}

QTEST_MAIN(tst_DvSFNameWidget)
#include "tst_DvSFNameWidget.moc"

#include "FieldEditors/SFWidgets/DvSFStringWidget.h"
#include "plugin/LineEditorRun.h"
#include "plugin/WriteCounter.h"

#include <QHBoxLayout>
#include <QLabel>

#include <memory>

namespace {

using Run = LineEditorRun<DvSFStringWidget>;

} // namespace

class tst_DvSFStringWidget : public QObject {
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
    void charactersOfAllPlanesReachTheField();
    void quotesAndBlanksArePlainCharacters();
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

void tst_DvSFStringWidget::cleanup()
{
    m_tool.reset();
    QVERIFY(ToolHarness::noWidgetIsLeft());
}

void tst_DvSFStringWidget::editorBearsItsNames()
{
    Run run;
    QCOMPARE(run.editor.objectName(), QStringLiteral("DvSFStringWidget"));
    QCOMPARE(DvSFStringWidget("mine").objectName(), QStringLiteral("mine"));
    QCOMPARE(run.editor.metaObject()->superClass(), &DvSFieldWidget::staticMetaObject);
    QCOMPARE(run.editor.getName(), VbString("SFString"));
    QVERIFY(run.editor.getHandledType() == NxSFString::getClassTypeId());
    QCOMPARE(run.editor.getFrame()->findChild<QLabel*>(QStringLiteral("m_label"))->text(),
        QStringLiteral("<p align=\"center\">SFString</p>"));
}

void tst_DvSFStringWidget::lineFillsTheEditArea()
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

void tst_DvSFStringWidget::valueIsShownWithoutACommand()
{
    node().sfString.setValue(VbString("abc"));
    const Run run(node().sfString);
    QCOMPARE(run.line->text(), QStringLiteral("abc"));
    QCOMPARE(pushed(), 0);
}

void tst_DvSFStringWidget::typingAloneWritesNothing()
{
    NxSFString& field = node().sfString;
    field.setValue(VbString("abc"));
    Run run(field);
    const WriteCounter counter(field);
    run.type(QStringLiteral("xyz"));
    QCOMPARE(field.getValue(), VbString("abc"));
    QCOMPARE(counter.writes, 0);
    QCOMPARE(pushed(), 0);
}

void tst_DvSFStringWidget::returnWritesAndPushesOnce()
{
    NxSFString& field = node().sfString;
    Run run(field);
    const WriteCounter counter(field);
    run.type(QStringLiteral("xyz"));
    run.pressReturn();
    QCOMPARE(field.getValue(), VbString("xyz"));
    QCOMPARE(counter.writes, 1);
    QCOMPARE(pushed(), 1);
}

void tst_DvSFStringWidget::returnPushesACommandEvenWhenUnchanged()
{
    NxSFString& field = node().sfString;
    field.setValue(VbString("abc"));
    Run run(field);
    const WriteCounter counter(field);
    run.pressReturn();
    run.pressReturn();
    QCOMPARE(field.getValue(), VbString("abc"));
    QCOMPARE(counter.writes, 2);
    QCOMPARE(pushed(), 2);
}

void tst_DvSFStringWidget::leavingAnEditedLineWritesAndPushesOnce()
{
    NxSFString& field = node().sfString;
    Run run(field);
    run.type(QStringLiteral("xyz"));
    run.leave();
    QCOMPARE(field.getValue(), VbString("xyz"));
    QCOMPARE(pushed(), 1);
}

void tst_DvSFStringWidget::leavingWritesWhatWasTypedEvenWhenUnchanged()
{
    NxSFString& field = node().sfString;
    field.setValue(VbString("a"));
    Run run(field);
    run.type(QStringLiteral("a"));
    run.leave();
    QCOMPARE(field.getValue(), VbString("a"));
    QCOMPARE(pushed(), 1);
}

void tst_DvSFStringWidget::leavingAnUntouchedLineWritesAndPushesOnce()
{
    NxSFString& field = node().sfString;
    field.setValue(VbString("abc"));
    Run run(field);
    const WriteCounter counter(field);
    run.enter();
    run.leave();
    QCOMPARE(field.getValue(), VbString("abc"));
    QCOMPARE(counter.writes, 1);
    QCOMPARE(pushed(), 1);
}

void tst_DvSFStringWidget::finishedEditingIsWrittenWithoutAskingForEdits()
{
    Run run(node().sfString);
    QVERIFY(!run.editor.edited());
    Q_EMIT run.line->editingFinished();
    QCOMPARE(pushed(), 1);
}

void tst_DvSFStringWidget::emptyTextIsWritten()
{
    NxSFString& field = node().sfString;
    field.setValue(VbString("abc"));
    Run run(field);
    run.type(QString());
    run.pressReturn();
    QCOMPARE(field.getValue(), VbString(""));
    QCOMPARE(pushed(), 1);
    m_tool->services.undo();
    QCOMPARE(field.getValue(), VbString(""));
}

void tst_DvSFStringWidget::charactersOfAllPlanesReachTheField()
{
    NxSFString& field = node().sfString;
    Run run(field);
    const QString text = QString::fromUtf8("\xC3\xA9\xE2\x82\xAC\xF0\x9D\x84\x9E");
    run.line->setText(text);
    run.pressReturn();
    QCOMPARE(QString::fromUtf8(field.getValue().toUtf8()), text);
    ToolHarness::pump();
    QCOMPARE(run.line->text(), text);
}

void tst_DvSFStringWidget::quotesAndBlanksArePlainCharacters()
{
    NxSFString& field = node().sfString;
    Run run(field);
    const QString text = QStringLiteral(" \"a\" \\n ");
    run.type(text);
    run.pressReturn();
    QCOMPARE(QString::fromUtf8(field.getValue().toUtf8()), text);
    ToolHarness::pump();
    QCOMPARE(run.line->text(), text);
}

void tst_DvSFStringWidget::undoKeepsTheValue()
{
    NxSFString& field = node().sfString;
    field.setValue(VbString("abc"));
    Run run(field);
    run.type(QStringLiteral("xyz"));
    run.pressReturn();
    m_tool->services.undo();
    QCOMPARE(field.getValue(), VbString("xyz"));
    m_tool->services.redo();
    QCOMPARE(field.getValue(), VbString("xyz"));
}

void tst_DvSFStringWidget::otherFieldGoesThroughItsTextForm()
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

void tst_DvSFStringWidget::refusedTextOfAnotherFieldKeepsItsValue()
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

void tst_DvSFStringWidget::outsideChangeIsFollowedWithoutACommand()
{
    NxSFString& field = node().sfString;
    const Run run(field);
    field.setValue(VbString("abc"));
    QCOMPARE(run.line->text(), QString());
    ToolHarness::pump();
    QCOMPARE(run.line->text(), QStringLiteral("abc"));
    QCOMPARE(pushed(), 0);
}

void tst_DvSFStringWidget::changeWhileIdleIsReadAtTheNextActivation()
{
    NxSFString& field = node().sfString;
    Run run(field);
    run.editor.deactivate();
    field.setValue(VbString("abc"));
    ToolHarness::pump();
    QCOMPARE(run.line->text(), QString());
    run.select(&field);
    QCOMPARE(run.line->text(), QStringLiteral("abc"));
    QCOMPARE(pushed(), 0);
}

void tst_DvSFStringWidget::typedTextCountsAsEditedUntilTheRefresh()
{
    Run run(node().sfString);
    QVERIFY(!run.editor.edited());
    run.type(QStringLiteral("x"));
    QVERIFY(run.editor.edited());
    run.pressReturn();
    ToolHarness::pump();
    QVERIFY(!run.editor.edited());
}

void tst_DvSFStringWidget::defaultButtonWritesTheDefault()
{
    NxSFString& field = node().sfString;
    field.setValue(VbString("abc"));
    Run run(field);
    run.click("m_defaultButton");
    QVERIFY(field.isDefault());
    QCOMPARE(pushed(), 1);
    ToolHarness::pump();
    QCOMPARE(run.line->text(), QString());
    m_tool->services.undo();
    QVERIFY(field.isDefault());
}

void tst_DvSFStringWidget::ignoreButtonSetsTheFlag()
{
    NxSFString& field = node().sfString;
    Run run(field);
    run.click("m_ignoreButton");
    QVERIFY(field.isIgnored());
    QCOMPARE(pushed(), 1);
    m_tool->services.undo();
    QVERIFY(!field.isIgnored());
    ToolHarness::pump();
    QVERIFY(!run.ignoreIsChecked());
}

void tst_DvSFStringWidget::nullFieldWritesNothing()
{
    NxSFString& field = node().sfString;
    Run run(field);
    run.editor.setField(nullptr);
    run.type(QStringLiteral("x"));
    run.pressReturn();
    run.editor.applyChanges();
    run.click("m_defaultButton");
    run.click("m_ignoreButton");
    QCOMPARE(field.getValue(), VbString(""));
    QCOMPARE(pushed(), 0);
}

void tst_DvSFStringWidget::nullFieldIsShownAsNothing()
{
    NxSFString& field = node().sfString;
    field.setValue(VbString("abc"));
    Run run(field);
    run.editor.setField(nullptr);
    run.editor.updateFromField();
    QCOMPARE(run.line->text(), QString());
}

QTEST_MAIN(tst_DvSFStringWidget)
#include "tst_DvSFStringWidget.moc"

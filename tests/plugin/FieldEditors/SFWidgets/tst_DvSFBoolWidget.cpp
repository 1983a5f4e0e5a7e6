#include "FieldEditors/SFWidgets/DvSFBoolWidget.h"
#include "plugin/EditorHarness.h"
#include "plugin/WriteCounter.h"

#include <QCheckBox>

#include <memory>

class TestDvSFBoolWidget : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tool = std::make_unique<ToolHarness>(); }

    void cleanup()
    {
        m_tool.reset();
        QVERIFY(ToolHarness::noWidgetIsLeft());
    }

    void boxHasItsSizeInTheMiddle()
    {
        DvSFBoolWidget editor;
        const EditorRun run(editor, field());
        const QCheckBox* const box = boxOf(run);
        QCOMPARE(box->text(), QString());
        QCOMPARE(box->minimumSize(), QSize(16, 18));
        QCOMPARE(box->maximumSize(), QSize(16, 18));
        const auto* area = run.find<QFrame>("m_editionFrame");
        QCOMPARE(box->parentWidget(), area);
        QLayout* const row = editor.getFrame()->layout();
        QLayout* const areaRow = row->itemAt(2)->layout();
        for (QLayoutItem* const item : {row->itemAt(1), areaRow->itemAt(1)}) {
            QVERIFY(item->spacerItem() != nullptr);
            QCOMPARE(item->spacerItem()->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum));
        }
        QCOMPARE(areaRow->itemAt(0)->widget(), area);
    }

    void valueIsShownWithoutACommand()
    {
        field().setValue(true);
        DvSFBoolWidget editor;
        const EditorRun run(editor, field());
        QVERIFY(boxOf(run)->isChecked());
        QCOMPARE(pushed(), 0);
    }

    void clickWritesAndPushesOnce()
    {
        DvSFBoolWidget editor;
        const EditorRun run(editor, field());
        const WriteCounter counter(field());
        click(boxOf(run));
        QVERIFY(field().getValue());
        QCOMPARE(counter.writes, 1);
        QCOMPARE(pushed(), 1);
        ToolHarness::pump();
        click(boxOf(run));
        QVERIFY(!field().getValue());
        QCOMPARE(counter.writes, 2);
        QCOMPARE(pushed(), 2);
    }

    void spaceKeyWritesLikeAClick()
    {
        DvSFBoolWidget editor;
        const EditorRun run(editor, field());
        QTest::keyClick(boxOf(run), Qt::Key_Space);
        QVERIFY(field().getValue());
        QCOMPARE(pushed(), 1);
    }

    void undoKeepsTheValue()
    {
        DvSFBoolWidget editor;
        const EditorRun run(editor, field());
        click(boxOf(run));
        m_tool->services.undo();
        QVERIFY(field().getValue());
        m_tool->services.redo();
        QVERIFY(field().getValue());
        ToolHarness::pump();
        QVERIFY(boxOf(run)->isChecked());
        QCOMPARE(pushed(), 1);
    }

    void outsideChangeIsFollowedWithoutACommand()
    {
        DvSFBoolWidget editor;
        const EditorRun run(editor, field());
        field().setValue(true);
        const WriteCounter counter(field());
        ToolHarness::pump();
        QVERIFY(boxOf(run)->isChecked());
        QCOMPARE(counter.writes, 0);
        QCOMPARE(pushed(), 0);
    }

    void changeWhileIdleIsReadAtTheNextActivation()
    {
        DvSFBoolWidget editor;
        EditorRun run(editor, field());
        editor.deactivate();
        field().setValue(true);
        ToolHarness::pump();
        QVERIFY(!boxOf(run)->isChecked());
        run.select(&field());
        QVERIFY(boxOf(run)->isChecked());
        QCOMPARE(pushed(), 0);
    }

    void commandValueIsWrittenUnchanged()
    {
        DvSFBoolWidget editor;
        const EditorRun run(editor, field());
        const WriteCounter counter(field());
        editor.setFocusLeaveEvent(); // there is no text to leave
        QCOMPARE(pushed(), 0);
        editor.setCommandValue();
        QVERIFY(!field().getValue());
        QCOMPARE(counter.writes, 1);
        QCOMPARE(pushed(), 1);
    }

    void nullFieldWritesNothing()
    {
        DvSFBoolWidget editor;
        const EditorRun run(editor, field());
        editor.setField(nullptr);
        editor.updateFromField();
        click(boxOf(run));
        editor.applyChanges();
        QVERIFY(!field().getValue());
        QCOMPARE(pushed(), 0);
    }

private:
    NxSFBool& field() { return m_tool->node->sfBool; }
    int pushed() const { return m_tool->services.pushed; }
    static QCheckBox* boxOf(const EditorRun& run) { return run.find<QCheckBox>("m_box"); }
    static void click(QCheckBox* box) { QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2)); }

    std::unique_ptr<ToolHarness> m_tool;
};

QTEST_MAIN(TestDvSFBoolWidget)
#include "tst_DvSFBoolWidget.moc"

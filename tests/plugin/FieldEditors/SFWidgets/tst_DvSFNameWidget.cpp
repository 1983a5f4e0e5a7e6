#include "FieldEditors/SFWidgets/DvSFNameWidget.h"
#include "plugin/FieldEditors/SFWidgets/LineEditorRun.h"

/// What the editor of names adds to what all editors of text do.
class TestDvSFNameWidget : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_tool = std::make_unique<ToolHarness>();
        m_run = std::make_unique<LineEditorRun>(std::make_unique<DvSFNameWidget>(), m_tool->node->sfName);
    }

    void cleanup()
    {
        m_run.reset();
        m_tool.reset();
        QVERIFY(ToolHarness::noWidgetIsLeft());
    }

    void charactersOfLatin1ReachTheField()
    {
        m_run->line->setText(QString::fromUtf8("caf\xC3\xA9"));
        m_run->pressReturn();
        QCOMPARE(m_tool->node->sfName.getValue(), VbName("caf\xE9"));
        ToolHarness::pump();
        QCOMPARE(m_run->line->text(), QString::fromUtf8("caf\xC3\xA9"));
    }

    void charactersOutsideLatin1AreLost()
    {
        m_run->line->setText(QStringLiteral("a%1b").arg(QChar(0x20AC)));
        m_run->pressReturn();
        QCOMPARE(m_tool->node->sfName.getValue(), VbName("a?b"));
        ToolHarness::pump();
        QCOMPARE(m_run->line->text(), QStringLiteral("a?b"));
    }

private:
    std::unique_ptr<ToolHarness> m_tool;
    std::unique_ptr<LineEditorRun> m_run;
};

QTEST_MAIN(TestDvSFNameWidget)
#include "tst_DvSFNameWidget.moc"

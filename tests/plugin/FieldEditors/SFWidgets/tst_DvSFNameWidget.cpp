#include "FieldEditors/SFWidgets/DvSFNameWidget.h"
#include "plugin/FieldEditors/SFWidgets/LineEditorRun.h"

/// What the editor of names adds to what all editors of text do.
class tst_DvSFNameWidget : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void charactersOfLatin1ReachTheField();
    void charactersOutsideLatin1AreLost();

private:
    std::unique_ptr<ToolHarness> m_tool;
    std::unique_ptr<LineEditorRun> m_run;
};

void tst_DvSFNameWidget::init()
{
    m_tool = std::make_unique<ToolHarness>();
    m_run = std::make_unique<LineEditorRun>(std::make_unique<DvSFNameWidget>(), m_tool->node->sfName);
}

void tst_DvSFNameWidget::cleanup()
{
    m_run.reset();
    m_tool.reset();
    QVERIFY(ToolHarness::noWidgetIsLeft());
}

void tst_DvSFNameWidget::charactersOfLatin1ReachTheField()
{
    m_run->line->setText(QString::fromUtf8("caf\xC3\xA9"));
    m_run->pressReturn();
    QCOMPARE(m_tool->node->sfName.getValue(), VbName("caf\xE9"));
    ToolHarness::pump();
    QCOMPARE(m_run->line->text(), QString::fromUtf8("caf\xC3\xA9"));
}

void tst_DvSFNameWidget::charactersOutsideLatin1AreLost()
{
    m_run->line->setText(QStringLiteral("a%1b").arg(QChar(0x20AC)));
    m_run->pressReturn();
    QCOMPARE(m_tool->node->sfName.getValue(), VbName("a?b"));
    ToolHarness::pump();
    QCOMPARE(m_run->line->text(), QStringLiteral("a?b"));
}

QTEST_MAIN(tst_DvSFNameWidget)
#include "tst_DvSFNameWidget.moc"

#include "FieldEditors/SFWidgets/DvSFStringWidget.h"
#include "plugin/FieldEditors/SFWidgets/LineEditorRun.h"

/// What the editor of texts adds to what all editors of text do.
class tst_DvSFStringWidget : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void anyCharactersReachTheField_data();
    void anyCharactersReachTheField();

private:
    std::unique_ptr<ToolHarness> m_tool;
    std::unique_ptr<LineEditorRun> m_run;
};

void tst_DvSFStringWidget::init()
{
    m_tool = std::make_unique<ToolHarness>();
    m_run = std::make_unique<LineEditorRun>(std::make_unique<DvSFStringWidget>(), m_tool->node->sfString);
}

void tst_DvSFStringWidget::cleanup()
{
    m_run.reset();
    m_tool.reset();
    QVERIFY(ToolHarness::noWidgetIsLeft());
}

void tst_DvSFStringWidget::anyCharactersReachTheField_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("of all planes") << QString::fromUtf8("\xC3\xA9\xE2\x82\xAC\xF0\x9D\x84\x9E");
    QTest::newRow("quotes and blanks") << QStringLiteral(" \"a\" \\n ");
}

void tst_DvSFStringWidget::anyCharactersReachTheField()
{
    QFETCH(QString, text);
    m_run->line->setText(text);
    m_run->pressReturn();
    QCOMPARE(QString::fromUtf8(m_tool->node->sfString.getValue().toUtf8()), text);
    ToolHarness::pump();
    QCOMPARE(m_run->line->text(), text);
}

QTEST_MAIN(tst_DvSFStringWidget)
#include "tst_DvSFStringWidget.moc"

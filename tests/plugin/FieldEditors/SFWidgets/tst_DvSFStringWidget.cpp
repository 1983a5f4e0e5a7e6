#include "FieldEditors/SFWidgets/DvSFStringWidget.h"
#include "plugin/FieldEditors/SFWidgets/LineEditorRun.h"

/// What the editor of texts adds to what all editors of text do.
class TestDvSFStringWidget : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_tool = std::make_unique<ToolHarness>();
        m_run = std::make_unique<LineEditorRun>(std::make_unique<DvSFStringWidget>(), m_tool->node->sfString);
    }

    void cleanup()
    {
        m_run.reset();
        m_tool.reset();
        QVERIFY(ToolHarness::noWidgetIsLeft());
    }

    void anyCharactersReachTheField_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("of all planes") << QString::fromUtf8("\xC3\xA9\xE2\x82\xAC\xF0\x9D\x84\x9E");
        QTest::newRow("quotes and blanks") << QStringLiteral(" \"a\" \\n ");
    }

    void anyCharactersReachTheField()
    {
        QFETCH(QString, text);
        m_run->line->setText(text);
        m_run->pressReturn();
        QCOMPARE(QString::fromUtf8(m_tool->node->sfString.getValue().toUtf8()), text);
        ToolHarness::pump();
        QCOMPARE(m_run->line->text(), text);
    }

private:
    std::unique_ptr<ToolHarness> m_tool;
    std::unique_ptr<LineEditorRun> m_run;
};

QTEST_MAIN(TestDvSFStringWidget)
#include "tst_DvSFStringWidget.moc"

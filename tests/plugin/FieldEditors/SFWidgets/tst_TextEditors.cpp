#include "plugin/EditorList.h"
#include "plugin/FieldEditors/SFWidgets/LineEditorRun.h"
#include "plugin/WriteCounter.h"

#include <QHBoxLayout>

/// What the editors of texts, names and paths do: their line is written when editing of it finishes.
class TestTextEditors : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_tool = std::make_unique<ToolHarness>();
        m_type = *static_cast<QString*>(QTest::qData("type", qMetaTypeId<QString>()));
        QVERIFY(field().set(m_start.toLatin1().constData()));
    }

    void cleanup()
    {
        m_tool.reset();
        QVERIFY(ToolHarness::noWidgetIsLeft());
    }

    void lineStandsFirstInTheEditArea_data() { editors(); }

    void lineStandsFirstInTheEditArea()
    {
        const LineEditorRun run(make());
        const auto* const area = run.find<QFrame>("m_editionFrame");
        QCOMPARE(run.line->parentWidget(), area);
        QCOMPARE(run.line->alignment(), Qt::AlignLeft);
        const auto* layout = qobject_cast<QHBoxLayout*>(area->layout());
        QCOMPARE(layout->itemAt(0)->widget(), run.line);
        QCOMPARE(layout->stretch(0), 1);
    }

    void valueIsShown_data() { editors(); }

    void valueIsShown()
    {
        const LineEditorRun run(make(), field());
        QCOMPARE(run.line->text(), QStringLiteral("a b c"));
    }

    void typingAloneWritesNothing_data() { editors(); }

    void typingAloneWritesNothing()
    {
        LineEditorRun run(make(), field());
        const WriteCounter counter(field());
        run.type(m_typed);
        QCOMPARE(text(), m_start);
        QCOMPARE(counter.writes, 0);
        QCOMPARE(pushed(), 0);
    }

    void returnWritesAndPushesOnce_data() { editors(); }

    void returnWritesAndPushesOnce()
    {
        LineEditorRun run(make(), field());
        const WriteCounter counter(field());
        run.type(m_typed);
        run.pressReturn();
        QCOMPARE(text(), m_other);
        QCOMPARE(counter.writes, 1);
        QCOMPARE(pushed(), 1);
    }

    void returnPushesACommandEvenWhenUnchanged_data() { editors(); }

    void returnPushesACommandEvenWhenUnchanged()
    {
        LineEditorRun run(make(), field());
        const WriteCounter counter(field());
        run.pressReturn();
        run.pressReturn();
        QCOMPARE(text(), m_start);
        QCOMPARE(counter.writes, 2);
        QCOMPARE(pushed(), 2);
    }

    void leavingWritesAndPushesOnce_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("typed");
        for (const char* const type : {"SFString", "SFName", "SFFilePathString"}) {
            QTest::addRow("%s, typed again", type) << QString::fromLatin1(type) << QStringLiteral("x y z");
            QTest::addRow("%s, typed as it was", type) << QString::fromLatin1(type) << QStringLiteral("a b c");
            QTest::addRow("%s, not typed into", type) << QString::fromLatin1(type) << QString();
        }
    }

    void leavingWritesAndPushesOnce()
    {
        QFETCH(QString, typed);
        LineEditorRun run(make(), field());
        const WriteCounter counter(field());
        run.enter();
        if (!typed.isEmpty())
            run.type(typed);
        run.leave();
        QCOMPARE(text(), typed == m_typed ? m_other : m_start);
        QCOMPARE(counter.writes, 1);
        QCOMPARE(pushed(), 1);
    }

    void finishedEditingIsWrittenWithoutAskingForEdits_data() { editors(); }

    void finishedEditingIsWrittenWithoutAskingForEdits()
    {
        LineEditorRun run(make(), field());
        QVERIFY(!run.editor->edited());
        Q_EMIT run.line->editingFinished();
        QCOMPARE(pushed(), 1);
    }

    void emptyTextIsWritten_data() { editors(); }

    void emptyTextIsWritten()
    {
        LineEditorRun run(make(), field());
        run.type(QString());
        run.pressReturn();
        QVERIFY(field().isDefault());
        QCOMPARE(pushed(), 1);
        m_tool->services.undo();
        QVERIFY(field().isDefault());
    }

    void undoKeepsTheValue_data() { editors(); }

    void undoKeepsTheValue()
    {
        LineEditorRun run(make(), field());
        run.type(m_typed);
        run.pressReturn();
        m_tool->services.undo();
        QCOMPARE(text(), m_other);
        m_tool->services.redo();
        QCOMPARE(text(), m_other);
    }

    void otherFieldGoesThroughItsTextForm_data() { editors(); }

    void otherFieldGoesThroughItsTextForm()
    {
        NxSFVec3s& other = m_tool->node->sfVec3s;
        QVERIFY(other.set("1 2 3"));
        LineEditorRun run(make(), other);
        QCOMPARE(run.line->text(), QStringLiteral("1 2 3"));
        run.type(QStringLiteral("4 5 6"));
        run.pressReturn();
        QCOMPARE(ToolHarness::textOf(other), QStringLiteral("4 5 6"));
        QCOMPARE(pushed(), 1);
    }

    void refusedTextOfAnotherFieldKeepsItsValue_data() { editors(); }

    void refusedTextOfAnotherFieldKeepsItsValue()
    {
        NxSFVec3s& other = m_tool->node->sfVec3s;
        QVERIFY(other.set("1 2 3"));
        LineEditorRun run(make(), other);
        run.type(QStringLiteral("4 5"));
        run.pressReturn();
        QCOMPARE(ToolHarness::textOf(other), QStringLiteral("1 2 3"));
        QCOMPARE(run.line->text(), QStringLiteral("4 5"));
        QCOMPARE(pushed(), 1);
        other.setIgnored(1); // any notification will do
        ToolHarness::pump();
        QCOMPARE(run.line->text(), QStringLiteral("1 2 3"));
    }

    void outsideChangeIsFollowed_data() { editors(); }

    void outsideChangeIsFollowed()
    {
        const LineEditorRun run(make(), field());
        QVERIFY(field().set(m_other.toLatin1().constData()));
        QCOMPARE(run.line->text(), QStringLiteral("a b c"));
        ToolHarness::pump();
        QCOMPARE(run.line->text(), m_typed);
        QCOMPARE(pushed(), 0);
    }

    void changeWhileIdleIsReadAtTheNextActivation_data() { editors(); }

    void changeWhileIdleIsReadAtTheNextActivation()
    {
        LineEditorRun run(make(), field());
        run.editor->deactivate();
        QVERIFY(field().set(m_other.toLatin1().constData()));
        ToolHarness::pump();
        QCOMPARE(run.line->text(), QStringLiteral("a b c"));
        run.select(&field());
        QCOMPARE(run.line->text(), m_typed);
        QCOMPARE(pushed(), 0);
    }

    void typedTextCountsAsEditedUntilTheRefresh_data() { editors(); }

    void typedTextCountsAsEditedUntilTheRefresh()
    {
        LineEditorRun run(make(), field());
        QVERIFY(!run.editor->edited());
        run.type(QStringLiteral("x"));
        QVERIFY(run.editor->edited());
        run.pressReturn();
        ToolHarness::pump();
        QVERIFY(!run.editor->edited());
    }

    void nullFieldIsShownAsNothing_data() { editors(); }

    void nullFieldIsShownAsNothing()
    {
        LineEditorRun run(make(), field());
        run.editor->setField(nullptr);
        run.editor->updateFromField();
        QCOMPARE(run.line->text(), QString());
        run.type(m_typed);
        run.pressReturn();
        QCOMPARE(text(), m_start);
        QCOMPARE(pushed(), 0);
    }

private:
    static void editors()
    {
        QTest::addColumn<QString>("type");
        for (const char* const type : {"SFString", "SFName", "SFFilePathString"})
            QTest::newRow(type) << QString::fromLatin1(type);
    }
    [[nodiscard]] std::unique_ptr<DvSFieldWidget> make() const { return editorEntry(m_type).make(nullptr); }
    [[nodiscard]] NxField& field() const { return fieldFor(*m_tool->node, m_type); }
    [[nodiscard]] QString text() const { return ToolHarness::textOf(field()); }
    [[nodiscard]] int pushed() const { return m_tool->services.pushed; }

    std::unique_ptr<ToolHarness> m_tool;
    QString m_type;
    const QString m_start = QStringLiteral("\"a b c\""); // quoted, since the line shows it without
    const QString m_other = QStringLiteral("\"x y z\"");
    const QString m_typed = QStringLiteral("x y z");
};

QTEST_MAIN(TestTextEditors)
#include "tst_TextEditors.moc"

#include "FieldEditors/SFWidgets/DvSFLineWidget.h"
#include "VirtualSlot.h"
#include "plugin/FieldEditors/SFWidgets/LineEditorRun.h"
#include "plugin/WriteCounter.h"

#include <QHBoxLayout>
#include <QMetaMethod>

#include <memory>

namespace {

struct LineRun : LineEditorRun {
    LineRun()
        : LineEditorRun(std::make_unique<DvSFLineWidget>())
    {
    }
    explicit LineRun(NxField& field)
        : LineEditorRun(std::make_unique<DvSFLineWidget>(), field)
    {
    }
};

/// An editor on top of the line that writes when editing finishes.
class FinishingEditor final : public DvSFLineWidget {
public:
    using DvSFLineWidget::applyChanges;
    void applyChanges() override { ++applied; }
    void applyChanges(const QString& /*text*/) override { ++keystrokes; }

    int applied = 0;
    int keystrokes = 0;
};

} // namespace

class TestDvSFLineWidget : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tool = std::make_unique<ToolHarness>(); }

    void cleanup()
    {
        m_tool.reset();
        QVERIFY(ToolHarness::noWidgetIsLeft());
    }

    void lineFillsTheEditArea()
    {
        const LineRun run;
        const auto* const area = run.find<QFrame>("m_editionFrame");
        QCOMPARE(run.line->parentWidget(), area);
        QCOMPARE(run.line->alignment(), Qt::AlignLeft);
        const auto* layout = qobject_cast<QHBoxLayout*>(area->layout());
        QCOMPARE(layout->count(), 1);
        QCOMPARE(layout->itemAt(0)->widget(), run.line);
        QCOMPARE(layout->stretch(0), 1);
    }

    void slotsStandInTheirOrder()
    {
        const QMetaObject& meta = DvSFLineWidget::staticMetaObject;
        QStringList signatures;
        for (int index = meta.methodOffset(); index < meta.methodCount(); ++index) {
            QCOMPARE(meta.method(index).methodType(), QMetaMethod::Slot);
            signatures << QString::fromLatin1(meta.method(index).methodSignature());
        }
        QCOMPARE(signatures,
            QStringList({QStringLiteral("applyChanges(QString)"), QStringLiteral("setCursorPosition(int,int)")}));
    }

    void virtualOperationsStandInTheirOrder()
    {
        const auto last = virtualSlot(&DvSFieldWidget::setDefaultFieldValue);
        QCOMPARE(virtualSlot(qOverload<const QString&>(&DvSFLineWidget::applyChanges)), last + 1);
        QCOMPARE(virtualSlot(&DvSFLineWidget::setCursorPosition), last + 2);
    }

    void anyFieldIsShownInItsTextForm_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("text");
        QTest::newRow("type without an editor of its own") << QStringLiteral("sfTime") << QStringLiteral("12.5");
        QTest::newRow("three components") << QStringLiteral("sfVec3s") << QStringLiteral("1 -2 3");
        QTest::newRow("text in quotes") << QStringLiteral("sfString") << QStringLiteral("\"a b\"");
    }

    void anyFieldIsShownInItsTextForm()
    {
        QFETCH(QString, field);
        QFETCH(QString, text);
        NxField* const edited = node().getField(VbName(field.toLatin1().constData()));
        QVERIFY(edited->set(text.toUtf8().constData()));
        const LineRun run(*edited);
        QCOMPARE(run.line->text(), text);
        QCOMPARE(pushed(), 0);
    }

    void keystrokeWritesAndPushesTwice()
    {
        NxSFInt32& field = node().sfInt32;
        LineRun run(field);
        const WriteCounter counter(field);
        run.type(QStringLiteral("7"));
        QCOMPARE(field.getValue(), 7);
        QCOMPARE(counter.writes, 2);
        QCOMPARE(pushed(), 2);
    }

    void eachKeystrokeReachesTheField()
    {
        NxSFInt32& field = node().sfInt32;
        LineRun run(field);
        run.enter();
        run.line->selectAll();
        int expected = 0;
        for (const int digit : {4, 0, 9}) {
            QTest::keyClick(run.line, static_cast<char>('0' + digit));
            expected = expected * 10 + digit;
            QCOMPARE(field.getValue(), expected);
        }
        QCOMPARE(pushed(), 6);
    }

    void deletingWritesLikeTyping()
    {
        NxSFInt32& field = node().sfInt32;
        field.setValue(56);
        LineRun run(field);
        run.enter();
        QTest::keyClick(run.line, Qt::Key_End);
        QTest::keyClick(run.line, Qt::Key_Backspace);
        QCOMPARE(field.getValue(), 5);
        QCOMPARE(pushed(), 2);
    }

    void textSetByCodeWritesOnce()
    {
        NxSFInt32& field = node().sfInt32;
        const LineRun run(field);
        run.line->setText(QStringLiteral("12"));
        QCOMPARE(field.getValue(), 12);
        QCOMPARE(pushed(), 1);
    }

    void returnAndLeavingAddNothing()
    {
        NxSFInt32& field = node().sfInt32;
        LineRun run(field);
        run.pressReturn();
        run.leave();
        QCOMPARE(pushed(), 0);
        run.type(QStringLiteral("7"));
        run.pressReturn();
        run.pressReturn();
        run.leave();
        QCOMPARE(pushed(), 2);
    }

    void refusedTextKeepsTheValueAndPushes()
    {
        NxSFVec3f& field = node().sfVec3f;
        QVERIFY(field.set("1 2 3"));
        LineRun run(field);
        const WriteCounter counter(field);
        run.enter();
        QTest::keyClick(run.line, Qt::Key_End);
        QTest::keyClick(run.line, 'x');
        QCOMPARE(run.line->text(), QStringLiteral("1 2 3x"));
        QCOMPARE(ToolHarness::textOf(field), QStringLiteral("1 2 3"));
        QCOMPARE(counter.writes, 0);
        QCOMPARE(pushed(), 2);
        m_tool->services.commands.back()->undo();
        QCOMPARE(ToolHarness::textOf(field), QStringLiteral("1 2 3"));
    }

    void refusedTextIsReplacedAtTheNextRefresh()
    {
        NxSFVec3f& field = node().sfVec3f;
        QVERIFY(field.set("10 20 30"));
        LineRun run(field);
        run.type(QStringLiteral("4 5"));
        QCOMPARE(run.line->text(), QStringLiteral("4 5"));
        QCOMPARE(ToolHarness::textOf(field), QStringLiteral("10 20 30"));
        field.setIgnored(1); // any notification will do
        ToolHarness::pump();
        QCOMPARE(run.line->text(), QStringLiteral("10 20 30"));
        QCOMPARE(run.line->cursorPosition(), 3);
    }

    void charactersOfAllPlanesReachTheField()
    {
        NxSFString& field = node().sfString;
        const LineRun run(field);
        const QString text = QString::fromUtf8("\"\xC3\xA9\xE2\x82\xAC\xF0\x9D\x84\x9E\"");
        run.line->setText(text);
        QCOMPARE(ToolHarness::textOf(field), text);
        ToolHarness::pump();
        QCOMPARE(run.line->text(), text);
    }

    void undoKeepsTheValue()
    {
        NxSFInt32& field = node().sfInt32;
        field.setValue(3);
        LineRun run(field);
        run.type(QStringLiteral("7"));
        for (OrvCommand* const command : m_tool->services.commands) {
            command->undo();
            QCOMPARE(field.getValue(), 7);
            command->redo();
            QCOMPARE(field.getValue(), 7);
        }
    }

    void outsideChangeIsFollowedWithoutACommand()
    {
        NxSFInt32& field = node().sfInt32;
        LineRun run(field);
        field.setValue(41);
        field.setValue(42);
        QCOMPARE(run.line->text(), QStringLiteral("0"));
        ToolHarness::pump();
        QCOMPARE(run.line->text(), QStringLiteral("42"));
        QCOMPARE(pushed(), 0);
        run.type(QStringLiteral("1")); // the signals are open again
        QCOMPARE(field.getValue(), 1);
    }

    void cursorComesBackAfterARefresh()
    {
        NxSFInt32& field = node().sfInt32;
        field.setValue(12345);
        LineRun run(field);
        QCOMPARE(run.line->cursorPosition(), 0);
        run.enter();
        QTest::keyClick(run.line, Qt::Key_Right);
        QTest::keyClick(run.line, Qt::Key_Right);
        field.setValue(67890);
        ToolHarness::pump();
        QCOMPARE(run.line->text(), QStringLiteral("67890"));
        QCOMPARE(run.line->cursorPosition(), 2);
    }

    void cursorStaysWhileTypingInTheMiddle()
    {
        NxSFInt32& field = node().sfInt32;
        field.setValue(19);
        LineRun run(field);
        run.enter();
        QTest::keyClick(run.line, Qt::Key_Home);
        QTest::keyClick(run.line, Qt::Key_Right);
        QTest::keyClicks(run.line, QStringLiteral("23"));
        QCOMPARE(field.getValue(), 1239);
        QCOMPARE(run.line->cursorPosition(), 3);
        ToolHarness::pump();
        QCOMPARE(run.line->text(), QStringLiteral("1239"));
        QCOMPARE(run.line->cursorPosition(), 3);
    }

    void refreshRaisesNoSignals()
    {
        NxSFInt32& field = node().sfInt32;
        const LineRun run(field);
        const QSignalSpy texts(run.line, &QLineEdit::textChanged);
        const QSignalSpy cursors(run.line, &QLineEdit::cursorPositionChanged);
        field.setValue(12345);
        const WriteCounter counter(field);
        ToolHarness::pump();
        QCOMPARE(texts.count(), 0);
        QCOMPARE(cursors.count(), 0);
        QCOMPARE(counter.writes, 0);
        QVERIFY(!run.line->signalsBlocked());
    }

    void changeWhileIdleIsReadAtTheNextActivation()
    {
        NxSFInt32& field = node().sfInt32;
        LineRun run(field);
        run.editor->deactivate();
        field.setValue(9);
        ToolHarness::pump();
        QCOMPARE(run.line->text(), QStringLiteral("0"));
        run.select(&field);
        QCOMPARE(run.line->text(), QStringLiteral("9"));
        QCOMPARE(pushed(), 0);
    }

    void typedTextCountsAsEditedUntilTheRefresh()
    {
        LineRun run(node().sfInt32);
        QVERIFY(!run.editor->edited());
        run.type(QStringLiteral("7"));
        QVERIFY(run.editor->edited());
        ToolHarness::pump();
        QVERIFY(!run.editor->edited());
    }

    void subclassHearsReturnAlwaysAndLeavingWhenEdited()
    {
        auto* const editor = new FinishingEditor;
        LineEditorRun run(std::unique_ptr<DvSFieldWidget>(editor), node().sfInt32);
        run.pressReturn();
        run.leave();
        QCOMPARE(editor->applied, 1);
        QCOMPARE(editor->keystrokes, 0);
        run.type(QStringLiteral("7"));
        QCOMPARE(editor->keystrokes, 2);
        QCOMPARE(editor->applied, 1);
        run.leave();
        QCOMPARE(editor->applied, 2);
    }

    void nullFieldWritesNothing()
    {
        NxSFInt32& field = node().sfInt32;
        LineRun run(field);
        run.editor->setField(nullptr);
        run.editor->updateFromField();
        QVERIFY(!run.line->signalsBlocked());
        run.type(QStringLiteral("7"));
        run.pressReturn();
        run.leave();
        QCOMPARE(field.getValue(), 0);
        QCOMPARE(pushed(), 0);
    }

private:
    NxFieldGallery& node() { return *m_tool->node; }
    int pushed() const { return m_tool->services.pushed; }

    std::unique_ptr<ToolHarness> m_tool;
};

QTEST_MAIN(TestDvSFLineWidget)
#include "tst_DvSFLineWidget.moc"

#include "plugin/EditorHarness.h"
#include "plugin/EditorList.h"
#include "plugin/WriteCounter.h"

#include <QLabel>
#include <QPushButton>

/// What every editor of single values does.
class TestSingleValueEditors : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_tool = std::make_unique<ToolHarness>();
        m_type = *static_cast<QString*>(QTest::qData("type", qMetaTypeId<QString>()));
        m_editor = entry().make(nullptr);
    }

    void cleanup()
    {
        m_editor.reset();
        m_tool.reset();
        QVERIFY(ToolHarness::noWidgetIsLeft());
    }

    void editorBearsItsNames_data() { editors(); }

    void editorBearsItsNames()
    {
        const bool isLine = m_type == QLatin1String("SField");
        QCOMPARE(m_editor->objectName(), QStringLiteral("Dv%1Widget").arg(isLine ? QStringLiteral("SFLine") : m_type));
        QCOMPARE(entry().make("mine")->objectName(), QStringLiteral("mine"));
        QCOMPARE(QString::fromUtf8(m_editor->getName().toUtf8()), m_type);
        QVERIFY(m_editor->inherits(entry().base));
        QCOMPARE(QString::fromLatin1(m_editor->getHandledType().getName().getString()), m_type);
        const EditorRun run(*m_editor);
        QCOMPARE(run.find<QLabel>("m_label")->text(), QStringLiteral("<p align=\"center\">%1</p>").arg(m_type));
    }

    void selectionShowsTheFieldWithoutACommand_data() { editors(); }

    void selectionShowsTheFieldWithoutACommand()
    {
        field().set(entry().value);
        field().setIgnored(1);
        const WriteCounter counter(field());
        const EditorRun run(*m_editor, field());
        QVERIFY(m_editor->getFrame()->isVisible());
        checkShownOnly(run, counter);
    }

    void outsideChangeWritesNothingBack_data() { editors(); }

    void outsideChangeWritesNothingBack()
    {
        const EditorRun run(*m_editor, field());
        field().set(entry().value);
        field().setIgnored(1);
        const WriteCounter counter(field());
        ToolHarness::pump();
        checkShownOnly(run, counter);
    }

    void leavingNothingEditedWritesNothing_data() { editors(); }

    void leavingNothingEditedWritesNothing()
    {
        const EditorRun run(*m_editor, field());
        QVERIFY(!m_editor->edited());
        m_editor->setFocusLeaveEvent();
        QCOMPARE(pushed(), 0);
    }

    void defaultButtonWritesTheDefault_data() { editors(); }

    void defaultButtonWritesTheDefault()
    {
        field().set(entry().value);
        QVERIFY(!field().isDefault());
        const EditorRun run(*m_editor, field());
        pushed() = 0;
        click(run, "m_defaultButton");
        QVERIFY(field().isDefault());
        QCOMPARE(pushed(), 1);
        m_tool->services.undo();
        QVERIFY(field().isDefault());
        ToolHarness::pump();
        QVERIFY(field().isDefault());
    }

    void ignoreButtonSetsTheFlag_data() { editors(); }

    void ignoreButtonSetsTheFlag()
    {
        const EditorRun run(*m_editor, field());
        const QPushButton* const button = run.find<QPushButton>("m_ignoreButton");
        click(run, "m_ignoreButton");
        QVERIFY(field().isIgnored());
        QCOMPARE(pushed(), 1);
        m_tool->services.undo();
        QVERIFY(!field().isIgnored());
        ToolHarness::pump();
        QVERIFY(!button->isChecked());
        QCOMPARE(pushed(), 1);
    }

    void nullFieldWritesNothing_data() { editors(); }

    void nullFieldWritesNothing()
    {
        field().set(entry().value);
        const EditorRun run(*m_editor, field());
        pushed() = 0;
        const WriteCounter counter(field());
        m_editor->setField(nullptr);
        m_editor->updateFromField();
        m_editor->applyChanges();
        m_editor->setCommandValue();
        clickBoth(run);
        QCOMPARE(counter.writes, 0);
        QCOMPARE(pushed(), 0);
    }

    void nothingHappensBeforeTheFirstField_data() { editors(); }

    void nothingHappensBeforeTheFirstField()
    {
        const EditorRun run(*m_editor);
        m_editor->getFrame()->show();
        m_editor->updateFromField();
        m_editor->applyChanges();
        clickBoth(run);
        QVERIFY(!m_editor->edited());
        QCOMPARE(pushed(), 0);
    }

private:
    static void editors()
    {
        QTest::addColumn<QString>("type");
        for (const EditorEntry& entry : singleValueEditors)
            QTest::newRow(entry.type) << QString::fromLatin1(entry.type);
    }
    // Those of two whole numbers alone push commands while they show a field.
    [[nodiscard]] bool hasSpinBoxes() const
    {
        return m_type == QLatin1String("SFVec2i32") || m_type == QLatin1String("SFVec2s");
    }
    [[nodiscard]] const EditorEntry& entry() const { return editorEntry(m_type); }
    [[nodiscard]] NxField& field() const { return fieldFor(*m_tool->node, m_type); }
    [[nodiscard]] int& pushed() const { return m_tool->services.pushed; }
    static void click(const EditorRun& run, const char* button)
    {
        QTest::mouseClick(run.find<QPushButton>(button), Qt::LeftButton);
    }
    static void clickBoth(const EditorRun& run)
    {
        click(run, "m_defaultButton");
        click(run, "m_ignoreButton");
    }

    // The editor shows the ignored field and its value, and has written nothing.
    void checkShownOnly(const EditorRun& run, const WriteCounter& counter) const
    {
        QVERIFY(run.find<QPushButton>("m_ignoreButton")->isChecked());
        QCOMPARE(ToolHarness::textOf(field()), QString::fromLatin1(entry().value));
        if (hasSpinBoxes())
            return;
        QCOMPARE(counter.writes, 0);
        QCOMPARE(pushed(), 0);
    }

    std::unique_ptr<ToolHarness> m_tool;
    std::unique_ptr<DvSFieldWidget> m_editor;
    QString m_type;
};

QTEST_MAIN(TestSingleValueEditors)
#include "tst_SingleValueEditors.moc"

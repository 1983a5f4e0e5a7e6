#include "FieldEditors/MFWidgets/DvMFDefaultFieldWidget.h"
#include "FieldEditors/MFWidgets/DvMFStringWidget.h"
#include "plugin/FieldEditors/MFWidgets/RowEditorRun.h"

#include <QLabel>

class TestStringRowEditors : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(ToolHarness::noWidgetIsLeft()); }

    void constructorWritesTheNames()
    {
        const DvMFStringWidget strings;
        QCOMPARE(strings.objectName(), QStringLiteral("DvMFStringWidget"));
        QCOMPARE(strings.getName(), VbString("MFString"));
        QCOMPARE(DvMFStringWidget("mine").objectName(), QStringLiteral("mine"));
        DvMFDefaultFieldWidget any;
        QCOMPARE(any.objectName(), QStringLiteral("DvMFDefaultFieldWidget"));
        QCOMPARE(any.getName(), VbString("MField"));
        QCOMPARE(any.getHandledType().getName().getString(), "MField");
        QCOMPARE(DvMFDefaultFieldWidget("mine").objectName(), QStringLiteral("mine"));
    }

    void loadBuildsOneColumn_data() { kinds(); }

    void loadBuildsOneColumn()
    {
        QFETCH(bool, isString);
        const std::unique_ptr<RowEditorRun> run = makeRun(isString, {});
        QCOMPARE(run->table()->columnCount(), 1);
        QCOMPARE(run->table()->rowCount(), 0);
        QVERIFY(run->table()->horizontalHeaderItem(0) == nullptr);
        QCOMPARE(run->table()->horizontalHeader()->sectionResizeMode(0), QHeaderView::Interactive);
        const QString word = isString ? QStringLiteral("MFString") : QStringLiteral("MField");
        QCOMPARE(run->find<QLabel>("m_label")->text(), QStringLiteral("<p align=\"center\">%1</p>").arg(word));
    }

    void stringsAreShownAsTheyAre()
    {
        const std::unique_ptr<RowEditorRun> run = makeRun(true,
            QStringLiteral("[\"two words\", \"a \\\"quote\\\"\", \"\", \"lines\\nand \\u00e9\\U0001f600\"]")
                .replace(QLatin1String("\\u00e9\\U0001f600"), QStringLiteral("\u00e9\U0001f600")));
        QCOMPARE(run->editor->getCellValue(0, 0), QStringLiteral("two words"));
        QCOMPARE(run->editor->getCellValue(1, 0), QStringLiteral("a \"quote\""));
        QCOMPARE(run->editor->getCellValue(2, 0), QString());
        QCOMPARE(run->editor->getCellValue(3, 0), QStringLiteral("lines\nand \u00e9\U0001f600"));
    }

    void fallbackShowsTextForms()
    {
        const std::unique_ptr<RowEditorRun> run = makeRun(false, QStringLiteral("[\"head\", \"left arm\"]"));
        QCOMPARE(run->editor->getCellValue(1, 0), QStringLiteral("\"left arm\""));
    }

    void fallbackTakesAnyList_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("written");
        QTest::newRow("booleans") << QStringLiteral("MFBool") << QStringLiteral("[true, false]")
                                  << QStringLiteral("TRUE") << QStringLiteral("true");
        QTest::newRow("names of an enumeration") << QStringLiteral("MFEnum") << QStringLiteral("[LOW, ULTRA]")
                                                 << QStringLiteral("HIGH") << QStringLiteral("HIGH");
        QTest::newRow("one with an editor of its own") << QStringLiteral("MFVec3f") << QStringLiteral("[1 2 3, 4 5 6]")
                                                       << QStringLiteral("7 8 9") << QStringLiteral("7 8 9");
    }

    void fallbackTakesAnyList()
    {
        QFETCH(QString, type);
        QFETCH(QString, value);
        QFETCH(QString, typed);
        QFETCH(QString, written);
        const RowEditorRun run(std::make_unique<DvMFDefaultFieldWidget>(), type, value);
        QCOMPARE(run.table()->rowCount(), 2);
        run.edit(1, 0, typed);
        QCOMPARE(run.editor->getCellValue(1, 0), written);
        QCOMPARE(run.pushed(), 1);
    }

    void otherFieldsAreRefused()
    {
        const RowEditorRun run(std::make_unique<DvMFDefaultFieldWidget>(), QStringLiteral("MFName"));
        QVERIFY(!run.editor->prepareForField(&run.node().sfString));
        QVERIFY(!run.editor->prepareForField(nullptr));
        DvMFStringWidget strings;
        QVERIFY(strings.prepareForField(&run.node().mfString));
        QVERIFY(!strings.prepareForField(&run.node().mfName));
        QVERIFY(!strings.prepareForField(&run.node().sfString));
        QVERIFY(!strings.prepareForField(nullptr));
    }

    void columnsAndRowsThatAreMissingReadEmpty_data() { kinds(); }

    void columnsAndRowsThatAreMissingReadEmpty()
    {
        const std::unique_ptr<RowEditorRun> run = makeRun();
        QVERIFY(!run->editor->getCellValue(1, 0).isEmpty());
        QCOMPARE(run->editor->getCellValue(1, 1), QString());
        QCOMPARE(run->editor->getCellValue(2, 0), QString());
        QCOMPARE(run->editor->getCellValue(-1, 0), QString());
    }

    void linesHaveNoValidator_data() { kinds(); }

    void linesHaveNoValidator()
    {
        const std::unique_ptr<RowEditorRun> run = makeRun();
        const QLineEdit* const line = run->open(0, 0);
        QVERIFY(line != nullptr);
        QVERIFY(line->validator() == nullptr);
        QCOMPARE(line->text(), run->editor->getCellValue(0, 0));
    }

    void typedStringIsWritten_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::newRow("word") << QStringLiteral("three");
        QTest::newRow("empty") << QString();
        QTest::newRow("two quotes") << QStringLiteral("\"\"");
        QTest::newRow("backslash") << QStringLiteral("a\\nb");
        QTest::newRow("beyond Latin-1") << QStringLiteral("\u4e2d\U0001f600");
        QTest::newRow("100,000 characters") << QString(100000, QLatin1Char('x'));
    }

    void typedStringIsWritten()
    {
        QFETCH(QString, typed);
        const std::unique_ptr<RowEditorRun> run = makeRun(true, QStringLiteral("[\"one\", \"two\"]"));
        QLineEdit* const line = run->open(1, 0);
        line->selectAll();
        line->del();
        line->insert(typed);
        QTest::keyClick(line, Qt::Key_Return);
        RowEditorRun::settle();
        QCOMPARE(run->node().mfString[1], VbString(typed.toUtf8().constData()));
        QCOMPARE(run->node().mfString[0], VbString("one"));
        QCOMPARE(run->pushed(), 1);
    }

    void typedTextFormIsWritten()
    {
        const std::unique_ptr<RowEditorRun> run = makeRun(false, QStringLiteral("[\"one\", \"two\"]"));
        run->edit(0, 0, QStringLiteral("\"left leg\""));
        QCOMPARE(run->text(), QStringLiteral("[\"left leg\", \"two\"]"));
    }

    void refusedTextStillPushesACommand()
    {
        const RowEditorRun run(
            std::make_unique<DvMFDefaultFieldWidget>(), QStringLiteral("MFBool"), QStringLiteral("[true, false]"));
        run.edit(0, 0, QStringLiteral("perhaps"));
        QCOMPARE(run.text(), QStringLiteral("[true, false]"));
        QCOMPARE(run.pushed(), 1);
    }

    void undoKeepsTheNewValue_data() { kinds(); }

    void undoKeepsTheNewValue()
    {
        QFETCH(bool, isString);
        const std::unique_ptr<RowEditorRun> run = makeRun();
        run->edit(0, 0, isString ? QStringLiteral("new") : QStringLiteral("\"new\""));
        run->lastCommand().undo();
        QCOMPARE(run->text(), QStringLiteral("[\"new\", \"two\"]"));
    }

    void stringsAreSwappedByACommand()
    {
        const std::unique_ptr<RowEditorRun> run = makeRun(true, QStringLiteral("[\"one\", \"two\"]"));
        run->editor->swapRows(0, 1);
        QCOMPARE(run->text(), QStringLiteral("[\"two\", \"one\"]"));
        QCOMPARE(run->pushed(), 1);
        run->lastCommand().undo();
        QCOMPARE(run->text(), QStringLiteral("[\"one\", \"two\"]"));
    }

    void textFormsAreSwappedWithoutACommand()
    {
        const std::unique_ptr<RowEditorRun> run = makeRun(false, QStringLiteral("[\"one\", \"two\"]"));
        run->editor->swapRows(0, 1);
        QCOMPARE(run->text(), QStringLiteral("[\"two\", \"one\"]"));
        QCOMPARE(run->pushed(), 0);
    }

    void swapsOutOfRangeDoNothing_data() { kinds(); }

    void swapsOutOfRangeDoNothing()
    {
        const std::unique_ptr<RowEditorRun> run = makeRun();
        for (const auto& [one, other] : {std::pair(0, 2), std::pair(-1, 1), std::pair(2, 0), std::pair(1, -1)})
            run->editor->swapRows(one, other);
        QCOMPARE(run->text(), QStringLiteral("[\"one\", \"two\"]"));
        QCOMPARE(run->pushed(), 0);
    }

    void nullFieldIsLeftAlone_data() { kinds(); }

    void nullFieldIsLeftAlone()
    {
        QFETCH(bool, isString);
        const std::unique_ptr<RowEditorRun> run = makeRun(isString, {});
        run->editor->setCellValue(0, 0, QStringLiteral("1"));
        run->editor->swapRows(0, 1);
        run->editor->reservedRowOperation();
        QCOMPARE(run->editor->getCellValue(0, 0), QString());
        QCOMPARE(run->pushed(), 0);
    }

    void missingRowChangesNothing_data() { kinds(); }

    void missingRowChangesNothing()
    {
        const std::unique_ptr<RowEditorRun> run = makeRun();
        run->editor->setCellValue(2, 0, QStringLiteral("\"x\""));
        run->editor->setCellValue(-1, 0, QStringLiteral("\"x\""));
        QCOMPARE(run->text(), QStringLiteral("[\"one\", \"two\"]"));
    }

    void longTextIsElided()
    {
        const std::unique_ptr<RowEditorRun> run = makeRun(true, QStringLiteral("[\"\", \"i\"]"));
        const QImage empty = run->picture();
        const QString wide = QString(100000, QLatin1Char('w'));
        run->set(QStringLiteral("[\"%1\", \"i\"]").arg(wide));
        const QImage full = run->picture();
        const QRect cell = run->cell(0, 0);
        QVERIFY(full.copy(cell) != empty.copy(cell));
        // No part of it is outside its cell.
        const QRect beside(cell.right() + 2, cell.top(), 50, cell.height());
        QCOMPARE(full.copy(beside), empty.copy(beside));
    }

private:
    static void kinds()
    {
        QTest::addColumn<bool>("isString");
        QTest::newRow("strings") << true;
        QTest::newRow("any list") << false;
    }
    static std::unique_ptr<RowEditorRun> makeRun(bool isString, const QString& value)
    {
        if (isString)
            return std::make_unique<RowEditorRun>(
                std::make_unique<DvMFStringWidget>(), QStringLiteral("MFString"), value);
        return std::make_unique<RowEditorRun>(
            std::make_unique<DvMFDefaultFieldWidget>(), QStringLiteral("MFName"), value);
    }
    static std::unique_ptr<RowEditorRun> makeRun()
    {
        QFETCH(bool, isString);
        return makeRun(isString, QStringLiteral("[\"one\", \"two\"]"));
    }
};

QTEST_MAIN(TestStringRowEditors)
#include "tst_StringRowEditors.moc"

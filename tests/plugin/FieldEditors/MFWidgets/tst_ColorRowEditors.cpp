#include "FieldEditors/MFWidgets/DvMFColorRGBAWidget.h"
#include "FieldEditors/MFWidgets/DvMFColorTable.h"
#include "FieldEditors/MFWidgets/DvMFColorWidget.h"
#include "plugin/FieldEditors/MFWidgets/RowEditorRun.h"

#include <QDoubleValidator>
#include <QLabel>

class TestColorRowEditors : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(ToolHarness::noWidgetIsLeft()); }
    void constructorWritesTheNames_data() { kinds(); }

    void constructorWritesTheNames()
    {
        QFETCH(bool, hasOpacity);
        const std::unique_ptr<DvMFieldWidget> editor = makeEditor(hasOpacity);
        QCOMPARE(editor->objectName(), QStringLiteral("Dv%1Widget").arg(word(hasOpacity)));
        QCOMPARE(QString::fromUtf8(editor->getName().toUtf8()), word(hasOpacity));
        QCOMPARE(QString::fromLatin1(editor->getHandledType().getName().getString()), word(hasOpacity));
        QCOMPARE(makeEditor(hasOpacity, "mine")->objectName(), QStringLiteral("mine"));
        const auto* const table = editor->getFrame()->findChild<DvMFColorTable*>(QStringLiteral("m_table"));
        QVERIFY(table != nullptr);
    }

    void loadBuildsTheColumns_data() { kinds(); }

    void loadBuildsTheColumns()
    {
        QFETCH(bool, hasOpacity);
        const RowEditorRun run(makeEditor(hasOpacity), word(hasOpacity));
        QStringList labels{QStringLiteral("Color"), QStringLiteral("R"), QStringLiteral("G"), QStringLiteral("B")};
        if (hasOpacity)
            labels << QStringLiteral("A");
        QCOMPARE(run.labels(), labels);
        for (int column = 0; column < labels.size(); ++column)
            QCOMPARE(run.table()->horizontalHeader()->sectionResizeMode(column), QHeaderView::Interactive);
        const QString label = QStringLiteral("<p align=\"center\">%1</p>").arg(word(hasOpacity));
        QCOMPARE(run.find<QLabel>("m_label")->text(), label);
    }

    void rowsBeforeLoadCantBeTypedIntoInFront_data() { kinds(); }

    void rowsBeforeLoadCantBeTypedIntoInFront()
    {
        QFETCH(bool, hasOpacity);
        const std::unique_ptr<DvMFieldWidget> editor = makeEditor(hasOpacity);
        auto* const table = editor->getFrame()->findChild<DvMFColorTable*>(QStringLiteral("m_table"));
        table->setRowCount(2);
        const EditorRun run(*editor);
        QCOMPARE(table->rowCount(), 2);
        for (int row = 0; row < 2; ++row) {
            QCOMPARE(static_cast<int>(table->item(row, 0)->flags()), 33);
            for (int column = 1; column < table->columnCount(); ++column)
                QVERIFY(table->item(row, column)->flags().testFlag(Qt::ItemIsEditable));
        }
    }

    void cellsShowTheirTexts_data() { kinds(); }

    void cellsShowTheirTexts()
    {
        QFETCH(bool, hasOpacity);
        const RowEditorRun run = makeRun();
        QStringList expected{
            QStringLiteral("Color"), QStringLiteral("1"), QStringLiteral("0.5"), QStringLiteral("0.25")};
        if (hasOpacity)
            expected << QStringLiteral("0.75");
        QCOMPARE(run.texts(0), expected);
        QCOMPARE(run.editor->getCellValue(0, 4), hasOpacity ? QStringLiteral("0.75") : QString());
        QCOMPARE(run.editor->getCellValue(0, 5), QString());
        QCOMPARE(run.editor->getCellValue(7, 1), QString());
    }

    void colorCellIsFilled_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QColor>("color");
        const QColor none;
        QTest::newRow("red") << QStringLiteral("1 0 0") << QColor(255, 0, 0);
        QTest::newRow("fraction cut off") << QStringLiteral("0.5 0.999 0.001") << QColor(127, 254, 0);
        QTest::newRow("above the range") << QStringLiteral("1.5 0 0") << none;
        QTest::newRow("below the range") << QStringLiteral("0 -0.1 0") << none;
        QTest::newRow("cut off to 0") << QStringLiteral("0 -0.001 0") << QColor(0, 0, 0);
        QTest::newRow("beyond an integer") << QStringLiteral("1e30 0 0") << none;
        QTest::newRow("no number") << QStringLiteral("nan 0 0") << none;
        QTest::newRow("opaque") << QStringLiteral("0 1 0 1") << QColor(0, 255, 0);
        QTest::newRow("transparent") << QStringLiteral("0 1 0 0") << none;
        QTest::newRow("too opaque") << QStringLiteral("0 1 0 1.5") << none;
    }

    void colorCellIsFilled()
    {
        QFETCH(QString, value);
        QFETCH(QColor, color);
        const bool hasOpacity = value.count(QLatin1Char(' ')) == 3;
        const RowEditorRun run = makeRun(hasOpacity, QStringLiteral("[%1]").arg(value));
        if (!color.isValid())
            color = run.table()->palette().color(QPalette::Base);
        const QImage picture = run.picture();
        QCOMPARE(middleOf(picture, run.cell(0, 0)), color);
        QCOMPARE(picture.pixelColor(run.cell(0, 0).topLeft() + QPoint(1, 1)), color);
    }

    void colorCellShowsNoSelection()
    {
        const RowEditorRun run = makeRun(false, QStringLiteral("[0 0 1]"));
        run.table()->setCurrentCell(0, 0);
        run.table()->selectAll();
        QCOMPARE(middleOf(run.picture(), run.cell(0, 0)), QColor(0, 0, 255));
        const QColor beside = run.picture().pixelColor(run.cell(0, 1).topLeft() + QPoint(1, 1));
        QCOMPARE(beside, run.table()->palette().color(QPalette::Highlight));
    }

    void colorCellDoesntOpen_data() { kinds(); }

    void colorCellDoesntOpen()
    {
        const RowEditorRun run = makeRun();
        QVERIFY(run.table()->itemDelegate()->createEditor(nullptr, {}, run.table()->model()->index(0, 0)) == nullptr);
        QVERIFY(run.open(0, 1) != nullptr);
    }

    void linesOpenWithTheTextToTheirLeft_data() { kinds(); }

    void linesOpenWithTheTextToTheirLeft()
    {
        const RowEditorRun run = makeRun();
        for (int column = 1; column < run.table()->columnCount(); ++column) {
            QLineEdit* const line = run.open(0, column);
            QVERIFY(line != nullptr);
            QCOMPARE(line->text(), run.editor->getCellValue(0, column - 1));
            QTest::keyClick(line, Qt::Key_Escape);
            RowEditorRun::settle();
        }
        QCOMPARE(run.pushed(), 0);
    }

    void unchangedLineWritesItsNeighbour()
    {
        const RowEditorRun run = makeRun(false, QStringLiteral("[1 0.5 0.25]"));
        QLineEdit* const line = run.open(0, 2);
        QVERIFY(!line->isModified());
        QTest::keyClick(line, Qt::Key_Return);
        RowEditorRun::settle();
        QCOMPARE(run.text(), QStringLiteral("[1 1 0.25]"));
        QCOMPARE(run.pushed(), 1);
    }

    void unchangedRedLineWritesNothing()
    {
        const RowEditorRun run = makeRun(false, QStringLiteral("[1 0.5 0.25]"));
        QLineEdit* const line = run.open(0, 1);
        QCOMPARE(line->text(), QStringLiteral("Color"));
        QTest::keyClick(line, Qt::Key_Tab);
        RowEditorRun::settle();
        QCOMPARE(run.text(), QStringLiteral("[1 0.5 0.25]"));
        QCOMPARE(run.pushed(), 0);
        // What comes past the table's own test reaches the item, where nobody sees it, and not the field.
        QLineEdit* const again = run.open(0, 1);
        run.table()->itemDelegate()->setModelData(again, run.table()->model(), run.table()->model()->index(0, 1));
        QCOMPARE(run.table()->item(0, 1)->text(), QStringLiteral("Color"));
        QCOMPARE(run.text(), QStringLiteral("[1 0.5 0.25]"));
    }

    void typedComponent_data()
    {
        QTest::addColumn<bool>("hasOpacity");
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("value");
        QTest::newRow("red") << false << 1 << QStringLiteral("0.75") << QStringLiteral("0.75 0 0");
        QTest::newRow("green") << false << 2 << QStringLiteral("1") << QStringLiteral("0 1 0");
        QTest::newRow("blue") << false << 3 << QStringLiteral("0.5") << QStringLiteral("0 0 0.5");
        QTest::newRow("above the range") << false << 1 << QStringLiteral("1.5") << QStringLiteral("0 0 0");
        QTest::newRow("below the range") << false << 1 << QStringLiteral("-0.1") << QStringLiteral("0 0 0");
        QTest::newRow("opacity") << true << 4 << QStringLiteral("0.5") << QStringLiteral("0 0 0 0.5");
        QTest::newRow("above the range, with opacity")
            << true << 1 << QStringLiteral("1.5") << QStringLiteral("1.5 0 0 1");
        QTest::newRow("below the range, with opacity")
            << true << 4 << QStringLiteral("-1") << QStringLiteral("0 0 0 -1");
    }

    void typedComponent()
    {
        QFETCH(bool, hasOpacity);
        QFETCH(int, column);
        QFETCH(QString, typed);
        QFETCH(QString, value);
        const QString before = hasOpacity ? QStringLiteral("[0 0 0 1]") : QStringLiteral("[0 0 0]");
        const RowEditorRun run = makeRun(hasOpacity, before);
        run.edit(0, column, typed);
        QCOMPARE(run.text(), QStringLiteral("[%1]").arg(value));
        QCOMPARE(run.pushed(), run.text() == before ? 0 : 1);
    }

    void linesTakeFloats()
    {
        const RowEditorRun run = makeRun(false, QStringLiteral("[0 0 0]"));
        const auto* const validator = qobject_cast<const QDoubleValidator*>(run.open(0, 1)->validator());
        QVERIFY(validator != nullptr);
        QCOMPARE(validator->bottom(), -3.4028234663852886e+38);
        QCOMPARE(validator->top(), 3.4028234663852886e+38);
    }

    void setRowColorWritesAndPushesOneCommand_data() { kinds(); }

    void setRowColorWritesAndPushesOneCommand()
    {
        QFETCH(bool, hasOpacity);
        const RowEditorRun run = makeRun();
        run.editor->setRowColor(1, VbVec4f(2, -1, 0.5F, 0.25F)); // no range is tested here
        QCOMPARE(run.pushed(), 1);
        const QStringList texts = run.texts(1).mid(1);
        QStringList expected{QStringLiteral("2"), QStringLiteral("-1"), QStringLiteral("0.5")};
        if (hasOpacity)
            expected << QStringLiteral("0.25");
        QCOMPARE(texts, expected);
    }

    void undoKeepsTheNewValue_data() { kinds(); }

    void undoKeepsTheNewValue()
    {
        const RowEditorRun run = makeRun();
        run.editor->setRowColor(1, VbVec4f(1, 1, 0.5F, 0.25F));
        const QString written = run.text();
        run.lastCommand().undo();
        QCOMPARE(run.text(), written);
        run.lastCommand().redo();
        QCOMPARE(run.text(), written);
    }

    void everyFieldIsTaken_data() { kinds(); }

    void everyFieldIsTaken()
    {
        const RowEditorRun run = makeRun();
        QVERIFY(run.editor->prepareForField(run.field));
        QVERIFY(run.editor->prepareForField(&run.node().mfString));
        QVERIFY(run.editor->prepareForField(&run.node().sfFloat));
    }

    void otherListsAreLeftAlone_data() { kinds(); }

    void otherListsAreLeftAlone()
    {
        RowEditorRun run = makeRun();
        for (NxField* const other : QList<NxField*>{&run.node().mfString, &run.node().sfFloat, &run.node().mfVec2f}) {
            QVERIFY(run.node().mfString.set("[\"a\"]"));
            QVERIFY(run.node().mfVec2f.set("[1 2]"));
            const QString before = ToolHarness::textOf(*other);
            run.select(other);
            QCOMPARE(run.editor->getCellValue(0, 1), QString());
            run.editor->setCellValue(0, 0, QStringLiteral("1"));
            run.editor->setRowColor(0, VbVec4f(1, 1, 1, 1));
            run.editor->swapRows(0, 1);
            QVERIFY(!run.picture().isNull());
            QCOMPARE(ToolHarness::textOf(*other), before);
        }
        QCOMPARE(run.pushed(), 0);
    }

    void nullFieldIsLeftAlone_data() { kinds(); }

    void nullFieldIsLeftAlone()
    {
        QFETCH(bool, hasOpacity);
        const RowEditorRun run(makeEditor(hasOpacity), word(hasOpacity));
        run.editor->setCellValue(0, 0, QStringLiteral("1"));
        run.editor->setRowColor(0, VbVec4f(1, 1, 1, 1));
        run.editor->swapRows(0, 1);
        QCOMPARE(run.editor->getCellValue(0, 0), QStringLiteral("Color"));
        QCOMPARE(run.editor->getCellValue(0, 1), QString());
        QCOMPARE(run.pushed(), 0);
    }

    void swapExchangesTwoRows_data() { kinds(); }

    void swapExchangesTwoRows()
    {
        const RowEditorRun run = makeRun();
        const QStringList first = run.texts(0);
        const QStringList second = run.texts(1);
        run.editor->swapRows(0, 1);
        QCOMPARE(run.texts(0), second);
        QCOMPARE(run.texts(1), first);
    }

private:
    static void kinds()
    {
        QTest::addColumn<bool>("hasOpacity");
        QTest::newRow("colours") << false;
        QTest::newRow("colours with opacity") << true;
    }
    static std::unique_ptr<DvMFieldWidget> makeEditor(bool hasOpacity, const char* name = nullptr)
    {
        if (hasOpacity)
            return std::make_unique<DvMFColorRGBAWidget>(name);
        return std::make_unique<DvMFColorWidget>(name);
    }
    static QString word(bool hasOpacity)
    {
        return hasOpacity ? QStringLiteral("MFColorRGBA") : QStringLiteral("MFColor");
    }
    static RowEditorRun makeRun(bool hasOpacity, const QString& value)
    {
        return {makeEditor(hasOpacity), word(hasOpacity), value};
    }
    static RowEditorRun makeRun()
    {
        QFETCH(bool, hasOpacity);
        return makeRun(hasOpacity,
            hasOpacity ? QStringLiteral("[1 0.5 0.25 0.75, 0 0 0 1]") : QStringLiteral("[1 0.5 0.25, 0 0 0]"));
    }
    static QColor middleOf(const QImage& picture, const QRect& cell) { return picture.pixelColor(cell.center()); }
};

QTEST_MAIN(TestColorRowEditors)
#include "tst_ColorRowEditors.moc"

#include "FieldEditors/DvSlider.h"
#include "FieldEditors/MFWidgets/DvMFDoubleWidget.h"
#include "FieldEditors/MFWidgets/DvMFFloatWidget.h"
#include "FieldEditors/MFWidgets/DvMFInt32Widget.h"
#include "FieldEditors/MFWidgets/DvMFShortWidget.h"
#include "FieldEditors/MFWidgets/DvMFUInt32Widget.h"
#include "FieldEditors/MFWidgets/DvMFUShortWidget.h"
#include "plugin/ListRun.h"
#include "plugin/SliderDriver.h"
#include "plugin/WriteCounter.h"

#include <QHeaderView>
#include <QLabel>

#include <functional>
#include <memory>

namespace {

using EditorMaker = std::function<std::unique_ptr<DvMFieldWidget>(const char* name)>;

template <typename Editor>
EditorMaker maker()
{
    return [](const char* name) { return std::make_unique<Editor>(name); };
}

} // namespace

Q_DECLARE_METATYPE(EditorMaker)

class TestLineCellEditors : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(ToolHarness::noWidgetIsLeft()); }

    void constructorWritesNameAndType_data()
    {
        QTest::addColumn<EditorMaker>("make");
        QTest::addColumn<QString>("word");
        QTest::newRow("double") << maker<DvMFDoubleWidget>() << QStringLiteral("MFDouble");
        QTest::newRow("float") << maker<DvMFFloatWidget>() << QStringLiteral("MFFloat");
        QTest::newRow("int32") << maker<DvMFInt32Widget>() << QStringLiteral("MFInt32");
        QTest::newRow("short") << maker<DvMFShortWidget>() << QStringLiteral("MFShort");
        QTest::newRow("uint32") << maker<DvMFUInt32Widget>() << QStringLiteral("MFUInt32");
        QTest::newRow("ushort") << maker<DvMFUShortWidget>() << QStringLiteral("MFUShort");
    }

    void constructorWritesNameAndType()
    {
        QFETCH(const EditorMaker, make);
        QFETCH(const QString, word);
        const ToolHarness tool;
        const auto plain = make(nullptr);
        QCOMPARE(plain->objectName(), QStringLiteral("Dv%1Widget").arg(word));
        QCOMPARE(QString::fromUtf8(plain->getName().toUtf8()), word);
        QCOMPARE(QString::fromLatin1(plain->getHandledType().getName().getString()), word);
        QCOMPARE(make("other")->objectName(), QStringLiteral("other"));
        QCOMPARE(plain->getCellAlignment(), 132);
    }

    void loadGivesOneColumnAndNoRows_data() { constructorWritesNameAndType_data(); }

    void loadGivesOneColumnAndNoRows()
    {
        QFETCH(const EditorMaker, make);
        QFETCH(const QString, word);
        const ToolHarness tool;
        const auto editor = make(nullptr);
        const EditorRun run(*editor);
        auto* const table = run.find<DvMFieldTable>("m_table");
        QCOMPARE(table->columnCount(), 1);
        QCOMPARE(table->rowCount(), 0);
        QCOMPARE(table->horizontalHeader()->sectionResizeMode(0), QHeaderView::Interactive);
        QVERIFY(table->horizontalHeaderItem(0) == nullptr);
        QCOMPARE(run.find<QLabel>("m_label")->text(), QStringLiteral("<p align=\"center\">%1</p>").arg(word));
    }

    void cellsShowTheFieldsOwnText()
    {
        ListRun<DvMFDoubleWidget> run;
        run.node->mfDouble.set("[1.5, -2e300, 0.1]");
        run.show(run.node->mfDouble);
        QCOMPARE(run.table->rowCount(), 3);
        const QStringList texts = run.texts(run.node->mfDouble);
        for (int row = 0; row < 3; ++row)
            QCOMPARE(run.editor.getCellValue(row, 0), texts.at(row));
    }

    void textOfOtherCellsIsEmpty()
    {
        ListRun<DvMFInt32Widget> run;
        run.node->mfInt32.set("[1, 2]");
        run.show(run.node->mfInt32);
        QCOMPARE(run.editor.getCellValue(0, 1), QString());
        QCOMPARE(run.editor.getCellValue(2, 0), QString());
        QCOMPARE(run.editor.getCellValue(-1, 0), QString());
    }

    void cellIsWrittenWhateverTheColumn()
    {
        ListRun<DvMFInt32Widget> run;
        run.node->mfInt32.set("[1, 2]");
        run.show(run.node->mfInt32);
        run.editor.setCellValue(1, 7, QStringLiteral("25"));
        run.editor.setCellValue(0, 0, QStringLiteral("no number"));
        run.editor.setCellValue(9, 0, QStringLiteral("3"));
        QCOMPARE(run.textOf(run.node->mfInt32), QStringLiteral("[1, 25]"));
        QCOMPARE(run.services.pushed, 0);
    }

    void swapExchangesTwoRowsWithoutACommand()
    {
        ListRun<DvMFShortWidget> run;
        run.node->mfShort.set("[1, 2, 3]");
        run.show(run.node->mfShort);
        run.editor.swapRows(0, 2);
        QCOMPARE(run.textOf(run.node->mfShort), QStringLiteral("[3, 2, 1]"));
        QCOMPARE(run.services.pushed, 0);
    }

    void swapOutOfRangeDoesNothing()
    {
        ListRun<DvMFShortWidget> run;
        run.node->mfShort.set("[1, 2, 3]");
        run.show(run.node->mfShort);
        WriteCounter counter(run.node->mfShort);
        run.editor.swapRows(0, 3);
        run.editor.swapRows(-1, 1);
        run.editor.swapRows(3, 0);
        QCOMPARE(counter.writes, 0);
    }

    void fieldOfAnotherTypeIsRefused()
    {
        ListRun<DvMFInt32Widget> run;
        run.node->mfInt32.set("[1, 2]");
        run.show(run.node->mfInt32);
        run.editor.setField(&run.node->mfFloat);
        QCOMPARE(run.editor.field(), &run.node->mfInt32);
        run.editor.updateFromField();
        QCOMPARE(run.table->rowCount(), 2);
        // Its changes come in nevertheless, and find the former field.
        run.node->mfFloat.set("[1, 2, 3]");
        run.settle();
        QCOMPARE(run.table->rowCount(), 2);
    }

    void nullFieldIsRefusedAndNothingCrashes()
    {
        ListRun<DvMFFloatWidget> run;
        run.editor.setField(nullptr);
        run.editor.updateFromField();
        run.editor.setCellValue(0, 0, QStringLiteral("1"));
        run.editor.swapRows(0, 1);
        QCOMPARE(run.editor.getCellValue(0, 0), QString());
        for (const char* const button : {"m_addButton", "m_deleteButton", "m_defaultButton", "m_ignoreButton"})
            run.press(button);
        QCOMPARE(run.table->rowCount(), 0);
        QCOMPARE(run.services.pushed, 0);
    }

    void kindsOfCellEditors_data()
    {
        QTest::addColumn<EditorMaker>("make");
        QTest::addColumn<QByteArray>("field");
        QTest::addColumn<bool>("slider");
        QTest::newRow("double") << maker<DvMFDoubleWidget>() << QByteArray("mfDouble") << false;
        QTest::newRow("float") << maker<DvMFFloatWidget>() << QByteArray("mfFloat") << true;
        QTest::newRow("int32") << maker<DvMFInt32Widget>() << QByteArray("mfInt32") << true;
        QTest::newRow("short") << maker<DvMFShortWidget>() << QByteArray("mfShort") << true;
        QTest::newRow("uint32") << maker<DvMFUInt32Widget>() << QByteArray("mfUInt32") << true;
        QTest::newRow("ushort") << maker<DvMFUShortWidget>() << QByteArray("mfUShort") << true;
    }

    void kindsOfCellEditors()
    {
        QFETCH(const EditorMaker, make);
        QFETCH(const QByteArray, field);
        QFETCH(const bool, slider);
        const ToolHarness tool;
        NxField* const list = tool.node->getField(VbName(field.constData()));
        list->set("[25, 30]");
        const auto editor = make(nullptr);
        const EditorRun run(*editor, *list);
        QAbstractItemView* const table = run.find<DvMFieldTable>("m_table");
        for (int row = 0; row < 2; ++row) {
            table->openPersistentEditor(table->model()->index(row, 0));
            QWidget* const open = table->indexWidget(table->model()->index(row, 0));
            QCOMPARE(qobject_cast<DvSlider*>(open) != nullptr, slider);
            QCOMPARE(open->focusPolicy(), Qt::StrongFocus);
            const SliderDriver driver(*open);
            const QString text = slider ? driver.line->text() : qobject_cast<QLineEdit*>(open)->text();
            QCOMPARE(text.toDouble(), row == 0 ? 25.0 : 30.0);
        }
    }

    void openingACellWritesNothing_data() { kindsOfCellEditors_data(); }

    void openingACellWritesNothing()
    {
        QFETCH(const EditorMaker, make);
        QFETCH(const QByteArray, field);
        ToolHarness tool;
        NxField* const list = tool.node->getField(VbName(field.constData()));
        list->set("[25, 30]");
        const auto editor = make(nullptr);
        const EditorRun run(*editor, *list);
        WriteCounter counter(*list);
        QAbstractItemView* const table = run.find<DvMFieldTable>("m_table");
        table->openPersistentEditor(table->model()->index(1, 0));
        QCoreApplication::processEvents();
        table->closePersistentEditor(table->model()->index(1, 0));
        QCoreApplication::processEvents();
        QCOMPARE(counter.writes, 0);
        QCOMPARE(tool.services.pushed, 0);
    }
};

QTEST_MAIN(TestLineCellEditors)
#include "tst_LineCellEditors.moc"

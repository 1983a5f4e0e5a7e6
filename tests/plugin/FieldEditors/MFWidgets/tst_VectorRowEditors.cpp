#include "FieldEditors/MFWidgets/DvMFPlaneWidget.h"
#include "FieldEditors/MFWidgets/DvMFRotationWidget.h"
#include "FieldEditors/MFWidgets/DvMFVec2fWidget.h"
#include "FieldEditors/MFWidgets/DvMFVec2i32Widget.h"
#include "FieldEditors/MFWidgets/DvMFVec2sWidget.h"
#include "FieldEditors/MFWidgets/DvMFVec3fWidget.h"
#include "FieldEditors/MFWidgets/DvMFVec4fWidget.h"
#include "plugin/FieldEditors/MFWidgets/RowEditorRun.h"

#include <QDoubleValidator>
#include <QIntValidator>
#include <QLabel>

namespace {

struct Entry {
    const char* type;
    std::unique_ptr<DvMFieldWidget> (*make)(const char* name);
    QStringList labels;
    const char* value; // of two rows
    QStringList first; // the texts of its first row
};

template <typename Editor>
std::unique_ptr<DvMFieldWidget> makeEditor(const char* name)
{
    return std::make_unique<Editor>(name);
}

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char('|'));
}

const QList<Entry> entries{
    {"MFVec2f", makeEditor<DvMFVec2fWidget>, words("x|y"), "[0.12345678 -2, 3 4]", words("0.123457|-2")},
    {"MFVec2i32", makeEditor<DvMFVec2i32Widget>, words("x|y"), "[2147483647 -2147483648, 3 4]",
        words("2147483647|-2147483648")},
    {"MFVec2s", makeEditor<DvMFVec2sWidget>, words("x|y"), "[32767 -32768, 3 4]", words("32767|-32768")},
    {"MFVec3f", makeEditor<DvMFVec3fWidget>, words("x|y|z"), "[1 2 1e+20, 4 5 6]", words("1|2|1e+20")},
    {"MFVec4f", makeEditor<DvMFVec4fWidget>, words("x|y|z|w"), "[1 2 3 0.1, 5 6 7 8]", words("1|2|3|0.1")},
    {"MFPlane", makeEditor<DvMFPlaneWidget>, words("x|y|z|distance"), "[0.6 0.8 0 5, 0 0 1 2]", words("0.6|||")},
    {"MFRotation", makeEditor<DvMFRotationWidget>, words("x|y|z|radians"), "[1 0 0 1.5707964, 0 0 1 2]",
        words("0.707107|||")},
};

} // namespace

class TestVectorRowEditors : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(ToolHarness::noWidgetIsLeft()); }
    void constructorWritesTheNames_data() { rows(); }

    void constructorWritesTheNames()
    {
        const std::unique_ptr<DvMFieldWidget> editor = entry().make(nullptr);
        QCOMPARE(editor->objectName(), QStringLiteral("Dv%1Widget").arg(QLatin1String(entry().type)));
        QCOMPARE(QString::fromUtf8(editor->getName().toUtf8()), QLatin1String(entry().type));
        QCOMPARE(QString::fromLatin1(editor->getHandledType().getName().getString()), QLatin1String(entry().type));
        QCOMPARE(entry().make("mine")->objectName(), QStringLiteral("mine"));
    }

    void loadBuildsTheColumns_data() { rows(); }

    void loadBuildsTheColumns()
    {
        const RowEditorRun run(entry().make(nullptr), QLatin1String(entry().type));
        QCOMPARE(run.labels(), entry().labels);
        QCOMPARE(run.table()->rowCount(), 0);
        for (int column = 0; column < run.table()->columnCount(); ++column)
            QCOMPARE(run.table()->horizontalHeader()->sectionResizeMode(column), QHeaderView::Interactive);
        const QString label = QStringLiteral("<p align=\"center\">%1</p>").arg(QLatin1String(entry().type));
        QCOMPARE(run.find<QLabel>("m_label")->text(), label);
    }

    void columnsShareTheWidth_data() { rows(); }

    void columnsShareTheWidth()
    {
        const RowEditorRun run = runWithField();
        QHeaderView* const header = run.table()->horizontalHeader();
        const auto isFilled = [&run, header] {
            const int left = run.table()->viewport()->width() - header->length();
            return left >= 0 && left < header->count();
        };
        QVERIFY(isFilled());
        run.table()->window()->resize(500, 260);
        QTRY_VERIFY(run.table()->viewport()->width() < 500);
        QVERIFY(isFilled());
        // What the user drags stays as it is.
        header->resizeSection(0, 50);
        run.table()->window()->resize(600, 260);
        QTRY_VERIFY(run.table()->viewport()->width() > 450);
        QCOMPARE(header->sectionSize(0), 50);
        QVERIFY(!isFilled());
    }

    void rowsBeforeLoadGetPlaceholders_data() { rows(); }

    void rowsBeforeLoadGetPlaceholders()
    {
        const std::unique_ptr<DvMFieldWidget> editor = entry().make(nullptr);
        auto* const table = editor->getFrame()->findChild<DvMFieldTable*>(QStringLiteral("m_table"));
        table->setRowCount(2);
        int placeholders = 0;
        connect(table, &QTableWidget::itemChanged, this, [&placeholders] { ++placeholders; });
        const EditorRun run(*editor);
        QCOMPARE(placeholders, 2 * static_cast<int>(entry().labels.size()));
        QCOMPARE(table->rowCount(), 0);
    }

    void cellsShowTheirTexts_data() { rows(); }

    void cellsShowTheirTexts()
    {
        const RowEditorRun run = runWithField();
        QCOMPARE(run.table()->rowCount(), 2);
        QCOMPARE(run.texts(0), entry().first);
        const int columns = run.table()->columnCount();
        QCOMPARE(run.editor->getCellValue(0, columns), QString());
        QCOMPARE(run.editor->getCellValue(0, -1), QString());
        QCOMPARE(run.editor->getCellValue(2, 0), QString());
        QCOMPARE(run.editor->getCellValue(-1, 0), QString());
    }

    void otherFieldsAreRefused_data() { rows(); }

    void otherFieldsAreRefused()
    {
        const RowEditorRun run = runWithField();
        QVERIFY(run.editor->prepareForField(run.field));
        QVERIFY(!run.editor->prepareForField(&run.node().mfFloat));
        QVERIFY(!run.editor->prepareForField(&run.node().sfFloat));
        QVERIFY(!run.editor->prepareForField(nullptr));
    }

    void nullFieldIsLeftAlone_data() { rows(); }

    void nullFieldIsLeftAlone()
    {
        const RowEditorRun run(entry().make(nullptr), QLatin1String(entry().type));
        run.editor->setCellValue(0, 0, QStringLiteral("1"));
        run.editor->swapRows(0, 1);
        run.editor->reservedRowOperation();
        QCOMPARE(run.editor->getCellValue(0, 0), QString());
        QCOMPARE(run.pushed(), 0);
    }

    void typedCellIsWrittenAndPushesOneCommand_data() { rows(); }

    void typedCellIsWrittenAndPushesOneCommand()
    {
        const RowEditorRun run = runWithField();
        run.edit(1, 0, QStringLiteral("1"));
        QCOMPARE(run.pushed(), 1);
        ToolHarness::pump();
        // A plane's normal and a rotation's quaternion are made of unit length with the new component.
        const QHash<QString, QString> expected{{QStringLiteral("MFPlane"), QStringLiteral("0.707107")},
            {QStringLiteral("MFRotation"), QStringLiteral("0.707107")}};
        QCOMPARE(run.editor->getCellValue(1, 0), expected.value(QLatin1String(entry().type), QStringLiteral("1")));
        QCOMPARE(run.texts(0), entry().first);
    }

    void undoKeepsTheNewValue_data() { rows(); }

    void undoKeepsTheNewValue()
    {
        const RowEditorRun run = runWithField();
        run.edit(1, 0, QStringLiteral("1"));
        const QString written = run.text();
        QVERIFY(written != QLatin1String(entry().value));
        run.lastCommand().undo();
        QCOMPARE(run.text(), written);
        run.lastCommand().redo();
        QCOMPARE(run.text(), written);
    }

    void escapeLeavesTheFieldAlone_data() { rows(); }

    void escapeLeavesTheFieldAlone()
    {
        const RowEditorRun run = runWithField();
        const QString before = run.text();
        run.edit(1, 0, QStringLiteral("1"), Qt::Key_Escape);
        QCOMPARE(run.text(), before);
        QCOMPARE(run.pushed(), 0);
    }

    void unchangedLineIsNotWritten_data() { rows(); }

    void unchangedLineIsNotWritten()
    {
        const RowEditorRun run = runWithField();
        for (int column = 0; column < run.table()->columnCount(); ++column) {
            QLineEdit* const line = run.open(0, column);
            QVERIFY(line != nullptr);
            QCOMPARE(line->text(), entry().first.at(column));
            QTest::keyClick(line, Qt::Key_Return);
            RowEditorRun::settle();
        }
        QCOMPARE(run.pushed(), 0);
    }

    void unknownColumnWritesTheRowAsItWas_data() { rows(); }

    void unknownColumnWritesTheRowAsItWas()
    {
        const RowEditorRun run = runWithField();
        const QStringList before = run.texts(1);
        run.editor->setCellValue(1, run.table()->columnCount(), QStringLiteral("7"));
        run.editor->setCellValue(1, -1, QStringLiteral("7"));
        QCOMPARE(run.texts(1), before);
        QCOMPARE(run.pushed(), 2);
    }

    void missingRowChangesNothing_data() { rows(); }

    void missingRowChangesNothing()
    {
        const RowEditorRun run = runWithField();
        const QString before = run.text();
        run.editor->setCellValue(2, 0, QStringLiteral("7"));
        run.editor->setCellValue(-1, 0, QStringLiteral("7"));
        QCOMPARE(run.text(), before);
    }

    void swapExchangesTwoRows_data() { rows(); }

    void swapExchangesTwoRows()
    {
        const RowEditorRun run = runWithField();
        const QString before = run.text();
        const QStringList first = run.texts(0);
        const QStringList second = run.texts(1);
        for (const auto& [one, other] : {std::pair(0, 2), std::pair(-1, 1), std::pair(2, 0), std::pair(1, -1)})
            run.editor->swapRows(one, other);
        QCOMPARE(run.text(), before);
        run.editor->swapRows(0, 1);
        QCOMPARE(run.texts(0), second);
        QCOMPARE(run.texts(1), first);
        run.editor->swapRows(1, 0);
        QCOMPARE(run.text(), before);
        QCOMPARE(run.pushed(), 0);
    }

    void validatorsFollowTheType_data() { rows(); }

    void validatorsFollowTheType()
    {
        const RowEditorRun run = runWithField();
        const QValidator* const validator = run.open(0, 1)->validator();
        if (QLatin1String(entry().type) == QLatin1String("MFVec2s")) {
            QVERIFY(validator == nullptr);
        } else if (QLatin1String(entry().type) == QLatin1String("MFVec2i32")) {
            const auto* const integer = qobject_cast<const QIntValidator*>(validator);
            QVERIFY(integer != nullptr);
            QCOMPARE(integer->bottom(), -2147483647);
            QCOMPARE(integer->top(), 2147483647);
        } else {
            const auto* const real = qobject_cast<const QDoubleValidator*>(validator);
            QVERIFY(real != nullptr);
            QCOMPARE(real->bottom(), -3.4028234663852886e+38);
            QCOMPARE(real->top(), 3.4028234663852886e+38);
            QCOMPARE(real->decimals(), 6);
        }
    }

    void cellsAreLeftAligned_data() { rows(); }

    void cellsAreLeftAligned()
    {
        const std::unique_ptr<DvMFieldWidget> editor = entry().make(nullptr);
        QCOMPARE(editor->getCellAlignment(), 1);
    }

private:
    static void rows()
    {
        QTest::addColumn<int>("entry");
        for (int index = 0; index < entries.size(); ++index)
            QTest::newRow(entries.at(index).type) << index;
    }
    static const Entry& entry()
    {
        QFETCH(int, entry);
        return entries.at(entry);
    }
    static RowEditorRun runWithField()
    {
        return {entry().make(nullptr), QLatin1String(entry().type), QLatin1String(entry().value)};
    }
};

QTEST_MAIN(TestVectorRowEditors)
#include "tst_VectorRowEditors.moc"

#include "FieldEditors/MFWidgets/DvMFMatrixWidget.h"
#include "FieldEditors/MFWidgets/DvTablePopupLineEdit.h"
#include "plugin/FieldEditors/MFWidgets/RowEditorRun.h"

#include <QFrame>
#include <QGridLayout>

namespace {

constexpr VbMatrix counting(11, 12, 13, 14, 21, 22, 23, 24, 31, 32, 33, 34, 41, 42, 43, 44);

} // namespace

class TestDvMFMatrixWidget : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_run = std::make_unique<RowEditorRun>(std::make_unique<DvMFMatrixWidget>(), QStringLiteral("MFMatrix"),
            QStringLiteral("[1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1]"));
        fill(counting);
        m_run->table()->setCurrentCell(1, 0);
    }

    void cleanup()
    {
        m_run.reset();
        QVERIFY(ToolHarness::noWidgetIsLeft());
    }

    void constructorWritesTheNames()
    {
        QCOMPARE(editor().objectName(), QStringLiteral("DvMFMatrixWidget"));
        QCOMPARE(DvMFMatrixWidget("mine").objectName(), QStringLiteral("mine"));
        QCOMPARE(editor().getName(), VbString("MFMatrix"));
        QCOMPARE(editor().getHandledType().getName().getString(), "MFMatrix");
        QCOMPARE(editor().getCellAlignment(), 1);
    }

    void everyCellShowsTheWholeField()
    {
        for (int row = -1; row < 4; ++row) {
            QCOMPARE(editor().getCellValue(row, 0), m_run->text());
            QCOMPARE(editor().getCellValue(row, 7), m_run->text());
        }
    }

    void paintedCellsShowItsBeginning()
    {
        m_run->table()->clearSelection();
        for (const int width : {40, 100, 600}) {
            m_run->table()->setColumnWidth(0, width);
            const QImage few = m_run->picture().copy(m_run->cell(0, 0));
            QCOMPARE(m_run->picture().copy(m_run->cell(1, 0)), few);
            list().setValues(std::vector<VbMatrix>(50, counting));
            ToolHarness::pump();
            QCOMPARE(m_run->picture().copy(m_run->cell(0, 0)), few);
            fill(counting);
        }
        // A short text is shown whole.
        m_run->table()->setColumnWidth(0, 600);
        const QImage full = m_run->picture().copy(m_run->cell(0, 0));
        QVERIFY(list().set("[1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1]"));
        QVERIFY(m_run->picture().copy(m_run->cell(0, 0)) != full);
    }

    void paintedTextIsNeverStale()
    {
        const QImage before = m_run->picture().copy(m_run->cell(1, 0));
        VbMatrix other = counting;
        other[0][0] = 7;
        // The sensor hasn't been called, and even a write that changes nothing else than the first row shows in all.
        QVERIFY(list().set1Value(0, other));
        QVERIFY(m_run->picture().copy(m_run->cell(1, 0)) != before);
        QVERIFY(list().set1Value(0, counting));
        QCOMPARE(m_run->picture().copy(m_run->cell(1, 0)), before);
    }

    void popupTextsSkipThroughTheMatrix_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("text");
        const QStringList texts
            = QStringLiteral("11 21 31 41 21 22 23 24 31 32 33 34 41 42 43 44").split(QLatin1Char(' '));
        for (int index = 0; index < 16; ++index)
            QTest::addRow("line %d", index) << index << texts.at(index);
    }

    void popupTextsSkipThroughTheMatrix()
    {
        QFETCH(int, index);
        QFETCH(QString, text);
        QCOMPARE(editor().getPopupCellValue(1, index), text);
    }

    void popupTextsOfMissingRowsAreEmpty()
    {
        QCOMPARE(editor().getPopupCellValue(-1, 0), QString());
        QCOMPARE(editor().getPopupCellValue(2, 0), QString());
    }

    void openingWritesLineByLine()
    {
        m_run->click("m_editButton");
        // The first line writes the row while the others are still empty, so all that the rest finds there is 0.
        QCOMPARE(list()[1], VbMatrix(11, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0));
        QCOMPARE(list()[0], counting);
        QCOMPARE(lines().size(), 16);
        QCOMPARE(lineAt(0, 0)->text(), QStringLiteral("11"));
        QCOMPARE(lineAt(1, 0)->text(), QStringLiteral("0"));
        QCOMPARE(m_run->pushed(), 16);
    }

    void gridIsTransposed()
    {
        for (int row = 0; row < 4; ++row) {
            for (int column = 0; column < 4; ++column)
                lineAt(row, column)->setText(QString::number(10 * row + column));
        }
        QCOMPARE(list()[1], VbMatrix(0, 10, 20, 30, 1, 11, 21, 31, 2, 12, 22, 32, 3, 13, 23, 33));
    }

    void typedNumberWritesTheWholeRow()
    {
        m_run->click("m_editButton");
        DvTablePopupLineEdit* const line = lineAt(2, 3);
        line->setFocus();
        line->selectAll();
        const int before = m_run->pushed();
        QTest::keyClicks(line, QStringLiteral("-2.5"));
        QCOMPARE(list()[1][3][2], -2.5F);
        QCOMPARE(list()[1][0][0], 11.0F);
        QCOMPARE(m_run->pushed(), before + 4);
    }

    void linesTakeFloatsOnly()
    {
        m_run->click("m_editButton");
        DvTablePopupLineEdit* const line = lineAt(0, 0);
        line->setFocus();
        line->selectAll();
        const int before = m_run->pushed();
        QTest::keyClicks(line, QStringLiteral("x"));
        QCOMPARE(line->text(), QStringLiteral("11"));
        QCOMPARE(m_run->pushed(), before);
        QTest::keyClicks(line, QStringLiteral("-"));
        QCOMPARE(list()[1][0][0], 0.0F);
    }

    void noCurrentRowWritesNothing()
    {
        m_run->table()->setCurrentItem(nullptr);
        const QString before = m_run->text();
        m_run->click("m_editButton");
        QTest::keyClicks(lineAt(0, 0), QStringLiteral("5"));
        QCOMPARE(m_run->text(), before);
    }

    void undoKeepsTheNewValue()
    {
        lineAt(0, 0)->setText(QStringLiteral("5"));
        const QString written = m_run->text();
        m_run->lastCommand().undo();
        QCOMPARE(m_run->text(), written);
    }

    void addedRowLeavesTheOldOneCurrent()
    {
        m_run->click("m_addButton");
        QCOMPARE(list().getNum(), 3);
        QCOMPARE(m_run->table()->currentRow(), 1);
        lineAt(0, 0)->setText(QStringLiteral("5"));
        QCOMPARE(list()[1][0][0], 5.0F);
        QCOMPARE(list()[2], VbMatrix());
    }

    void swapExchangesTwoRows()
    {
        QVERIFY(list().set1Value(0, VbMatrix()));
        editor().swapRows(0, 1);
        QCOMPARE(list()[0], counting);
        QCOMPARE(list()[1], VbMatrix());
        editor().swapRows(0, 2);
        editor().swapRows(-1, 0);
        QCOMPARE(list()[0], counting);
        QCOMPARE(m_run->pushed(), 0);
    }

    void otherFieldsAreRefused()
    {
        QVERIFY(editor().prepareForField(m_run->field));
        QVERIFY(!editor().prepareForField(&m_run->node().sfMatrix));
        QVERIFY(!editor().prepareForField(&m_run->node().mfFloat));
        QVERIFY(!editor().prepareForField(nullptr));
    }

    void nullFieldIsLeftAlone()
    {
        m_run.reset();
        m_run = std::make_unique<RowEditorRun>(std::make_unique<DvMFMatrixWidget>(), QStringLiteral("MFMatrix"));
        editor().setCellValue(0, 0, QString());
        editor().swapRows(0, 1);
        editor().reservedRowOperation();
        QCOMPARE(editor().getCellValue(0, 0), QString());
        QCOMPARE(editor().getPopupCellValue(0, 0), QString());
        m_run->click("m_editButton");
        QTest::keyClicks(lineAt(0, 0), QStringLiteral("5"));
        QCOMPARE(m_run->pushed(), 0);
    }

private:
    [[nodiscard]] DvMFMatrixWidget& editor() const { return static_cast<DvMFMatrixWidget&>(*m_run->editor); }
    [[nodiscard]] NxMFMatrix& list() const { return m_run->node().mfMatrix; }
    [[nodiscard]] QList<DvTablePopupLineEdit*> lines() const
    {
        return m_run->editor->getFrame()->findChildren<DvTablePopupLineEdit*>();
    }
    [[nodiscard]] DvTablePopupLineEdit* lineAt(int row, int column) const
    {
        const auto* const grid = qobject_cast<QGridLayout*>(lines().constFirst()->parentWidget()->layout());
        return qobject_cast<DvTablePopupLineEdit*>(grid->itemAtPosition(row, column)->widget());
    }
    void fill(const VbMatrix& matrix) const
    {
        list().setValues(std::vector<VbMatrix>(2, matrix));
        ToolHarness::pump();
    }

    std::unique_ptr<RowEditorRun> m_run;
};

QTEST_MAIN(TestDvMFMatrixWidget)
#include "tst_DvMFMatrixWidget.moc"

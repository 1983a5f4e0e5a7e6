#include "VirtualSlot.h"
#include "plugin/NumbersRun.h"

#include <QMetaMethod>
#include <QSignalSpy>

#include <cstdio>

#include <unistd.h>

namespace {

/// What goes to standard error while it lives.
class ErrorOutput {
public:
    ErrorOutput()
        : m_file(std::tmpfile())
        , m_former(dup(STDERR_FILENO))
    {
        std::fflush(stderr);
        dup2(fileno(m_file), STDERR_FILENO);
    }
    ErrorOutput(const ErrorOutput&) = delete;
    ErrorOutput& operator=(const ErrorOutput&) = delete;
    ~ErrorOutput()
    {
        restore();
        std::fclose(m_file);
    }
    QByteArray take()
    {
        restore();
        std::rewind(m_file);
        QByteArray text(1000, '\0');
        text.resize(static_cast<qsizetype>(std::fread(text.data(), 1, 1000, m_file)));
        return text;
    }

private:
    void restore()
    {
        std::fflush(stderr);
        if (m_former >= 0) {
            dup2(m_former, STDERR_FILENO);
            close(m_former);
        }
        m_former = -1;
    }

    std::FILE* m_file;
    int m_former;
};

} // namespace

class TestDvMFieldTable : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(ToolHarness::noWidgetIsLeft()); }

    void constructorNamesTheTableAndSetsTheScrollBars()
    {
        const NumbersRun run(2);
        QCOMPARE(DvMFieldTable(const_cast<DvMFInt32Widget*>(&run.editor), nullptr, nullptr).objectName(),
            QStringLiteral("DvMFieldTable"));
        QCOMPARE(run.table->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
        QCOMPARE(run.table->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QCOMPARE(run.table->selectionMode(), QAbstractItemView::ExtendedSelection); // as Qt makes it
        QVERIFY(run.table->item(0, 0) == nullptr);
    }

    void slotsAndOperationsHaveTheirOrder()
    {
        const QMetaObject& meta = DvMFieldTable::staticMetaObject;
        QList<QByteArray> names;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
            names << meta.method(i).methodSignature();
        QCOMPARE(names,
            QList<QByteArray>({"setNumRows(int)", "swapUpRow()", "swapDownRow()", "deleteRow()", "addRow()",
                "showTableRow(int)", "swapRows(int,int)", "editorDestroyed(QObject*)"}));
        QCOMPARE(virtualSlot(&DvMFieldTable::addRow), virtualSlot(&DvMFieldTable::deleteRow) + 1);
        QCOMPARE(virtualSlot(&DvMFieldTable::swapRows), virtualSlot(&DvMFieldTable::deleteRow) + 2);
    }

    void negativeNumberOfRowsDoesNothing()
    {
        NumbersRun run(3);
        run.table->setNumRows(-1);
        QCOMPARE(run.table->rowCount(), 3);
        QCOMPARE(run.box->maximum(), 3);
    }

    void accessBoxCountsFromOneAndTheTableFromZero()
    {
        NumbersRun run(3);
        for (int row = 0; row < 3; ++row)
            run.table->setPlaceholder(row, 0);
        run.box->setValue(2);
        QCOMPARE(run.table->currentRow(), 2);
        run.box->setValue(1);
        QCOMPARE(run.table->currentRow(), 1);
    }

    void rowWithoutAPlaceholderLeavesNoCurrentCell()
    {
        NumbersRun run(3);
        run.click(0);
        QCOMPARE(run.table->currentRow(), 0);
        run.box->setValue(2);
        QCOMPARE(run.table->currentRow(), -1);
    }

    void highestNumberGoesNowhere()
    {
        NumbersRun run(3);
        run.click(0);
        run.box->setValue(3);
        QCOMPARE(run.table->currentRow(), 0);
        run.table->showTableRow(-1);
        QCOMPARE(run.table->currentRow(), 0);
    }

    void returnInTheAccessBoxGoesToTheRowOnceMore()
    {
        NumbersRun run(3);
        run.table->setPlaceholder(1, 0);
        run.click(0);
        QCOMPARE(run.box->value(), 1);
        const QSignalSpy changes(run.box, &QSpinBox::valueChanged);
        QTest::keyClick(run.box, Qt::Key_Return);
        QTest::keyClick(run.box, Qt::Key_Enter);
        QCOMPARE(changes.count(), 2);
        QCOMPARE(run.table->currentRow(), 1);
        QTest::keyClick(run.box, Qt::Key_Up);
        QCOMPARE(run.box->value(), 2);
    }

    void upBringsTheBoxesRowUp()
    {
        NumbersRun run(4);
        run.box->setValue(3);
        ErrorOutput output;
        run.table->swapUpRow();
        QCOMPARE(output.take(), QByteArray("DvMFieldTable::swapUpRow() 2\n"));
        QCOMPARE(run.text(), QStringLiteral("[1,3,2,4]"));
        QCOMPARE(run.box->value(), 2);
        QCOMPARE(run.services.pushed, 1);
    }

    void downBringsTheBoxesRowDown()
    {
        NumbersRun run(4);
        run.box->setValue(2);
        ErrorOutput output;
        run.table->swapDownRow();
        QCOMPARE(output.take(), QByteArray("DvMFieldTable::swapDownRow() 1\n"));
        QCOMPARE(run.text(), QStringLiteral("[1,3,2,4]"));
        QCOMPARE(run.box->value(), 3);
    }

    void swapsAtTheEndsOnlyPrintTheirLine()
    {
        NumbersRun run(2);
        run.box->setValue(1);
        ErrorOutput output;
        run.table->swapUpRow();
        run.box->setValue(2);
        run.table->swapDownRow();
        QCOMPARE(output.take(), QByteArray("DvMFieldTable::swapUpRow() 0\nDvMFieldTable::swapDownRow() 1\n"));
        QCOMPARE(run.text(), QStringLiteral("[1,2]"));
        QCOMPARE(run.services.pushed, 0);
    }

    void addPutsARowBehindTheCurrentOne()
    {
        NumbersRun run(3);
        run.click(1);
        run.table->addRow();
        QCOMPARE(run.text(), QStringLiteral("[1,2,0,3]"));
        QCOMPARE(run.table->rowCount(), 4);
        QCOMPARE(run.box->maximum(), 4);
        QCOMPARE(run.table->currentRow(), 1); // not the new one
        QVERIFY(run.table->item(2, 0) != nullptr);
        run.settle();
        QCOMPARE(run.table->rowCount(), 4);
    }

    void addInAnEmptyTableMakesTheFirstRow()
    {
        NumbersRun run(0);
        run.table->addRow();
        QCOMPARE(run.text(), QStringLiteral("[0]"));
        QCOMPARE(run.box->minimum(), 1);
        QCOMPARE(run.box->maximum(), 1);
        QCOMPARE(run.table->currentRow(), 0);
        run.settle();
        QCOMPARE(run.box->maximum(), 1);
    }

    void addWithoutACurrentRowInsertsFirst()
    {
        NumbersRun run(2);
        run.table->setCurrentItem(nullptr);
        run.table->addRow();
        QCOMPARE(run.text(), QStringLiteral("[0,1,2]"));
        QCOMPARE(run.table->currentRow(), 0);
    }

    void addTellsOfTheCurrentCell()
    {
        NumbersRun run(2);
        QSignalSpy changes(run.table, &QTableWidget::currentCellChanged);
        run.click(1);
        changes.clear();
        run.table->addRow();
        QCOMPARE(changes.last(), QVariantList({1, 0, 2, 0}));
        run.table->setCurrentItem(nullptr);
        run.table->addRow();
        QCOMPARE(changes.last(), QVariantList({0, 0, 0, 0}));
    }

    void addClearsTheFormerPlaceholders()
    {
        NumbersRun run(4);
        run.table->setPlaceholder(0, 0);
        run.table->setPlaceholder(3, 0);
        run.click(1);
        run.table->addRow();
        for (int row = 0; row < 5; ++row)
            QCOMPARE(run.table->item(row, 0) != nullptr, row == 2);
        run.table->addRow();
        for (int row = 0; row < 6; ++row)
            QCOMPARE(run.table->item(row, 0) != nullptr, row == 2);
    }

    void deleteRemovesTheCurrentRow()
    {
        NumbersRun run(3);
        run.click(1);
        run.table->deleteRow();
        QCOMPARE(run.text(), QStringLiteral("[1,3]"));
        QCOMPARE(run.table->rowCount(), 2);
        QCOMPARE(run.box->maximum(), 2);
        QCOMPARE(run.services.pushed, 1);
    }

    void deleteOfTheLastRowEmptiesTheBox()
    {
        NumbersRun run(1);
        run.click(0);
        run.table->deleteRow();
        run.settle();
        QCOMPARE(run.text(), QStringLiteral("[]"));
        QCOMPARE(run.box->minimum(), 0);
        QCOMPARE(run.box->maximum(), 0);
        run.table->deleteRow();
        QCOMPARE(run.services.pushed, 1);
    }

    void deleteWithoutACurrentRowDoesNothing()
    {
        NumbersRun run(2);
        run.table->setCurrentItem(nullptr);
        run.table->deleteRow();
        QCOMPARE(run.text(), QStringLiteral("[1,2]"));
        QCOMPARE(run.services.pushed, 0);
    }

    void structuralCommandsCanBeUndone()
    {
        NumbersRun run(3);
        run.click(0);
        run.settle(); // ends the action of the click
        run.table->addRow();
        run.table->deleteRow();
        run.box->setValue(2);
        run.table->swapUpRow();
        run.settle();
        QCOMPARE(run.text(), QStringLiteral("[2,0,3]"));
        run.services.undo();
        run.services.undo();
        run.settle();
        QCOMPARE(run.text(), QStringLiteral("[1,0,2,3]"));
        QCOMPARE(run.table->rowCount(), 4);
        run.services.undo();
        run.settle();
        QCOMPARE(run.text(), QStringLiteral("[1,2,3]"));
        QCOMPARE(run.table->rowCount(), 3);
        QCOMPARE(run.box->maximum(), 3);
    }
};

QTEST_MAIN(TestDvMFieldTable)
#include "tst_DvMFieldTable.moc"

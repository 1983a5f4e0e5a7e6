#include "FieldEditors/MFWidgets/DvMFDoubleWidget.h"
#include "plugin/NumbersRun.h"

class TestDvMFieldTableKeys : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(ToolHarness::noWidgetIsLeft()); }

    void deleteWithShiftRemovesTheFirstRange()
    {
        NumbersRun run(6);
        run.click(1);
        run.table->setFocus();
        QTest::keyPress(run.table, Qt::Key_Shift);
        QTest::mouseClick(run.table->viewport(), Qt::LeftButton, Qt::ShiftModifier, run.at(3));
        QTest::keyClick(run.table, Qt::Key_Delete, Qt::ShiftModifier);
        QTest::keyRelease(run.table, Qt::Key_Shift);
        run.settle();
        QCOMPARE(run.text(), QStringLiteral("[1,5,6]"));
        QCOMPARE(run.table->rowCount(), 3);
        QCOMPARE(run.box->maximum(), 3);
        run.services.undo();
        QCOMPARE(run.text(), QStringLiteral("[1,2,3,4,5,6]"));
    }

    void deleteWithShiftAndNothingSelectedDoesNothing()
    {
        NumbersRun run(3);
        run.table->setFocus();
        run.table->clearSelection();
        QTest::keyPress(run.table, Qt::Key_Shift);
        run.table->deleteRow();
        QTest::keyRelease(run.table, Qt::Key_Shift);
        QCOMPARE(run.text(), QStringLiteral("[1,2,3]"));
        QCOMPARE(run.services.pushed, 0);
    }

    void keysAddAndDelete()
    {
        NumbersRun run(3);
        run.click(0);
        run.key(Qt::Key_Plus);
        QCOMPARE(run.text(), QStringLiteral("[1,0,2,3]"));
        run.key(Qt::Key_Minus);
        QCOMPARE(run.text(), QStringLiteral("[0,2,3]"));
        run.click(0);
        run.key(Qt::Key_Delete);
        QCOMPARE(run.text(), QStringLiteral("[2,3]"));
    }

    void shiftSelectsAndItsReleaseForbidsIt()
    {
        NumbersRun run(3);
        run.table->setFocus();
        QTest::keyPress(run.table, Qt::Key_Shift);
        QCOMPARE(run.table->selectionMode(), QAbstractItemView::ContiguousSelection);
        QTest::keyRelease(run.table, Qt::Key_Shift);
        QCOMPARE(run.table->selectionMode(), QAbstractItemView::NoSelection);
        run.click(2);
        QVERIFY(run.table->selectedRanges().isEmpty());
    }

    void typedKeyOpensTheCell()
    {
        ListRun<DvMFDoubleWidget> run;
        run.node->mfDouble.set("[1, 2]");
        run.show(run.node->mfDouble);
        run.click(1);
        QTest::keyClick(run.table, Qt::Key_5);
        QVERIFY(run.lineIn(1) != nullptr);
        QCOMPARE(run.lineIn(1)->text(), QStringLiteral("5"));
        QTest::keyClick(run.lineIn(1), Qt::Key_Return);
        run.settle();
        QCOMPARE(run.textOf(run.node->mfDouble), QStringLiteral("[1, 5]"));
    }

    void typedKeysSearchNothing()
    {
        NumbersRun run(3);
        run.table->setPlaceholder(2, 0);
        run.table->item(2, 0)->setText(QStringLiteral("5"));
        run.click(0);
        run.table->setEditTriggers(QAbstractItemView::NoEditTriggers);
        QTest::keyClick(run.table, Qt::Key_5);
        QCOMPARE(run.table->currentRow(), 0);
    }

    void addKeepsWhatWasTyped()
    {
        ListRun<DvMFDoubleWidget> run;
        run.node->mfDouble.set("[1, 2]");
        run.show(run.node->mfDouble);
        run.doubleClick(0);
        run.type(run.lineIn(0), QStringLiteral("7"));
        run.press("m_addButton");
        QCOMPARE(run.textOf(run.node->mfDouble), QStringLiteral("[7, 0, 2]"));
        QVERIFY(run.editorIn(0) == nullptr);
        // The table takes the next edit.
        run.doubleClick(2);
        QVERIFY(run.lineIn(2) != nullptr);
    }

    void rowsThatVanishCloseTheirCell()
    {
        ListRun<DvMFDoubleWidget> run;
        run.node->mfDouble.set("[1, 2, 3]");
        run.show(run.node->mfDouble);
        run.doubleClick(2);
        run.type(run.lineIn(2), QStringLiteral("7"));
        run.node->mfDouble.set("[4]");
        run.settle();
        QCOMPARE(run.table->rowCount(), 1);
        QCOMPARE(run.textOf(run.node->mfDouble), QStringLiteral("[4]"));
        run.doubleClick(0);
        run.node->mfDouble.set("[]");
        run.settle();
        QCOMPARE(run.table->rowCount(), 0);
    }

    void editorDestroyedKeepsASliderThatIsInUse()
    {
        NumbersRun run(3);
        run.doubleClick(1);
        QWidget* const slider = run.editorIn(1);
        run.lineIn(1)->setFocus();
        run.table->editorDestroyed(slider);
        QCOMPARE(run.editorIn(1), slider);
        run.table->setFocus();
        run.settle();
        QCursor::setPos(run.run.window.mapToGlobal(QPoint(1, 1)));
        if (run.editorIn(1) != nullptr)
            run.table->editorDestroyed(slider);
        QVERIFY(run.editorIn(1) == nullptr);
    }

    void editorDestroyedWithoutAnEditorDoesNothing()
    {
        NumbersRun run(3);
        run.doubleClick(1);
        run.table->editorDestroyed(nullptr);
        QVERIFY(run.editorIn(1) != nullptr);
    }
};

QTEST_MAIN(TestDvMFieldTableKeys)
#include "tst_DvMFieldTableKeys.moc"

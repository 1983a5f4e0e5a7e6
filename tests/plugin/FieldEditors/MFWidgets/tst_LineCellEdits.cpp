#include "FieldEditors/DvRealSlider.h"
#include "FieldEditors/MFWidgets/DvMFDoubleWidget.h"
#include "FieldEditors/MFWidgets/DvMFFloatWidget.h"
#include "FieldEditors/MFWidgets/DvMFInt32Widget.h"
#include "plugin/ListRun.h"
#include "plugin/SliderDriver.h"
#include "plugin/WriteCounter.h"

#include "meridane/scene/nodes/NxMaterial.h"

namespace {

/// The line that is all of a cell's editor.
template <typename Editor>
QLineEdit* openLine(ListRun<Editor>& run, int row)
{
    run.doubleClick(row);
    return qobject_cast<QLineEdit*>(run.editorIn(row));
}

} // namespace

class TestLineCellEdits : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(ToolHarness::noWidgetIsLeft()); }

    void doubleCellsTakeLinesThatReturnWrites()
    {
        ListRun<DvMFDoubleWidget> run;
        run.node->mfDouble.set("[1, 2, 3]");
        run.show(run.node->mfDouble);
        QLineEdit* const line = openLine(run, 1);
        QVERIFY(line != nullptr);
        QCOMPARE(line->text(), QStringLiteral("2"));
        const QImage before = run.picture(1);
        run.type(line, QStringLiteral("7.25"));
        QTest::keyClick(line, Qt::Key_Return);
        run.settle();
        QCOMPARE(run.textOf(run.node->mfDouble), QStringLiteral("[1, 7.25, 3]"));
        QVERIFY(run.editorIn(1) == nullptr);
        QVERIFY(run.picture(1) != before);
        QVERIFY(run.table->hasFocus());
        // The table takes the next edit.
        QVERIFY(openLine(run, 2) != nullptr);
    }

    void tabWritesTheLine()
    {
        ListRun<DvMFDoubleWidget> run;
        run.node->mfDouble.set("[1, 2, 3]");
        run.show(run.node->mfDouble);
        QLineEdit* const line = openLine(run, 0);
        run.type(line, QStringLiteral("4"));
        QTest::keyClick(line, Qt::Key_Tab);
        run.settle();
        QCOMPARE(run.textOf(run.node->mfDouble), QStringLiteral("[4, 2, 3]"));
    }

    void escapeKeepsTheValue()
    {
        ListRun<DvMFDoubleWidget> run;
        run.node->mfDouble.set("[1, 2, 3]");
        run.show(run.node->mfDouble);
        WriteCounter counter(run.node->mfDouble);
        QLineEdit* const line = openLine(run, 0);
        run.type(line, QStringLiteral("4"));
        QTest::keyClick(line, Qt::Key_Escape);
        run.settle();
        QCOMPARE(counter.writes, 0);
        QVERIFY(run.editorIn(0) == nullptr);
    }

    void clickElsewhereWritesTheLine()
    {
        ListRun<DvMFDoubleWidget> run;
        run.node->mfDouble.set("[1, 2, 3]");
        run.show(run.node->mfDouble);
        QLineEdit* const line = openLine(run, 0);
        run.type(line, QStringLiteral("4"));
        run.click(2);
        run.settle();
        QCOMPARE(run.textOf(run.node->mfDouble), QStringLiteral("[4, 2, 3]"));
        QCOMPARE(run.table->currentRow(), 2);
    }

    void unchangedLineWritesNothing()
    {
        ListRun<DvMFDoubleWidget> run;
        run.node->mfDouble.set("[1, 2, 3]");
        run.show(run.node->mfDouble);
        WriteCounter counter(run.node->mfDouble);
        QTest::keyClick(openLine(run, 0), Qt::Key_Return);
        run.settle();
        QCOMPARE(counter.writes, 0);
        QVERIFY(run.table->item(0, 0) == nullptr);
    }

    void textThatTheValidatorHoldsBackIsDropped()
    {
        ListRun<DvMFDoubleWidget> run;
        run.node->mfDouble.set("[1, 2, 3]");
        run.show(run.node->mfDouble);
        WriteCounter counter(run.node->mfDouble);
        const QImage before = run.picture(0);
        QLineEdit* line = openLine(run, 0);
        run.type(line, QStringLiteral("4e")); // a number to come
        QTest::keyClick(line, Qt::Key_Return);
        run.settle();
        QCOMPARE(run.editorIn(0), line);
        run.click(2);
        run.settle();
        QVERIFY(run.editorIn(0) == nullptr);
        QCOMPARE(counter.writes, 0);
        run.click(1);
        run.table->clearSelection();
        QCOMPARE(run.picture(0), before);
    }

    void editedNumbersPushNoCommand()
    {
        ListRun<DvMFDoubleWidget> run;
        run.node->mfDouble.set("[1, 2, 3]");
        run.show(run.node->mfDouble);
        QLineEdit* const line = openLine(run, 0);
        run.type(line, QStringLiteral("4"));
        QTest::keyClick(line, Qt::Key_Return);
        run.settle();
        QCOMPARE(run.services.pushed, 0);
        run.services.undo();
        QCOMPARE(run.textOf(run.node->mfDouble), QStringLiteral("[4, 2, 3]"));
    }

    void sliderOfAnIntegerRowWritesItsRow()
    {
        ListRun<DvMFInt32Widget> run;
        run.node->mfInt32.set("[1, 2, 3]");
        run.show(run.node->mfInt32);
        run.doubleClick(2);
        auto* const slider = qobject_cast<DvSlider*>(run.editorIn(2));
        QVERIFY(slider != nullptr);
        SliderDriver driver(*slider);
        QCOMPARE(driver.slider->minimum(), 0);
        QCOMPARE(driver.slider->maximum(), 10);
        driver.typeAndReturn(QStringLiteral("25"));
        run.settle();
        QCOMPARE(run.textOf(run.node->mfInt32), QStringLiteral("[1, 2, 25]"));
        QCOMPARE(run.services.pushed, 0);
    }

    void sliderOfAnyFloatRowWritesTheFirstValue()
    {
        ListRun<DvMFFloatWidget> run;
        run.node->mfFloat.set("[1, 2, 3]");
        run.show(run.node->mfFloat);
        run.doubleClick(2);
        auto* const slider = dynamic_cast<DvRealSlider*>(run.editorIn(2));
        QVERIFY(slider != nullptr);
        QCOMPARE(slider->value(), 3.0);
        SliderDriver(*slider).turnWheelUp();
        run.settle();
        const QStringList texts = run.texts(run.node->mfFloat);
        QCOMPARE(texts.at(0).toFloat(), static_cast<float>(slider->value()));
        QCOMPARE(texts.mid(1), QStringList({QStringLiteral("2"), QStringLiteral("3")}));
    }

    void lineInTheSliderOfAFloatRowWritesTheFirstValue()
    {
        ListRun<DvMFFloatWidget> run;
        run.node->mfFloat.set("[1, 2, 3]");
        run.show(run.node->mfFloat);
        run.doubleClick(1);
        SliderDriver(*run.editorIn(1)).typeAndReturn(QStringLiteral("7.5"));
        run.settle();
        QCOMPARE(run.textOf(run.node->mfFloat), QStringLiteral("[7.5, 2, 3]"));
    }

    void firstRowOfAFloatTableHasDoublePrecision()
    {
        ListRun<DvMFFloatWidget> run;
        run.node->mfFloat.set("[2.5, 2.5]");
        run.show(run.node->mfFloat);
        run.doubleClick(0);
        QCOMPARE(run.lineIn(0)->text(), QStringLiteral("2.5"));
        run.doubleClick(1);
        QCOMPARE(run.lineIn(1)->text(), QStringLiteral("2.500000"));
    }

    void rangeFollowsTheNode()
    {
        ListRun<DvMFFloatWidget> run;
        run.node->mfFloat.set("[5]");
        run.show(run.node->mfFloat);
        run.doubleClick(0);
        const auto* const slider = dynamic_cast<DvRealSlider*>(run.editorIn(0));
        QVERIFY(!slider->isBounded());

        const NxRef<NxMaterial> material = new NxMaterial;
        NxMFFloat list(material.get(), "list");
        list.set("[5]");
        run.show(list);
        run.doubleClick(0);
        const auto* const bounded = dynamic_cast<DvRealSlider*>(run.editorIn(0));
        QVERIFY(bounded->isBounded());
        QCOMPARE(bounded->upperBound(), 1.0);
        QCOMPARE(run.textOf(list), QStringLiteral("[5]")); // shown within the range, and left alone
    }

    void typedTextIsWrittenWhenAnotherFieldIsSelected()
    {
        ListRun<DvMFDoubleWidget> run;
        run.node->mfDouble.set("[1, 2, 3]");
        run.show(run.node->mfDouble);
        NxMFDouble other(nullptr, "other");
        other.set("[8, 9]");
        QLineEdit* const line = openLine(run, 1);
        run.type(line, QStringLiteral("4"));
        run.show(other);
        QCOMPARE(run.textOf(run.node->mfDouble), QStringLiteral("[1, 4, 3]"));
        QCOMPARE(run.textOf(other), QStringLiteral("[8, 9]"));
        QCOMPARE(run.table->rowCount(), 2);
        run.show(*static_cast<NxField*>(&run.node->mfDouble));
    }

    void paintedTextIsNeverStale()
    {
        ListRun<DvMFDoubleWidget> run;
        run.node->mfDouble.set("[1, 2]");
        run.show(run.node->mfDouble);
        const QImage one = run.picture(0);
        const QImage two = run.picture(1);
        // Between the write and the sensor's call.
        run.node->mfDouble.set("[2, 1]");
        QCOMPARE(run.picture(0), two);
        QCOMPARE(run.picture(1), one);
        // A row that is gone, but not yet from the table, is blank.
        run.node->mfDouble.set("[2]");
        QVERIFY(run.picture(1) != one);
        QVERIFY(run.picture(1) != two);
    }
};

QTEST_MAIN(TestLineCellEdits)
#include "tst_LineCellEdits.moc"

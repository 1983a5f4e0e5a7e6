#include "app/lists/ListCase.h"

#include "orvane/app/input/InputMessage.h"

#include "meridane/base/values/VbName.h"

#include <QComboBox>

using namespace Qt::StringLiterals;

/// Cells of a list that are edited in place.
class TestListCells : public ListCase {
    Q_OBJECT

private Q_SLOTS:
    void init() { openPanel(); }
    void cleanup() { closePanel(); }

    void aCellIsEdited_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("row");
        QTest::newRow("number") << u"7.5"_s << u"4 7.5 6"_s;
        QTest::newRow("decimal comma") << u"7,5"_s << u"4 7.5 6"_s;
        QTest::newRow("formula") << u"x*2+1"_s << u"4 11 6"_s;
        QTest::newRow("infinity") << u"inf"_s << u"4 inf 6"_s;
    }
    void aCellIsEdited()
    {
        QFETCH(QString, typed);
        QFETCH(QString, row);
        show(vectors(), "[1 2 3, 4 5 6, 7 8 9]");
        doubleClickCell(1, 1);
        QVERIFY(cellEditor() != nullptr);
        QCOMPARE(cellEditor()->text(), u"5"_s);
        cellEditor()->selectAll();
        type(typed);
        QTest::keyClick(cellEditor(), Qt::Key_Return);
        m_open->finish();
        QCOMPARE(textOf(vectors()), u"[1 2 3, %1, 7 8 9]"_s.arg(row));
        QCOMPARE(steps().count(), 1);
        QCOMPARE(lastStep(), u"Set y of hand.mfVec3f[1]"_s);
        QTRY_VERIFY(cellEditor() == nullptr);
        QCOMPARE(view()->currentIndex(), model()->index(2, 1));
        m_open->services().undo();
        QCOMPARE(textOf(vectors()), u"[1 2 3, 4 5 6, 7 8 9]"_s);
    }

    void typingBeginsAnEdit()
    {
        show(vectors(), "[1 2 3, 4 5 6]");
        clickCell(0, 2);
        QTest::keyClick(view(), Qt::Key_9);
        QVERIFY(cellEditor() != nullptr);
        type(u".25"_s);
        QTest::keyClick(cellEditor(), Qt::Key_Tab);
        m_open->finish();
        QCOMPARE(textOf(vectors()), u"[1 2 9.25, 4 5 6]"_s);
        QCOMPARE(view()->currentIndex(), model()->index(1, 0)); // behind the last column
    }

    void keysMoveAsInASpreadsheet()
    {
        show(vectors(), "[1 2 3, 4 5 6, 7 8 9]");
        clickCell(0, 0);
        press(Qt::Key_Tab);
        QCOMPARE(view()->currentIndex(), model()->index(0, 1));
        press(Qt::Key_Return);
        QCOMPARE(view()->currentIndex(), model()->index(1, 1));
        press(Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(view()->currentIndex(), model()->index(0, 1));
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(view()->currentIndex(), model()->index(0, 0));
        QCOMPARE(steps().count(), 0);
    }

    void whatCantBeTakenIsSaidAndStays_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::newRow("a word") << u"many"_s;
        QTest::newRow("a fraction") << u"1.5"_s;
        QTest::newRow("out of range") << u"3000000000"_s;
        QTest::newRow("not finite") << u"inf"_s;
        QTest::newRow("division by zero") << u"1/0"_s;
    }
    void whatCantBeTakenIsSaidAndStays()
    {
        QFETCH(QString, typed);
        showNumbers(3);
        doubleClickCell(1, 0);
        cellEditor()->selectAll();
        type(typed);
        QTest::keyClick(cellEditor(), Qt::Key_Return);
        m_open->finish();
        QVERIFY(cellEditor() != nullptr);
        QCOMPARE(cellEditor()->text(), typed);
        QVERIFY(InputMessage::shownIn(view()) != nullptr);
        QCOMPARE(numbers()[1], 1);
        QCOMPARE(steps().count(), 0);
        QTest::keyClick(cellEditor(), Qt::Key_Escape);
        QTRY_VERIFY(cellEditor() == nullptr);
        QCOMPARE(numbers()[1], 1);
    }

    void escapeRestores()
    {
        showNumbers(3);
        doubleClickCell(1, 0);
        cellEditor()->selectAll();
        type(u"55"_s);
        QTest::keyClick(cellEditor(), Qt::Key_Escape);
        QTRY_VERIFY(cellEditor() == nullptr);
        QCOMPARE(numbers()[1], 1);
        QCOMPARE(steps().count(), 0);
    }

    void leavingACellWritesIt()
    {
        showNumbers(5);
        doubleClickCell(1, 0);
        cellEditor()->selectAll();
        type(u"55"_s);
        clickCell(3, 0);
        m_open->finish();
        QCOMPARE(numbers()[1], 55);
        QTRY_VERIFY(cellEditor() == nullptr);
    }

    void arrowsStepTheNumber()
    {
        showNumbers(3);
        doubleClickCell(1, 0);
        QTest::keyClick(cellEditor(), Qt::Key_Up);
        m_open->finish();
        QCOMPARE(numbers()[1], 2);
        QTest::keyClick(cellEditor(), Qt::Key_Up, Qt::ShiftModifier);
        m_open->finish();
        QCOMPARE(numbers()[1], 12);
        QCOMPARE(cellEditor()->text(), u"12"_s);
    }

    void aBooleanIsAClickOrAKey()
    {
        show(node().mfBool, "[true, false]");
        clickCell(1, 0);
        press(Qt::Key_Space);
        QCOMPARE(textOf(node().mfBool), u"[true, true]"_s);
        QCOMPARE(lastStep(), u"Set hand.mfBool[1]"_s);
        QStyleOptionViewItem option;
        option.initFrom(view());
        option.rect = view()->visualRect(model()->index(0, 0));
        option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
        const QRect box = view()->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, view());
        QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, box.center());
        m_open->finish();
        QCOMPARE(textOf(node().mfBool), u"[false, true]"_s);
    }

    void anEnumerationIsAChoice()
    {
        NxMFEnum& list = node().mfEnum;
        list.insertSpace(0, 2);
        show(list);
        const QString first = model()->index(0, 0).data().toString();
        doubleClickCell(0, 0);
        auto* const box = view()->viewport()->findChild<QComboBox*>(u"listCellEditor"_s);
        QVERIFY(box != nullptr);
        QVERIFY(box->count() > 1);
        QTest::keyClick(box, Qt::Key_Down);
        QTest::keyClick(box, Qt::Key_Return);
        m_open->finish();
        QVERIFY(model()->index(0, 0).data().toString() != first);
        QCOMPARE(steps().count(), 1);
    }

    void aTextIsEditedAsItIs()
    {
        show(node().mfString, "[\"one\", \"two\"]");
        doubleClickCell(1, 0);
        cellEditor()->selectAll();
        type(u"a \"b\", c"_s);
        QTest::keyClick(cellEditor(), Qt::Key_Return);
        m_open->finish();
        QCOMPARE(node().mfString[1], VbString("a \"b\", c"));
    }

    void aNameTakesLatin1Only()
    {
        show(node().mfName, "[one]");
        doubleClickCell(0, 0);
        cellEditor()->setText(u"日"_s);
        cellEditor()->setModified(true);
        QTest::keyClick(cellEditor(), Qt::Key_Return);
        QVERIFY(cellEditor() != nullptr);
        QVERIFY(InputMessage::shownIn(view())->text().contains(u"Latin-1"_s));
        QTest::keyClick(cellEditor(), Qt::Key_Escape);
        QCOMPARE(node().mfName[0], VbName("one"));
    }

    void aChangeElsewhereLeavesWhatIsTyped()
    {
        showNumbers(5);
        doubleClickCell(3, 0);
        cellEditor()->selectAll();
        type(u"77"_s);
        numbers().set1Value(0, 9);
        numbers().insertSpace(0, 2);
        m_open->finish();
        QVERIFY(cellEditor() != nullptr);
        QCOMPARE(cellEditor()->text(), u"77"_s);
        QTest::keyClick(cellEditor(), Qt::Key_Return);
        m_open->finish();
        QCOMPARE(textOf(numbers()), u"[0, 0, 9, 1, 2, 77, 4]"_s);
    }

    void aRowThatVanishesWhileItIsEditedIsNotWritten()
    {
        showNumbers(5);
        doubleClickCell(3, 0);
        cellEditor()->selectAll();
        type(u"77"_s);
        numbers().deleteValues(3, 1);
        m_open->finish();
        QCOMPARE(textOf(numbers()), u"[0, 1, 2, 4]"_s);
    }

    void aFieldThatVanishesWhileItIsEditedIsLeft()
    {
        showNumbers(5);
        doubleClickCell(3, 0);
        cellEditor()->selectAll();
        type(u"77"_s);
        m_open->services().selectNode(nullptr);
        m_open->scene().removeChild(0);
        m_open->finish();
        QVERIFY(m_panel->list() == nullptr);
        QCOMPARE(numbers()[3], 3);
        QTRY_VERIFY(cellEditor() == nullptr);
    }

    void matricesPlanesAndRotationsAreEdited()
    {
        show(node().mfMatrix, "[1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1]");
        QCOMPARE(model()->columnCount(), 16);
        doubleClickCell(0, 13);
        cellEditor()->selectAll();
        type(u"2.5"_s);
        QTest::keyClick(cellEditor(), Qt::Key_Return);
        m_open->finish();
        QCOMPARE(textOf(node().mfMatrix), u"[1 0 0 0 0 1 0 0 0 0 1 0 0 2.5 0 1]"_s);
        QCOMPARE(lastStep(), u"Set m31 of hand.mfMatrix[0]"_s);
        QTRY_VERIFY(cellEditor() == nullptr);
        show(node().mfRotation, "[0 0 1 0]");
        doubleClickCell(0, 3);
        cellEditor()->selectAll();
        type(u"180deg"_s);
        QTest::keyClick(cellEditor(), Qt::Key_Return);
        m_open->finish();
        QCOMPARE(node().mfRotation[0].getAngle(), 3.14159274F);
        QTRY_VERIFY(cellEditor() == nullptr);
        show(node().mfPlane, "[0 0 1 0]");
        doubleClickCell(0, 3);
        cellEditor()->selectAll();
        type(u"-4"_s);
        QTest::keyClick(cellEditor(), Qt::Key_Return);
        m_open->finish();
        QCOMPARE(textOf(node().mfPlane), u"[0 0 1 -4]"_s);
    }
};

QTEST_MAIN(TestListCells)
#include "tst_ListCells.moc"

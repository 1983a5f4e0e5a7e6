#include "app/lists/ListCase.h"

#include "orvane/app/input/InputMessage.h"

#include "meridane/scene/components/FieldComponents.h"

#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QSpinBox>

using namespace Qt::StringLiterals;

/// The table of a list: what it shows and how it is edited.
class TestListPanel : public ListCase {
    Q_OBJECT

private Q_SLOTS:
    void init() { openPanel(); }
    void cleanup() { closePanel(); }

    void itShowsTheSelectedList()
    {
        QVERIFY(m_panel->list() == nullptr);
        show(vectors(), "[1 2 3, 4 5 6]");
        QCOMPARE(m_panel->list(), &vectors());
        QCOMPARE(model()->rowCount(), 2);
        // A single value leaves the list of its node.
        m_open->services().select(&node(), &node().sfInt32);
        QCOMPARE(m_panel->list(), &vectors());
        m_open->services().selectNode(&m_open->arm());
        QVERIFY(m_panel->list() == nullptr);
        show(vectors());
        m_open->services().selectNode(nullptr);
        m_open->services().document().close();
        QVERIFY(m_panel->list() == nullptr);
    }

    void anotherListOfTheNodeIsChosen()
    {
        showNumbers(4);
        auto* const chooser = m_panel->findChild<QComboBox*>(u"listChooser"_s);
        QCOMPARE(chooser->currentText(), u"mfInt32"_s);
        chooser->setFocus();
        QTest::keyClicks(chooser, u"mfVec3f"_s);
        QTest::keyClick(chooser, Qt::Key_Return);
        Q_EMIT chooser->activated(chooser->currentIndex());
        QCOMPARE(m_panel->list(), &vectors());
        QCOMPARE(m_open->services().getSelectedField(), &vectors());
    }

    void rowsAreInsertedDuplicatedAndDeleted()
    {
        showNumbers(6);
        clickRow(2);
        clickRow(3, Qt::ShiftModifier);
        press(Qt::Key_Insert);
        QCOMPARE(textOf(numbers()), u"[0, 1, 0, 0, 2, 3, 4, 5]"_s);
        QCOMPARE(lastStep(), u"Insert 2 rows into hand.mfInt32"_s);
        QCOMPARE(selectedRows(), QList<int>({4, 5}));
        press(Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(textOf(numbers()), u"[0, 1, 0, 0, 2, 3, 2, 3, 4, 5]"_s);
        press(Qt::Key_Delete);
        QCOMPARE(textOf(numbers()), u"[0, 1, 0, 0, 2, 3, 4, 5]"_s);
        QCOMPARE(lastStep(), u"Delete 2 rows of hand.mfInt32"_s);
        QCOMPARE(steps().count(), 3);
        for (int i = 0; i < 3; ++i)
            m_open->services().undo();
        QCOMPARE(textOf(numbers()), u"[0, 1, 2, 3, 4, 5]"_s);
    }

    void separateRowsAreDeleted()
    {
        showNumbers(8);
        clickRow(1);
        clickRow(4, Qt::ControlModifier);
        clickRow(6, Qt::ControlModifier);
        press(Qt::Key_Delete);
        QCOMPARE(textOf(numbers()), u"[0, 2, 3, 5, 7]"_s);
        QCOMPARE(lastStep(), u"Delete 3 rows of hand.mfInt32"_s);
    }

    void aRowIsInsertedIntoAnEmptyList()
    {
        show(vectors(), "[]");
        view()->setFocus();
        press(Qt::Key_Insert);
        QCOMPARE(vectors().getNum(), 1);
        QCOMPARE(lastStep(), u"Insert a row into hand.mfVec3f"_s);
    }

    void rowsMoveByKeysAndButtons()
    {
        showNumbers(6);
        clickRow(2);
        clickRow(3, Qt::ShiftModifier);
        press(Qt::Key_Up, Qt::AltModifier);
        QCOMPARE(textOf(numbers()), u"[0, 2, 3, 1, 4, 5]"_s);
        QCOMPARE(selectedRows(), QList<int>({1, 2}));
        press(Qt::Key_Down, Qt::AltModifier);
        press(Qt::Key_Down, Qt::AltModifier);
        QCOMPARE(textOf(numbers()), u"[0, 1, 4, 2, 3, 5]"_s);
        QCOMPARE(selectedRows(), QList<int>({3, 4}));
        QCOMPARE(lastStep(), u"Move 2 rows of hand.mfInt32"_s);
        QCOMPARE(steps().count(), 3);
        for (QToolButton* const button : m_panel->findChildren<QToolButton*>()) {
            if (button->defaultAction() != nullptr && button->defaultAction()->objectName() == u"list.moveDown"_s)
                QTest::mouseClick(button, Qt::LeftButton);
        }
        m_open->finish();
        QCOMPARE(textOf(numbers()), u"[0, 1, 4, 5, 2, 3]"_s);
        // At the end nothing moves, and no step is made.
        view()->setFocus();
        press(Qt::Key_Down, Qt::AltModifier);
        QCOMPARE(steps().count(), 4);
    }

    void theMenuOfARowHasWhatApplies()
    {
        showNumbers(6);
        const auto texts = [this](const QPoint& place) {
            QContextMenuEvent event(QContextMenuEvent::Mouse, place, view()->viewport()->mapToGlobal(place));
            QApplication::sendEvent(view()->viewport(), &event);
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            QStringList result;
            for (const QAction* const action : menu != nullptr ? menu->actions() : QList<QAction*>()) {
                if (!action->isSeparator())
                    result.append(action->objectName());
            }
            if (menu != nullptr)
                menu->close();
            return result;
        };
        view()->clearSelection();
        view()->setCurrentIndex({});
        QCOMPARE(texts(cellCenter(2, 0)), QStringList({u"list.insert"_s, u"list.paste"_s, u"list.resize"_s}));
        clickRow(2);
        QCOMPARE(texts(cellCenter(2, 0)),
            QStringList({u"list.insert"_s, u"list.duplicate"_s, u"list.remove"_s, u"list.moveUp"_s, u"list.moveDown"_s,
                u"list.cut"_s, u"list.copy"_s, u"list.paste"_s, u"list.resize"_s}));
        clickRow(4, Qt::ShiftModifier);
        QVERIFY(texts(cellCenter(2, 0)).contains(u"list.fillLinear"_s));
    }

    void rowsAreDragged()
    {
        showNumbers(10);
        clickRow(2);
        clickRow(3, Qt::ShiftModifier);
        drag(3, 7);
        QTest::mouseRelease(view()->verticalHeader()->viewport(), Qt::LeftButton, {}, headerPoint(7) + QPoint(0, 5));
        m_open->finish();
        QCOMPARE(textOf(numbers()), u"[0, 1, 4, 5, 6, 7, 2, 3, 8, 9]"_s);
        QCOMPARE(selectedRows(), QList<int>({6, 7}));
        QCOMPARE(steps().count(), 1);
        drag(6, 0);
        QTest::mouseRelease(view()->verticalHeader()->viewport(), Qt::LeftButton, {}, headerPoint(0) - QPoint(0, 5));
        m_open->finish();
        QCOMPARE(textOf(numbers()), u"[2, 3, 0, 1, 4, 5, 6, 7, 8, 9]"_s);
    }

    void escapeEndsADrag()
    {
        showNumbers(10);
        clickRow(2);
        drag(2, 7);
        QTest::keyClick(view(), Qt::Key_Escape);
        QTest::mouseRelease(view()->verticalHeader()->viewport(), Qt::LeftButton, {}, headerPoint(7));
        m_open->finish();
        QCOMPARE(steps().count(), 0);
    }

    void theNumberOfRowsIsSet()
    {
        showNumbers(5);
        resizeTo(8);
        QCOMPARE(textOf(numbers()), u"[0, 1, 2, 3, 4, 0, 0, 0]"_s);
        QCOMPARE(lastStep(), u"Resize hand.mfInt32 to 8 rows"_s);
        resizeTo(2);
        QCOMPARE(textOf(numbers()), u"[0, 1]"_s);
        m_open->services().undo();
        QCOMPARE(numbers().getNum(), 8);
    }

    void morethanAMillionRowsAreMadeAfterAQuestion()
    {
        showNumbers(5);
        resizeTo(1'000'001);
        QCOMPARE(numbers().getNum(), 5);
        QCOMPARE(messages().size(), 1);
        QVERIFY(messages().front().contains(u"1,000,001"_s));
        for (QAbstractButton* const button : m_panel->findChild<MessageBar*>()->findChildren<QAbstractButton*>()) {
            if (button->text().startsWith(u"Make"_s)) {
                QTest::mouseClick(button, Qt::LeftButton);
                break;
            }
        }
        m_open->finish();
        QCOMPARE(numbers().getNum(), 1'000'001);
        QCOMPARE(model()->rowCount(), 1'000'001);
    }

    void aColumnIsSetByAFormula_data()
    {
        QTest::addColumn<QString>("formula");
        QTest::addColumn<QString>("result");
        QTest::newRow("constant") << u"9"_s << u"[1 2 3, 4 9 6, 7 9 9, 1 1 1]"_s;
        QTest::newRow("own value") << u"y*10"_s << u"[1 2 3, 4 50 6, 7 80 9, 1 1 1]"_s;
        QTest::newRow("another component") << u"x + z"_s << u"[1 2 3, 4 10 6, 7 16 9, 1 1 1]"_s;
        QTest::newRow("row number") << u"i * 0,5"_s << u"[1 2 3, 4 0.5 6, 7 1 9, 1 1 1]"_s;
        QTest::newRow("choice") << u"if(x > 5; 1; 0)"_s << u"[1 2 3, 4 0 6, 7 1 9, 1 1 1]"_s;
    }
    void aColumnIsSetByAFormula()
    {
        QFETCH(QString, formula);
        QFETCH(QString, result);
        show(vectors(), "[1 2 3, 4 5 6, 7 8 9, 1 1 1]");
        clickCell(1, 1);
        clickCell(2, 1, Qt::ShiftModifier);
        press(Qt::Key_Equal, Qt::ControlModifier);
        QCOMPARE(QApplication::focusWidget(), line("listSetFormula"));
        type(formula);
        QTest::keyClick(line("listSetFormula"), Qt::Key_Return);
        QTRY_COMPARE(textOf(vectors()), result);
        m_open->finish();
        QCOMPARE(steps().count(), 1);
        QCOMPARE(lastStep(), u"Set y of 2 rows of hand.mfVec3f"_s);
        m_open->services().undo();
        QCOMPARE(textOf(vectors()), u"[1 2 3, 4 5 6, 7 8 9, 1 1 1]"_s);
    }

    void aFormulaWithoutAValueNamesTheRow_data()
    {
        QTest::addColumn<QString>("formula");
        QTest::addColumn<QString>("part");
        QTest::newRow("division by zero") << u"10 / x"_s << u"Row 2: "_s;
        QTest::newRow("out of range") << u"x * 3000000000"_s << u"Row 0: "_s;
        QTest::newRow("a fraction") << u"x + 0.5"_s << u"Row 0: "_s;
        QTest::newRow("no formula") << u"x +"_s << QString();
        QTest::newRow("a megabyte") << QString(1'000'000, u'1') << QString();
    }
    void aFormulaWithoutAValueNamesTheRow()
    {
        QFETCH(QString, formula);
        QFETCH(QString, part);
        show(numbers(), "[5, 2, 0, 1, 0]");
        line("listSetFormula")->setMaxLength(static_cast<int>(formula.size()) + 1);
        line("listSetFormula")->setText(formula);
        QTest::keyClick(line("listSetFormula"), Qt::Key_Return);
        QTRY_VERIFY(InputMessage::shownIn(view()) != nullptr);
        QVERIFY2(
            InputMessage::shownIn(view())->text().contains(part), qPrintable(InputMessage::shownIn(view())->text()));
        m_open->finish();
        QCOMPARE(textOf(numbers()), u"[5, 2, 0, 1, 0]"_s);
        QCOMPARE(steps().count(), 0);
    }

    void cellsAreFilledEvenly()
    {
        show(vectors(), "[0 0 0, 5 5 5, 5 5 5, 5 5 5, 1 8 0]");
        clickCell(0, 0);
        clickCell(4, 1, Qt::ShiftModifier);
        trigger("list.fillLinear");
        QCOMPARE(textOf(vectors()), u"[0 0 0, 0.25 2 5, 0.5 4 5, 0.75 6 5, 1 8 0]"_s);
        QCOMPARE(lastStep(), u"Fill 5 rows of hand.mfVec3f"_s);
        QCOMPARE(steps().count(), 1);
    }

    void theStatisticsAreThoseOfTheRows()
    {
        show(vectors(), "[1 2 3, 4 nan 6, 7 8 -inf]");
        QTRY_COMPARE(statistics(), QStringList({u"x|1|7|4|0"_s, u"y|2|8|5|1"_s, u"z|-inf|6|-inf|0"_s}));
        QCOMPARE(m_panel->findChild<QLabel*>(u"listStatisticsHeading"_s)->text(), u"3 rows"_s);
        clickRow(0);
        clickRow(1, Qt::ShiftModifier);
        QTRY_COMPARE(statistics(), QStringList({u"x|1|4|2.5|0"_s, u"y|2|2|2|1"_s, u"z|3|6|4.5|0"_s}));
        vectors().set1(0, "10 2 3");
        QTRY_COMPARE(statistics().front(), u"x|4|10|7|0"_s);
        trigger("list.showStatistics");
        QVERIFY(!m_panel->findChild<QWidget*>(u"listStatistics"_s)->isVisible());
    }

private:
    /// Presses the number of a row and moves to another.
    void drag(int from, int to)
    {
        QWidget* const header = view()->verticalHeader()->viewport();
        QTest::mousePress(header, Qt::LeftButton, {}, headerPoint(from));
        QTest::mouseMove(header, headerPoint(from) + QPoint(0, to > from ? 12 : -12));
        QTest::mouseMove(header, headerPoint(to) + QPoint(0, to > from ? 5 : -5));
    }
    void trigger(const char* name)
    {
        m_panel->findChild<QAction*>(QLatin1String(name))->trigger();
        m_open->finish();
    }
    void resizeTo(int count)
    {
        trigger("list.resize");
        auto* const dialog = m_panel->findChild<QDialog*>(u"listResizeDialog"_s);
        QVERIFY(dialog != nullptr);
        auto* const box = dialog->findChild<QSpinBox*>();
        box->selectAll();
        QTest::keyClicks(box, QString::number(count));
        QTest::keyClick(box, Qt::Key_Return);
        m_open->finish();
        QTRY_VERIFY(m_panel->findChild<QDialog*>(u"listResizeDialog"_s) == nullptr);
    }
    /// A line for each column.
    QStringList statistics()
    {
        auto* const table = m_panel->findChild<QAbstractItemView*>(u"listStatisticsTable"_s)->model();
        QStringList lines;
        for (int row = 0; row < table->rowCount(); ++row) {
            QStringList cells{table->headerData(row, Qt::Vertical).toString()};
            for (int column = 0; column < table->columnCount(); ++column)
                cells.append(table->index(row, column).data().toString());
            lines.append(cells.join(u'|'));
        }
        return lines;
    }
};

QTEST_MAIN(TestListPanel)
#include "tst_ListPanel.moc"

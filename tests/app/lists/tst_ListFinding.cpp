#include "app/lists/ListCase.h"

#include "orvane/app/input/InputMessage.h"

#include <QSignalSpy>

#include <random>

using namespace Qt::StringLiterals;

/// Which rows the table of a list shows: by number, range, filter and order, while the list changes.
class TestListFinding : public ListCase {
    Q_OBJECT

private Q_SLOTS:
    void init() { openPanel(); }
    void cleanup() { closePanel(); }

    void aRowIsGoneTo()
    {
        showNumbers(5000);
        goTo(u"4000"_s);
        QCOMPARE(view()->currentIndex().row(), 4000);
        QVERIFY(view()->viewport()->rect().intersects(view()->visualRect(view()->currentIndex())));
        QCOMPARE(QApplication::focusWidget(), view());
        goTo(u"-1"_s);
        QCOMPARE(view()->currentIndex().row(), 4999);
        goTo(u"10:20"_s);
        QCOMPARE(selectedRows(), QList<int>({10, 11, 12, 13, 14, 15, 16, 17, 18, 19}));
        goTo(u"5000"_s);
        QVERIFY(InputMessage::shownIn(view())->text().contains(u"0 to 4999"_s));
        goTo(u"many"_s);
        QVERIFY(InputMessage::shownIn(view())->text().contains(u"\"many\""_s));
        QCOMPARE(view()->currentIndex().row(), 10);
    }

    void aRangeIsShown()
    {
        showNumbers(10);
        enter("listRange", u"2:5"_s);
        QCOMPARE(shownRows(), QList<int>({2, 3, 4}));
        enter("listRange", u"::-3"_s);
        QCOMPARE(shownRows(), QList<int>({9, 6, 3, 0}));
        enter("listRange", u"-2:"_s);
        QCOMPARE(shownRows(), QList<int>({8, 9}));
        // It follows the length of the list.
        numbers().insertSpace(10, 3);
        settle();
        QCOMPARE(shownRows(), QList<int>({11, 12}));
        enter("listRange", u"1.5"_s);
        QVERIFY(InputMessage::shownIn(view())->text().contains(u"\"1.5\""_s));
        QCOMPARE(line("listRange")->text(), u"1.5"_s);
        QCOMPARE(model()->rowCount(), 13); // since the line was cleared
        enter("listRange", QString());
        QCOMPARE(model()->rowCount(), 13);
        QVERIFY(model()->showsAll());
    }

    void rowsAreFiltered_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QList<int>>("rows");
        QTest::newRow("comparison") << u"x > 3"_s << QList<int>({1, 2, 4});
        QTest::newRow("and") << u"x > 0 and z < 7"_s << QList<int>({0, 1, 4});
        QTest::newRow("or, not") << u"x < 0 or not (y > 0)"_s << QList<int>({3, 4, 5});
        QTest::newRow("row number") << u"i < 2"_s << QList<int>({0, 1});
        QTest::newRow("decimal comma") << u"x > 6,5"_s << QList<int>({2, 4});
        QTest::newRow("NaN in cells") << u"y = y"_s << QList<int>({0, 1, 2, 3, 5});
        QTest::newRow("none") << u"x > 1000"_s << QList<int>({});
        QTest::newRow("all") << u"1"_s << QList<int>({0, 1, 2, 3, 4, 5});
    }
    void rowsAreFiltered()
    {
        QFETCH(QString, filter);
        QFETCH(QList<int>, rows);
        show(vectors(), "[1 2 3, 4 5 6, 7 8 9, -1 1 7, 9 nan 5, 0 0 0]");
        enter("listFilter", filter);
        QCOMPARE(shownRows(), rows);
        QCOMPARE(steps().count(), 0);
    }

    void aFilterThatMakesNoSenseIsSaid_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("part");
        QTest::newRow("NaN") << u"nan"_s << u"neither true nor false"_s;
        QTest::newRow("unknown name") << u"q > 1"_s << u"q"_s;
        QTest::newRow("half") << u"x >"_s << QString();
        QTest::newRow("division by zero") << u"1 / x"_s << u"Row 5: "_s;
    }
    void aFilterThatMakesNoSenseIsSaid()
    {
        QFETCH(QString, filter);
        QFETCH(QString, part);
        show(vectors(), "[1 2 3, 4 5 6, 7 8 9, -1 1 7, 9 nan 5, 0 0 0]");
        enter("listFilter", filter);
        QTRY_VERIFY(InputMessage::shownIn(view()) != nullptr);
        QVERIFY2(
            InputMessage::shownIn(view())->text().contains(part), qPrintable(InputMessage::shownIn(view())->text()));
        QCOMPARE(line("listFilter")->text(), filter);
        QCOMPARE(model()->rowCount(), 6);
    }

    void textsAreFilteredByWords()
    {
        show(node().mfString, "[\"left arm\", \"right arm\", \"left leg\", \"head\"]");
        enter("listFilter", u"left"_s);
        QCOMPARE(shownRows(), QList<int>({0, 2}));
        enter("listFilter", u"arm or head"_s);
        QCOMPARE(shownRows(), QList<int>({0, 1, 3}));
        enter("listFilter", u"/^r/"_s);
        QCOMPARE(shownRows(), QList<int>({1}));
        enter("listFilter", u"not left"_s);
        QCOMPARE(shownRows(), QList<int>({1, 3}));
    }

    void booleansAreFilteredByTheirValue()
    {
        show(node().mfBool, "[true, false, true]");
        enter("listFilter", u"not x"_s);
        QCOMPARE(shownRows(), QList<int>({1}));
    }

    void aClickOnATitleSorts()
    {
        show(vectors(), "[3 0 0, nan 1 0, -1 0 0, 3 2 0, 2 0 0]");
        clickTitle(0);
        QCOMPARE(shownRows(), QList<int>({2, 4, 0, 3, 1}));
        clickTitle(0);
        QCOMPARE(shownRows(), QList<int>({0, 3, 4, 2, 1})); // equal rows in their order, NaN last
        clickTitle(0);
        QCOMPARE(shownRows(), QList<int>({0, 1, 2, 3, 4}));
        QVERIFY(model()->showsAll());
        clickTitle(1);
        QCOMPARE(shownRows(), QList<int>({0, 2, 4, 1, 3}));
        QCOMPARE(textOf(vectors()), u"[3 0 0, nan 1 0, -1 0 0, 3 2 0, 2 0 0]"_s);
        QCOMPARE(steps().count(), 0);
    }

    void textsAreSortedAsPeopleDo()
    {
        show(node().mfString, "[\"part 10\", \"part 9\", \"another\"]");
        clickTitle(0);
        QCOMPARE(shownRows(), QList<int>({2, 1, 0}));
    }

    void rangeFilterAndOrderWorkTogether()
    {
        showNumbers(20);
        enter("listRange", u"0:10"_s);
        enter("listFilter", u"x != 4"_s);
        clickTitle(0);
        clickTitle(0);
        QCOMPARE(shownRows(), QList<int>({9, 8, 7, 6, 5, 3, 2, 1, 0}));
        enter("listFilter", QString());
        QCOMPARE(shownRows(), QList<int>({9, 8, 7, 6, 5, 4, 3, 2, 1, 0}));
    }

    void whatIsShownFollowsTheList()
    {
        showNumbers(10);
        enter("listFilter", u"x > 4"_s);
        clickTitle(0);
        clickTitle(0);
        QCOMPARE(shownRows(), QList<int>({9, 8, 7, 6, 5}));
        clickRow(1); // row 8
        numbers().set1Value(2, 100);
        settle();
        QCOMPARE(shownRows(), QList<int>({2, 9, 8, 7, 6, 5}));
        QCOMPARE(selectedRows(), QList<int>({8}));
        numbers().deleteValues(0, 2);
        settle();
        QCOMPARE(shownRows(), QList<int>({0, 7, 6, 5, 4, 3}));
        QCOMPARE(selectedRows(), QList<int>({6}));
        m_open->services().undo();
        settle();
        QCOMPARE(shownRows(), QList<int>({2, 9, 8, 7, 6, 5}));
        QCOMPARE(selectedRows(), QList<int>({8}));
        numbers().setValues(std::vector<int>{7, 1, 9});
        settle();
        QCOMPARE(shownRows(), QList<int>({2, 0}));
    }

    void aFilteredRowIsEditedWhereItIs()
    {
        show(vectors(), "[1 2 3, 4 5 6, 7 8 9]");
        enter("listFilter", u"x > 3"_s);
        doubleClickCell(0, 1);
        cellEditor()->selectAll();
        type(u"50"_s);
        QTest::keyClick(cellEditor(), Qt::Key_Return);
        settle();
        QCOMPARE(textOf(vectors()), u"[1 2 3, 4 50 6, 7 8 9]"_s);
        clickRow(1);
        press(Qt::Key_Delete);
        settle();
        QCOMPARE(textOf(vectors()), u"[1 2 3, 4 50 6]"_s);
        QCOMPARE(shownRows(), QList<int>({1}));
    }

    void sortedRowsAreNotMoved()
    {
        showNumbers(5);
        clickTitle(0);
        clickTitle(0);
        clickRow(2);
        press(Qt::Key_Up, Qt::AltModifier);
        QCOMPARE(steps().count(), 0);
        QCOMPARE(messages().size(), 1);
        m_panel->findChild<MessageBar*>()->clear();
        QTest::mousePress(view()->verticalHeader()->viewport(), Qt::LeftButton, {}, headerPoint(2));
        QTest::mouseMove(view()->verticalHeader()->viewport(), headerPoint(4));
        QTest::mouseMove(view()->verticalHeader()->viewport(), headerPoint(4) + QPoint(0, 4));
        QTest::mouseRelease(view()->verticalHeader()->viewport(), Qt::LeftButton, {}, headerPoint(4) + QPoint(0, 4));
        m_open->finish();
        QCOMPARE(steps().count(), 0);
        QCOMPARE(messages().size(), 1);
        QVERIFY(messages().front().contains(u"only while all of them are shown"_s));
    }

    void aLongListIsFoundInSlices()
    {
        constexpr int count = 1'000'000;
        std::mt19937 random(3);
        std::vector<int> values(count);
        for (int& value : values)
            value = static_cast<int>(random() % 1000);
        numbers().setValues(values);
        show(numbers());
        line("listFilter")->setText(u"x < 100 and i > 10"_s);
        QTest::keyClick(line("listFilter"), Qt::Key_Return);
        QVERIFY(m_panel->shownRows()->isBusy());
        QCOMPARE(model()->rowCount(), count);
        settle();
        view()->horizontalHeader()->setFocus();
        clickTitle(0);
        QCOMPARE(model()->rowCount(),
            static_cast<int>(std::count_if(values.begin() + 11, values.end(), [](int value) { return value < 100; })));
        int last = -1;
        int lastRow = -1;
        for (int place = 0; place < model()->rowCount(); ++place) {
            const int row = model()->map().listRow(place);
            const int value = values[static_cast<std::size_t>(row)];
            QVERIFY(value > last || (value == last && row > lastRow));
            last = value;
            lastRow = row;
        }
    }

    void findingIsCancelled()
    {
        numbers().setValues(std::vector<int>(3'000'000, 1));
        show(numbers());
        line("listFilter")->setText(u"sqrt(x + i) > 3 and sin(i) < 0.5"_s);
        QTest::keyClick(line("listFilter"), Qt::Key_Return);
        QVERIFY(m_panel->shownRows()->isBusy());
        auto* const cancel = m_panel->findChild<QToolButton*>(u"cancelJob"_s);
        cancel->click(); // it isn't in sight before some moments
        settle();
        QCOMPARE(model()->rowCount(), 3'000'000);
        QVERIFY(InputMessage::shownIn(view())->text().contains(u"cancelled"_s));
    }

    void anotherListBeginsWithAllRows()
    {
        showNumbers(10);
        enter("listFilter", u"x > 4"_s);
        show(vectors(), "[1 2 3, 4 5 6]");
        settle();
        QVERIFY(line("listFilter")->text().isEmpty());
        QVERIFY(model()->showsAll());
    }

private:
    void goTo(const QString& text)
    {
        view()->setFocus();
        press(Qt::Key_G, Qt::ControlModifier);
        QCOMPARE(QApplication::focusWidget(), line("listGoTo"));
        type(text);
        QTest::keyClick(line("listGoTo"), Qt::Key_Return);
    }
    void clickTitle(int column)
    {
        QHeaderView* const header = view()->horizontalHeader();
        const QPoint place(
            header->sectionViewportPosition(column) + header->sectionSize(column) / 2, header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, place);
        settle();
    }
};

QTEST_MAIN(TestListFinding)
#include "tst_ListFinding.moc"

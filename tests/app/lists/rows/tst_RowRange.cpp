#include "orvane/app/lists/rows/RowMap.h"
#include "orvane/app/lists/rows/RowRange.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// Ranges of rows, against what Python's `range(count)[text]` gives.
class TestRowRange : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void meansTheSameRowsAsInPython_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("count");
        QTest::addColumn<QList<int>>("rows");
        using Rows = QList<int>;
        const Rows all{0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
        QTest::newRow("nothing") << u""_s << 10 << all;
        QTest::newRow("blanks") << u"  "_s << 10 << all;
        QTest::newRow("all") << u":"_s << 10 << all;
        QTest::newRow("all with two colons") << u"::"_s << 10 << all;
        QTest::newRow("first and end") << u"2:5"_s << 10 << Rows{2, 3, 4};
        QTest::newRow("blanks within") << u" 2 : 5 "_s << 10 << Rows{2, 3, 4};
        QTest::newRow("beyond the end") << u"0:5000"_s << 10 << all;
        QTest::newRow("from") << u"7:"_s << 10 << Rows{7, 8, 9};
        QTest::newRow("to") << u":3"_s << 10 << Rows{0, 1, 2};
        QTest::newRow("last five") << u"-5:"_s << 10 << Rows{5, 6, 7, 8, 9};
        QTest::newRow("without the last two") << u":-2"_s << 10 << Rows{0, 1, 2, 3, 4, 5, 6, 7};
        QTest::newRow("before the first") << u"-50:2"_s << 10 << Rows{0, 1};
        QTest::newRow("backwards") << u"::-1"_s << 10 << Rows{9, 8, 7, 6, 5, 4, 3, 2, 1, 0};
        QTest::newRow("every third") << u"::3"_s << 10 << Rows{0, 3, 6, 9};
        QTest::newRow("every fourth from one") << u"1::4"_s << 10 << Rows{1, 5, 9};
        QTest::newRow("every third backwards") << u"::-3"_s << 10 << Rows{9, 6, 3, 0};
        QTest::newRow("backwards between") << u"7:2:-2"_s << 10 << Rows{7, 5, 3};
        QTest::newRow("backwards from beyond") << u"50:6:-1"_s << 10 << Rows{9, 8, 7};
        QTest::newRow("backwards to before the first") << u"2:-50:-1"_s << 10 << Rows{2, 1, 0};
        QTest::newRow("wrong way") << u"5:2"_s << 10 << Rows{};
        QTest::newRow("wrong way backwards") << u"2:5:-1"_s << 10 << Rows{};
        QTest::newRow("empty") << u"4:4"_s << 10 << Rows{};
        QTest::newRow("one row") << u"4"_s << 10 << Rows{4};
        QTest::newRow("the last row") << u"-1"_s << 10 << Rows{9};
        QTest::newRow("the last but one") << u"-2"_s << 10 << Rows{8};
        QTest::newRow("no such row") << u"10"_s << 10 << Rows{};
        QTest::newRow("an empty list") << u"::-1"_s << 0 << Rows{};
        QTest::newRow("a step beyond int") << u"::99999999999"_s << 10 << Rows{0};
        QTest::newRow("more digits than a number has") << u"0:123456789012345678901234567890"_s << 10 << all;
        QTest::newRow("as many below zero") << u"-123456789012345678901234567890:"_s << 10 << all;
        QTest::newRow("a huge step backwards") << u"::-123456789012345678901234567890"_s << 10 << Rows{9};
    }
    void meansTheSameRowsAsInPython()
    {
        QFETCH(QString, text);
        QFETCH(int, count);
        QFETCH(QList<int>, rows);
        const auto range = RowRange::parse(text);
        QVERIFY2(range, qPrintable(range.error()));
        const RowMap map(range.value().rows(count));
        QList<int> shown;
        for (int place = 0; place < map.count(); ++place)
            shown += map.listRow(place);
        QCOMPARE(shown, rows);
        for (int row = -1; row <= count; ++row)
            QCOMPARE(map.placeOf(row), rows.indexOf(row));
        QCOMPARE(map.isWhole(count), range.value().isAll() || (rows.size() == count && (count == 0 || rows[0] == 0)));
    }

    void refusesWhatIsNoRange_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("part");
        QTest::newRow("a word") << u"five"_s << u"\"five\""_s;
        QTest::newRow("a fraction") << u"1.5:"_s << u"\"1.5\""_s;
        QTest::newRow("a comma") << u"1,000:"_s << u"\"1,000\""_s;
        QTest::newRow("an exponent") << u"1e3:"_s << u"\"1e3\""_s;
        QTest::newRow("a minus alone") << u"-:"_s << u"\"-\""_s;
        QTest::newRow("a step of 0") << u"::0"_s << u"can't be 0"_s;
        QTest::newRow("four parts") << u"1:2:3:4"_s << u"at most three"_s;
        QTest::newRow("other digits") << u"\u0661:"_s << u"isn't the number"_s;
        QTest::newRow("long nonsense") << QString(100'000, u'x') << u"isn't the number"_s;
    }
    void refusesWhatIsNoRange()
    {
        QFETCH(QString, text);
        QFETCH(QString, part);
        const auto range = RowRange::parse(text);
        QVERIFY(!range);
        QVERIFY2(range.error().contains(part), qPrintable(range.error()));
        QVERIFY(range.error().size() < 200);
    }

    void aMapOfRowsFindsThem()
    {
        const RowMap map({5, 2, 9}, 10);
        QCOMPARE(map.count(), 3);
        QCOMPARE(map.listRow(1), 2);
        QCOMPARE(map.placeOf(9), 2);
        QCOMPARE(map.placeOf(3), -1);
        QCOMPARE(map.placeOf(10), -1);
        QVERIFY(!map.isAscending());
        QVERIFY(RowMap({2, 5, 9}, 10).isAscending());
        QVERIFY(!map.isWhole(3));
    }
};

QTEST_APPLESS_MAIN(TestRowRange)
#include "tst_RowRange.moc"

#include "app/lists/ListCase.h"
#include "scene/FieldCatalogue.h"

#include "orvane/app/lists/ListClipboard.h"

#include <QClipboard>
#include <QMimeData>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

/// Cells that are copied to other programs and pasted from them.
class TestListClipboard : public ListCase {
    Q_OBJECT

private Q_SLOTS:
    void init() { openPanel(); }
    void cleanup()
    {
        QGuiApplication::clipboard()->clear();
        closePanel();
    }

    void cellsAreCopiedAsATable()
    {
        show(vectors(), "[1 2 3, 4 5.5 6, 7 8 -inf]");
        clickCell(0, 1);
        clickCell(1, 2, Qt::ShiftModifier);
        press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(clipboard(), u"2\t3\n5.5\t6\n"_s);
        clickRow(2);
        press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(clipboard(), u"7\t8\t-inf\n"_s);
        QCOMPARE(steps().count(), 0);
    }

    void rowsAreCut()
    {
        showNumbers(6);
        clickRow(1);
        clickRow(3, Qt::ControlModifier);
        press(Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(clipboard(), u"1\n3\n"_s);
        QCOMPARE(textOf(numbers()), u"[0, 2, 4, 5]"_s);
        QCOMPARE(lastStep(), u"Delete 2 rows of hand.mfInt32"_s);
    }

    void aTableIsPasted_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("result");

        QTest::newRow("tabs") << u"1\t2\t3\n4\t5\t6\n"_s << 0 << u"[0 0 0, 1 2 3, 4 5 6]"_s;
        QTest::newRow("carriage returns") << u"1\t2\t3\r\n4\t5\t6\r\n"_s << 0 << u"[0 0 0, 1 2 3, 4 5 6]"_s;
        QTest::newRow("decimal commas") << u"1,5\t2,5\t3\n4\t5\t6,25"_s << 0 << u"[0 0 0, 1.5 2.5 3, 4 5 6.25]"_s;
        QTest::newRow("semicolons") << u"1,5;2;3\n4;5;6"_s << 0 << u"[0 0 0, 1.5 2 3, 4 5 6]"_s;
        QTest::newRow("commas") << u"1.5,2,3\n4,5,6"_s << 0 << u"[0 0 0, 1.5 2 3, 4 5 6]"_s;
        QTest::newRow("commas with blanks") << u"1, 2, 3\n4, 5, 6"_s << 0 << u"[0 0 0, 1 2 3, 4 5 6]"_s;
        QTest::newRow("blanks") << u" 1  2 3\n4 5 6 "_s << 0 << u"[0 0 0, 1 2 3, 4 5 6]"_s;
        QTest::newRow("one column of decimal commas") << u"1,5\n2,5"_s << 1 << u"[0 0 0, 0 1.5 0, 0 2.5 0]"_s;
        QTest::newRow("two columns") << u"1\t2\n3\t4"_s << 1 << u"[0 0 0, 0 1 2, 0 3 4]"_s;
        QTest::newRow("titles") << u"x\ty\tz\n1\t2\t3"_s << 0 << u"[0 0 0, 1 2 3, 0 0 0]"_s;
        QTest::newRow("quotes") << u"\"1\"\t\"2\"\t3"_s << 0 << u"[0 0 0, 1 2 3, 0 0 0]"_s;
        QTest::newRow("longer than the list")
            << u"1\t2\t3\n4\t5\t6\n7\t8\t9"_s << 0 << u"[0 0 0, 1 2 3, 4 5 6, 7 8 9]"_s;
        QTest::newRow("infinite") << u"inf\t-inf\tnan"_s << 0 << u"[0 0 0, inf -inf nan, 0 0 0]"_s;
        QTest::newRow("exponents") << u"1e3\t-2.5E-1\t+4"_s << 0 << u"[0 0 0, 1000 -0.25 4, 0 0 0]"_s;
    }
    void aTableIsPasted()
    {
        QFETCH(QString, text);
        QFETCH(int, column);
        QFETCH(QString, result);
        show(vectors(), "[0 0 0, 0 0 0, 0 0 0]");
        clickCell(1, column);
        paste(text);
        QVERIFY2(messages().isEmpty(), qPrintable(messages().join(u'|')));
        QCOMPARE(textOf(vectors()), result);
        QCOMPARE(steps().count(), 1);
        QVERIFY2(lastStep().startsWith(u"Paste "_s), qPrintable(lastStep()));
        m_open->services().undo();
        QCOMPARE(textOf(vectors()), u"[0 0 0, 0 0 0, 0 0 0]"_s);
    }

    void whatIsNoTableIsRefused_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("part");
        QTest::newRow("ragged") << u"1\t2\t3\n4\t5\n"_s << u"Line 2 of the clipboard has 2 cells"_s;
        QTest::newRow("an empty line") << u"1\t2\t3\n\n4\t5\t6\n"_s << u"Line 2"_s;
        QTest::newRow("a word") << u"1\t2\t3\n4\tfive\t6\n"_s << u"Line 2, column y: \"five\""_s;
        QTest::newRow("an empty cell") << u"1\t\t3\n"_s
                                       << u"Line 1, column y: \"\" can't be pasted. The cell is empty"_s;
        QTest::newRow("thousands") << u"1\t1,234,567\t3"_s << u"Line 1, column y"_s;
        QTest::newRow("too wide") << u"1\t2\t3\t4\n"_s << u"4 columns"_s;
        QTest::newRow("html") << u"<table><tr><td>1</td></tr></table>"_s << u"Line 1, column x"_s;
        QTest::newRow("too great") << u"1\t1e60\t3"_s << u"Line 1, column y"_s;
        QTest::newRow("a megabyte in a cell") << QString(1'000'000, u'1') + u"x"_s << u"Line 1, column x"_s;
        QTest::newRow("nothing") << u"\n"_s << u"Line 1"_s;
    }
    void whatIsNoTableIsRefused()
    {
        QFETCH(QString, text);
        QFETCH(QString, part);
        show(vectors(), "[0 0 0, 0 0 0]");
        clickCell(0, 0);
        paste(text);
        QCOMPARE(messages().size(), 1);
        QVERIFY2(messages().front().contains(part), qPrintable(messages().front()));
        QVERIFY(messages().front().size() < 500);
        QCOMPARE(textOf(vectors()), u"[0 0 0, 0 0 0]"_s);
        QCOMPARE(steps().count(), 0);
    }

    void htmlAloneIsRefused()
    {
        showNumbers(2);
        clickCell(0, 0);
        auto* const data = new QMimeData;
        data->setHtml(u"<table><tr><td>1</td></tr></table>"_s);
        QGuiApplication::clipboard()->setMimeData(data);
        press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(messages().size(), 1);
        QCOMPARE(textOf(numbers()), u"[0, 1]"_s);
    }

    void aFractionIsRefusedByWholeNumbers()
    {
        showNumbers(2);
        clickCell(0, 0);
        paste(u"1\n2.5\n"_s);
        QVERIFY(messages().front().contains(u"Line 2"_s));
        QCOMPARE(textOf(numbers()), u"[0, 1]"_s);
    }

    void aCellGoesToAllSelectedOnes()
    {
        show(vectors(), "[1 2 3, 4 5 6, 7 8 9]");
        clickCell(0, 1);
        clickCell(1, 2, Qt::ShiftModifier);
        paste(u"0"_s);
        QCOMPARE(textOf(vectors()), u"[1 0 0, 4 0 0, 7 8 9]"_s);
        QCOMPARE(steps().count(), 1);
    }

    void textsKeepTabsQuotesAndLines()
    {
        NxMFString& list = node().mfString;
        list.setValues(std::vector<VbString>{"a\tb", "line\nline", "\"quoted\"", "", "1,5; 2"});
        show(list);
        const QString before = textOf(list);
        clickCell(0, 0);
        press(Qt::Key_A, Qt::ControlModifier);
        press(Qt::Key_C, Qt::ControlModifier);
        list.setValues(std::vector<VbString>(5));
        settle();
        clickCell(0, 0);
        press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(textOf(list), before);
    }

    void whatIsCopiedIsPastedBack_data()
    {
        QTest::addColumn<QString>("field");
        const NxRef<NxFieldGallery> gallery(new NxFieldGallery);
        for (NxField* const field : gallery->getFields()) {
            if (dynamic_cast<NxMField*>(field) != nullptr) {
                const QString name = orvane::toQString(field->getContainer()->getFieldName(field));
                QTest::newRow(qPrintable(name)) << name;
            }
        }
    }
    void whatIsCopiedIsPastedBack()
    {
        QFETCH(QString, field);
        auto& list = dynamic_cast<NxMField&>(*node().getField(orvane::toVbName(field)));
        const auto& kinds = fieldCatalogue();
        const auto kind = std::ranges::find(kinds, list.getTypeId(), &FieldKind::type);
        QVERIFY(kind != kinds.end());
        RandomValues random(17);
        for (int round = 0; round < 5; ++round) {
            do
                kind->setRandom(list, random);
            while (list.getNum() < 2);
            // A table doesn't know kinds of NaN, and whether a null text is one.
            QString before = textOf(list);
            before.replace(QRegularExpression(u"-?nan(\\([^)]*\\))?"_s), u"nan"_s);
            if (!list.set(orvane::toVbString(before)))
                continue;
            before = textOf(list);
            show(list);
            clickCell(0, 0);
            press(Qt::Key_A, Qt::ControlModifier);
            press(Qt::Key_C, Qt::ControlModifier);
            const int count = list.getNum();
            list.deleteValues(1, -1);
            settle();
            view()->setFocus();
            clickCell(0, 0);
            press(Qt::Key_V, Qt::ControlModifier);
            settle();
            QVERIFY2(messages().isEmpty(), qPrintable(messages().join(u'|')));
            QCOMPARE(list.getNum(), count);
            QCOMPARE(textOf(list), before);
        }
    }

    void aLongListIsCopiedAndPasted()
    {
        constexpr int count = 200'000;
        std::vector<VbVec3f> values(count);
        for (int i = 0; i < count; ++i)
            values[static_cast<std::size_t>(i)] = {static_cast<float>(i), 0.5F, -1};
        vectors().setValues(values);
        show(vectors());
        clickCell(0, 0);
        press(Qt::Key_A, Qt::ControlModifier);
        press(Qt::Key_C, Qt::ControlModifier);
        auto* const work = m_panel->findChild<ListClipboard*>();
        QVERIFY(work->isBusy());
        QTRY_VERIFY(!work->isBusy());
        const QString text = clipboard();
        QCOMPARE(text.count(u'\n'), count);
        QVERIFY(text.startsWith(u"0\t0.5\t-1\n1\t0.5\t-1\n"_s));
        vectors().setValues(std::vector<VbVec3f>(2));
        settle();
        clickCell(0, 0);
        press(Qt::Key_V, Qt::ControlModifier);
        QTRY_VERIFY(!work->isBusy());
        m_open->finish();
        QVERIFY2(messages().isEmpty(), qPrintable(messages().join(u'|')));
        QVERIFY(std::ranges::equal(vectors().getValues(), values));
        QCOMPARE(lastStep(), u"Paste 200,000 rows into hand.mfVec3f"_s);
        m_open->services().undo();
        QCOMPARE(vectors().getNum(), 2);
    }

    void aListThatChangesMeanwhileIsNotPastedInto()
    {
        showNumbers(3);
        clickCell(0, 0);
        QGuiApplication::clipboard()->setText(u"1\n"_s.repeated(300'000));
        QTest::keyClick(view(), Qt::Key_V, Qt::ControlModifier);
        auto* const work = m_panel->findChild<ListClipboard*>();
        QVERIFY(work->isBusy());
        numbers().set1Value(0, 42);
        QTRY_VERIFY(!work->isBusy());
        m_open->finish();
        QCOMPARE(textOf(numbers()), u"[42, 1, 2]"_s);
        QVERIFY(messages().front().contains(u"Nothing was pasted"_s));
    }

private:
    static QString clipboard() { return QGuiApplication::clipboard()->text(); }
    void paste(const QString& text)
    {
        QGuiApplication::clipboard()->setText(text);
        press(Qt::Key_V, Qt::ControlModifier);
        QTRY_VERIFY(!m_panel->findChild<ListClipboard*>()->isBusy());
        m_open->finish();
    }
};

QTEST_MAIN(TestListClipboard)
#include "tst_ListClipboard.moc"

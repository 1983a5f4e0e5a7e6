#include "app/lists/ListCase.h"

#include <QClipboard>
#include <QLocale>

using namespace Qt::StringLiterals;

/// Numbers and formulas typed into cells, filter and formula of a list, whatever the language of the desktop.
class TestListLocales : public ListCase {
    Q_OBJECT

private:
    static void addLocales(const char* title, const QString& typed, const QString& expected)
    {
        for (const char* const name : {"C", "de_DE", "fr_FR", "ar_EG"})
            QTest::addRow("%s, %s", title, name) << QLatin1String(name) << typed << expected;
    }
    static void addColumns()
    {
        QTest::addColumn<QLatin1String>("locale");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("expected");
    }

private Q_SLOTS:
    void init()
    {
        QFETCH(const QLatin1String, locale);
        QLocale::setDefault(QLocale(locale));
        openPanel();
    }
    void cleanup()
    {
        closePanel();
        QLocale::setDefault(QLocale::c());
    }

    void cellsTakeBothDecimalSigns_data()
    {
        addColumns();
        addLocales("point", u"2.5"_s, u"2.5"_s);
        addLocales("comma", u"2,5"_s, u"2.5"_s);
        addLocales("large", u"1234567"_s, u"1234567"_s);
        addLocales("exponent", u"-1,5e-3"_s, u"-0.0015"_s);
        addLocales("formula", u"if(x > 1,5; x*2; 0)"_s, u"10"_s);
    }
    void cellsTakeBothDecimalSigns()
    {
        QFETCH(const QString, typed);
        QFETCH(const QString, expected);
        show(vectors(), "[1 2 3, 4 5 6]");
        doubleClickCell(1, 1);
        QVERIFY(cellEditor() != nullptr);
        cellEditor()->selectAll();
        type(typed);
        QTest::keyClick(cellEditor(), Qt::Key_Return);
        m_open->finish();
        QCOMPARE(textOf(vectors()), u"[1 2 3, 4 %1 6]"_s.arg(expected));
        // What is shown can be typed again.
        QCOMPARE(model()->index(1, 1).data().toString(), expected);
        QTRY_VERIFY(cellEditor() == nullptr);
        doubleClickCell(1, 1);
        QCOMPARE(cellEditor()->text(), expected);
        QTest::keyClick(cellEditor(), Qt::Key_Escape);
        QCOMPARE(steps().count(), 1);
    }

    void theFilterTakesBothDecimalSigns_data()
    {
        addColumns();
        addLocales("point", u"x > 1.5"_s, u"1 2"_s);
        addLocales("comma", u"x > 1,5"_s, u"1 2"_s);
        addLocales("two", u"x > 1,5 and y < 1000.5"_s, u"1"_s);
        addLocales("arguments", u"max(x; y) = 7,5"_s, u"0"_s);
    }
    void theFilterTakesBothDecimalSigns()
    {
        QFETCH(const QString, typed);
        QFETCH(const QString, expected);
        show(vectors(), "[1.5 7.5 0, 2 3 0, 3 2000 0]");
        enter("listFilter", typed);
        QStringList rows;
        for (const int row : shownRows())
            rows.append(QString::number(row));
        QCOMPARE(rows.join(u' '), expected);
        QCOMPARE(messages(), QStringList());
    }

    void theFormulaTakesBothDecimalSigns_data()
    {
        addColumns();
        addLocales("point", u"x*0.5"_s, u"[0.5 0 0, 1 0 0]"_s);
        addLocales("comma", u"x*0,5"_s, u"[0.5 0 0, 1 0 0]"_s);
        addLocales("arguments", u"min(x; 1,25)"_s, u"[1 0 0, 1.25 0 0]"_s);
        addLocales("per cent", u"x*12,5%"_s, u"[0.125 0 0, 0.25 0 0]"_s);
    }
    void theFormulaTakesBothDecimalSigns()
    {
        QFETCH(const QString, typed);
        QFETCH(const QString, expected);
        show(vectors(), "[1 0 0, 2 0 0]");
        enter("listSetFormula", typed);
        QTRY_COMPARE(textOf(vectors()), expected);
    }

    void cellsAreCopiedWithPoints_data()
    {
        addColumns();
        addLocales("vectors", QString(), u"1.5\t-2000\t0.001"_s);
    }
    void cellsAreCopiedWithPoints()
    {
        QFETCH(const QString, expected);
        show(vectors(), "[1.5 -2000 0.001]");
        clickRow(0);
        press(Qt::Key_C, Qt::ControlModifier);
        QTRY_COMPARE(QGuiApplication::clipboard()->text().trimmed(), expected);
    }
};

QTEST_MAIN(TestListLocales)
#include "tst_ListLocales.moc"

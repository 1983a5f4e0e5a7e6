#include "app/fields/cells/CellCase.h"

#include "orvane/app/input/FoundText.h"
#include "orvane/app/look/Look.h"

#include <QPainter>
#include <QPixmap>

using namespace Qt::StringLiterals;
namespace look = orvane::look;

/// What the filter line has found is highlighted in the table.
class TestFoundText : public CellCase {
    Q_OBJECT

private:
    void filter(const QString& query)
    {
        FilterLine* const line = m_panel->filterBar()->line();
        QTest::keyClick(line, Qt::Key_Escape);
        QTest::keyClicks(line, query);
    }
    /// How many pixels of a cell have the colour of the line below what was found.
    [[nodiscard]] int marked(const char* name, int column)
    {
        const QModelIndex index = row(name, column);
        view()->scrollTo(index);
        const QRect place = view()->visualRect(index);
        const QColor background = view()->palette().color(QPalette::Base);
        return countOf(view()->viewport()->grab(place).toImage(), look::markColor(look::Tint::Warning, background), 2);
    }
    [[nodiscard]] bool isMarked(const char* name, int column) { return marked(name, column) > 0; }

private Q_SLOTS:
    void cleanup() { close(); }

    void nothingIsHighlightedWithoutAFilter()
    {
        openGalleries(1);
        QVERIFY(!isMarked("sfFloat", FieldTableModel::NameColumn));
        QVERIFY(!isMarked("sfFloat", FieldTableModel::ValueColumn));
    }

    void lettersOfTheName()
    {
        openGalleries(1);
        filter(u"f:floa"_s);
        const int four = marked("sfFloat", FieldTableModel::NameColumn);
        QVERIFY(four > 0);
        QVERIFY(!isMarked("sfFloat", FieldTableModel::ValueColumn));
        filter(u"f:foat"_s);
        QVERIFY(isMarked("sfFloat", FieldTableModel::NameColumn));
        filter(u"f:fl"_s);
        QVERIFY(isMarked("sfFloat", FieldTableModel::NameColumn));
        QVERIFY(marked("sfFloat", FieldTableModel::NameColumn) < four);
        filter({});
        QVERIFY(!isMarked("sfFloat", FieldTableModel::NameColumn));
    }

    void lettersOfTheType()
    {
        openGalleries(1);
        view()->setColumnHidden(FieldTableModel::TypeColumn, false);
        filter(u"t:vec3f"_s);
        QVERIFY(isMarked("sfVec3f", FieldTableModel::TypeColumn));
        QVERIFY(!isMarked("sfVec3f", FieldTableModel::NameColumn));
    }

    void lettersOfTheValue_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<QString>("query");
        QTest::newRow("number") << "sfFloat"_ba
                                << "4.75"_ba << u"~4.75"_s;
        QTest::newRow("component") << "sfVec3f"_ba
                                   << "1 4.75 2"_ba << u"~4.7"_s;
        QTest::newRow("text") << "sfString"_ba
                              << "\"a left arm\""_ba << u"~LEFT"_s;
        QTest::newRow("choice") << "sfEnum"_ba
                                << ""_ba << u"~ow"_s;
        QTest::newRow("file that is missing") << "sfFilePathString"_ba
                                              << "\"/nowhere/picture.png\""_ba << u"~picture"_s;
        QTest::newRow("list") << "mfFloat"_ba
                              << "[1, 4.75]"_ba << u"~4.75"_s;
    }

    void lettersOfTheValue()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, value);
        QFETCH(QString, query);
        openGalleries(1);
        if (!value.isEmpty())
            QVERIFY(field(name.constData()).set(value.constData()));
        ManyNodes::finish();
        filter(query);
        QVERIFY(isMarked(name.constData(), FieldTableModel::ValueColumn));
    }

    void titlesOfGroupsAreNotSearched()
    {
        openGalleries(1);
        filter(u"f:sffloat"_s);
        const QModelIndex group = row("sfFloat", FieldTableModel::NameColumn).parent();
        filter(group.data().toString().left(3) + u" or f:sffloat"_s);
        const QModelIndex title = row("sfFloat", FieldTableModel::NameColumn).parent();
        const QColor mark = look::markColor(look::Tint::Warning, view()->palette().color(QPalette::Base));
        QCOMPARE(countOf(view()->viewport()->grab(view()->visualRect(title)).toImage(), mark, 2), 0);
    }

    void aTextThatIsCutIsHighlightedAsFarAsItIsSeen()
    {
        const QColor background(Qt::white);
        const QString text(200, u'm');
        const auto query = std::get<meridane::Query>(meridane::Query::parse("m"));
        QPixmap pixmap(60, 20);
        pixmap.fill(background);
        QPainter painter(&pixmap);
        const auto formats = orvane::foundFormats(query, text, meridane::SearchedText::Value, background);
        QCOMPARE(formats.size(), 1);
        QCOMPARE(formats.front().length, 200);
        QVERIFY(orvane::paintFound(painter, font(), QRect(0, 0, 60, 20), text, Qt::black, formats) <= 60);
        painter.end();
        QVERIFY(countOf(pixmap.toImage(), look::washColor(look::Tint::Warning, background), 1) > 0);
    }

private:
    static QFont font() { return QApplication::font(); }
};

QTEST_MAIN(TestFoundText)
#include "tst_FoundText.moc"

#include "endtoend/FileSession.h"

namespace {

const QString scene = QStringLiteral("#mrd 1.0\n"
                                     "Mesh \"square\" {\n"
                                     "    positions = [10 -1 0, 11 2 0, 12 3 0, 13 -4 0]\n"
                                     "    indices = [0, 1, 2, 0, 2, 3]\n"
                                     "}\n");

} // namespace

// The rows of a list in the running tool, on the desktops of several countries and on sharp screens. What counts is the
// file.
class TestListSession : public FileSession {
    Q_OBJECT

public:
    TestListSession()
        : FileSession(QStringLiteral("square.mrd"))
    {
    }

private:
    [[nodiscard]] QPoint row(const QString& text) { return m_tool->item(m_table, text).center(); }
    void enterInto(const QString& line, const QString& text)
    {
        typeInto(line, text);
        m_tool->key(QStringLiteral("Return"));
    }
    /// With the digits of the desktop as those of this test.
    [[nodiscard]] QString counts()
    {
        QString text = m_tool->property(QStringLiteral("listCounts"), QStringLiteral("text"));
        for (QChar& character : text) {
            if (character.digitValue() >= 0)
                character = QChar(u'0' + character.digitValue());
        }
        return text;
    }

    const QString m_table = QStringLiteral("listTable");

private Q_SLOTS:
    void cleanup() { end(); }

    void aListIsFoundFilteredAndEdited_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<int>("scale");
        QTest::newRow("C") << QStringLiteral("C.UTF-8") << 1;
        QTest::newRow("German, sharp screen") << QStringLiteral("de_DE.UTF-8") << 2;
        QTest::newRow("French") << QStringLiteral("fr_FR.UTF-8") << 1;
        QTest::newRow("Arabic, sharp screen") << QStringLiteral("ar_EG.UTF-8") << 2;
    }
    void aListIsFoundFilteredAndEdited()
    {
        QFETCH(const QString, locale);
        QFETCH(const int, scale);
        start(scene, QStringLiteral("square"), scale, locale);
        m_tool->doubleClick(m_tool->item(QStringLiteral("fieldTable"), QStringLiteral("positions")).center());
        QTRY_COMPARE(counts(), QStringLiteral("4 × Vec3f"));

        // A cell is edited in place, with a decimal comma.
        m_tool->doubleClick(row(QStringLiteral("11")));
        QVERIFY(!m_tool->widget(QStringLiteral("listCellEditor")).isEmpty());
        m_tool->key(QStringLiteral("ctrl+a"));
        m_tool->type(QStringLiteral("2,5"));
        m_tool->key(QStringLiteral("Return"));
        QVERIFY(!m_tool->item(m_table, QStringLiteral("2.5")).isEmpty());
        QVERIFY(saved().contains(QStringLiteral("[10 -1 0, 2.5 2 0, 12 3 0, 13 -4 0]")));

        // The formula is for the rows that are shown.
        enterInto(QStringLiteral("listFilter"), QStringLiteral("y > 0,5"));
        QTRY_COMPARE(counts(), QStringLiteral("4 × Vec3f, 2 shown"));
        m_tool->click(row(QStringLiteral("2.5")));
        m_tool->key(QStringLiteral("ctrl+a"));
        QTRY_COMPARE(counts(), QStringLiteral("4 × Vec3f, 2 shown, 2 selected"));
        enterInto(QStringLiteral("listSetFormula"), QStringLiteral("x*0,5+i"));
        QVERIFY(!m_tool->item(m_table, QStringLiteral("8")).isEmpty());
        QVERIFY(saved().contains(QStringLiteral("[10 -1 0, 2.25 2 0, 8 3 0, 13 -4 0]")));

        // In the line, the key would take the text back.
        m_tool->click(row(QStringLiteral("8")));
        m_tool->key(QStringLiteral("ctrl+z"));
        QVERIFY(saved().contains(QStringLiteral("[10 -1 0, 2.5 2 0, 12 3 0, 13 -4 0]")));

        // The rows of the filter are deleted by the key.
        m_tool->click(row(QStringLiteral("12")));
        m_tool->key(QStringLiteral("ctrl+a"));
        m_tool->key(QStringLiteral("Delete"));
        QTRY_COMPARE(counts(), QStringLiteral("2 × Vec3f, 0 shown"));
        QVERIFY(saved().contains(QStringLiteral("[10 -1 0, 13 -4 0]")));
        QCOMPARE(m_tool->quit(), 0);
    }
};

QTEST_MAIN(TestListSession)
#include "tst_ListSession.moc"

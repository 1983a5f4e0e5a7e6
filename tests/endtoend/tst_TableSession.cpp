#include "endtoend/FileSession.h"

using namespace Qt::StringLiterals;

namespace {

const QString scene = QStringLiteral("#mrd 1.0\n"
                                     "FieldGallery \"gallery\" {\n"
                                     "    sfFloat = 42.5\n"
                                     "    sfBox2f = 0 0 3 3\n"
                                     "    sfName = \"old\"\n"
                                     "}\n");

} // namespace

// Fields edited in the table of the running tool by real keys and the real mouse, on usual and on sharp screens. What
// counts is the file.
class TestTableSession : public FileSession {
    Q_OBJECT

public:
    TestTableSession()
        : FileSession(u"gallery.mrd"_s)
    {
    }

private:
    /// Opens the editor in the selected row by a key, and types in place of what is there.
    void type(const QString& text)
    {
        m_tool->key(u"F2"_s);
        QVERIFY(!m_tool->widget(u"fieldTable/QLineEdit"_s).isEmpty());
        m_tool->key(u"ctrl+a"_s);
        m_tool->type(text);
    }
    /// The line in the table is gone.
    void waitForTheTable() { QTRY_VERIFY(!m_tool->isShown(u"fieldTable/QLineEdit"_s)); }
    void startWith(int scale) { start(scene, u"gallery"_s, scale); }
    static void addScales()
    {
        QTest::addColumn<int>("scale");
        QTest::newRow("100 per cent") << 1;
        QTest::newRow("200 per cent") << 2;
    }

private Q_SLOTS:
    void cleanup() { end(); }

    void keysEditCells_data() { addScales(); }
    void keysEditCells()
    {
        QFETCH(const int, scale);
        startWith(scale);
        select(u"sfFloat"_s);
        type(u"2,5*3"_s);
        m_tool->key(u"Return"_s);
        waitForTheTable();
        QVERIFY(saved().contains(u"sfFloat = 7.5\n"_s));

        // Tab goes through the components; Escape leaves the third as it was.
        select(u"sfBox2f"_s);
        type(u"1"_s);
        m_tool->key(u"Tab"_s);
        m_tool->type(u"2"_s);
        m_tool->key(u"Tab"_s);
        m_tool->type(u"9"_s);
        m_tool->key(u"Escape"_s);
        waitForTheTable();
        QVERIFY(saved().contains(u"sfBox2f = 1 2 3 3\n"_s));

        select(u"sfName"_s);
        type(u"new"_s);
        m_tool->key(u"Return"_s);
        waitForTheTable();
        QVERIFY(saved().contains(u"sfName = \"new\"\n"_s));

        // A key resets, another one takes that back.
        select(u"sfFloat"_s);
        m_tool->key(u"ctrl+BackSpace"_s);
        QVERIFY(!saved().contains(u"sfFloat"_s));
        m_tool->key(u"ctrl+z"_s);
        QVERIFY(saved().contains(u"sfFloat = 7.5\n"_s));
        QCOMPARE(m_tool->quit(), 0);
    }

    void theMouseEditsCells_data() { addScales(); }
    void theMouseEditsCells()
    {
        QFETCH(const int, scale);
        startWith(scale);
        const QRect name = m_tool->item(u"fieldTable"_s, u"sfFloat"_s);
        // Far enough for a drag, on a sharp screen too.
        m_tool->drag(name.center(), name.center() + QPoint(60 * scale, 0));
        const QString dragged = saved();
        QVERIFY(!dragged.contains(u"sfFloat = 42.5\n"_s));
        QVERIFY(dragged.contains(u"sfFloat = "_s));
        m_tool->key(u"ctrl+z"_s);
        QVERIFY(saved().contains(u"sfFloat = 42.5\n"_s));

        m_tool->dragAndHold(name.center(), name.center() + QPoint(60 * scale, 0));
        m_tool->key(u"Escape"_s);
        m_tool->release();
        // The value is right of the name.
        m_tool->click(QPoint(name.right() + 30 * scale, name.center().y()));
        QVERIFY(!m_tool->widget(u"fieldTable/QLineEdit"_s).isEmpty());
        QCOMPARE(m_tool->property(u"fieldTable/QLineEdit"_s, u"text"_s), u"42.5"_s);
        m_tool->key(u"ctrl+a"_s);
        m_tool->type(u"1/8"_s);
        m_tool->key(u"Return"_s);
        waitForTheTable();
        QVERIFY(saved().contains(u"sfFloat = 0.125\n"_s));
        QCOMPARE(m_tool->quit(), 0);
    }

    void theFilterIsTyped_data() { addScales(); }
    void theFilterIsTyped()
    {
        QFETCH(const int, scale);
        startWith(scale);
        m_tool->click(m_tool->widget(u"fieldFilter"_s).center());
        m_tool->type(u"f:sfFloat"_s);
        m_tool->key(u"Down"_s);
        select(u"sfFloat"_s);
        type(u"x+1"_s);
        m_tool->key(u"Return"_s);
        waitForTheTable();
        QVERIFY(saved().contains(u"sfFloat = 43.5\n"_s));
        QCOMPARE(m_tool->quit(), 0);
    }
};

QTEST_GUILESS_MAIN(TestTableSession)
#include "tst_TableSession.moc"

#include "Patience.h"
#include "TestFiles.h"
#include "endtoend/LiveTool.h"

#include <QTemporaryDir>
#include <QTest>

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
class TestTableSession : public QObject {
    Q_OBJECT

private:
    [[nodiscard]] QString fileName() const { return m_folder.filePath(u"gallery.mrd"_s); }

    void select(const QString& field) { m_tool->click(m_tool->item(u"fieldTable"_s, field).center()); }
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
    [[nodiscard]] QString saved()
    {
        m_tool->key(u"ctrl+s"_s);
        const bool isSaved = QTest::qWaitFor(
            [this] {
                return !m_tool->property(u"mainWindow"_s, u"windowModified"_s).startsWith(QLatin1String("true"));
            },
            testPatience);
        return isSaved ? QString::fromUtf8(readFile(fileName())) : QString();
    }
    void start(int scale)
    {
        writeFile(fileName(), scene.toUtf8());
        m_tool = std::make_unique<LiveTool>();
        m_tool->useScale(scale);
        QVERIFY(m_tool->start({fileName()}));
        m_tool->click(m_tool->item(u"sceneTree"_s, u"gallery"_s).center());
    }
    static void addScales()
    {
        QTest::addColumn<int>("scale");
        QTest::newRow("100 per cent") << 1;
        QTest::newRow("200 per cent") << 2;
    }

    QTemporaryDir m_folder;
    std::unique_ptr<LiveTool> m_tool;

private Q_SLOTS:
    void cleanup() { m_tool.reset(); }

    void keysEditCells_data() { addScales(); }
    void keysEditCells()
    {
        QFETCH(const int, scale);
        start(scale);
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
        start(scale);
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
        start(scale);
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

#include "endtoend/FileSession.h"

namespace {

const QString scene = QStringLiteral("#mrd 1.0\n"
                                     "FieldGallery \"gallery\" {\n"
                                     "    sfFloat = 42.5\n"
                                     "    sfVec2i32 = 100 200\n"
                                     "    mfDouble = [1, 2, 3]\n"
                                     "}\n");

} // namespace

// Numbers typed into the editors of the running tool, on the desktops of several countries and on sharp screens. What
// counts is the file.
class TestNumberSession : public FileSession {
    Q_OBJECT

public:
    TestNumberSession()
        : FileSession(QStringLiteral("gallery.mrd"))
    {
    }

private Q_SLOTS:
    void cleanup() { end(); }

    void numbersOfEveryDesktopReachTheFile_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<int>("scale");
        QTest::newRow("C") << QStringLiteral("C.UTF-8") << 1;
        QTest::newRow("German") << QStringLiteral("de_DE.UTF-8") << 1;
        QTest::newRow("French, sharp screen") << QStringLiteral("fr_FR.UTF-8") << 2;
        QTest::newRow("Arabic") << QStringLiteral("ar_EG.UTF-8") << 1;
    }
    void numbersOfEveryDesktopReachTheFile()
    {
        QFETCH(const QString, locale);
        QFETCH(const int, scale);
        start(scene, QStringLiteral("gallery"), scale, locale);

        const QString line = QStringLiteral("DvSliderFrame/QLineEdit");
        select(QStringLiteral("sfFloat"));
        typeInto(line, QStringLiteral("2.5"));
        m_tool->key(QStringLiteral("Return"));
        QTRY_COMPARE(m_tool->property(line, QStringLiteral("text")), QStringLiteral("2.500000"));
        QVERIFY(saved().contains(QStringLiteral("sfFloat = 2.5\n")));

        typeInto(line, QStringLiteral("3,5"));
        QTRY_COMPARE(m_tool->property(QStringLiteral("numberCover"), QStringLiteral("text")), QStringLiteral("3,5"));
        const QRect under = m_tool->widget(line);
        QCOMPARE(m_tool->widget(QStringLiteral("numberCover")), under);
        m_tool->key(QStringLiteral("Return"));
        QTRY_COMPARE(m_tool->property(line, QStringLiteral("text")), QStringLiteral("3.500000"));
        QVERIFY(saved().contains(QStringLiteral("sfFloat = 3.5\n")));

        typeInto(line, QStringLiteral("2*3+"));
        m_tool->key(QStringLiteral("Return"));
        QVERIFY(!m_tool->widget(QStringLiteral("inputMessage")).isEmpty());
        m_tool->key(QStringLiteral("End"));
        m_tool->type(QStringLiteral("1"));
        m_tool->key(QStringLiteral("Return"));
        QTRY_COMPARE(m_tool->property(line, QStringLiteral("text")), QStringLiteral("7.000000"));
        QVERIFY(saved().contains(QStringLiteral("sfFloat = 7\n")));

        m_tool->key(QStringLiteral("ctrl+z"));
        QTRY_COMPARE(m_tool->property(line, QStringLiteral("text")), QStringLiteral("3.500000"));
        QVERIFY(saved().contains(QStringLiteral("sfFloat = 3.5\n")));
        QCOMPARE(m_tool->quit(), 0);
    }

    void theWheelOverAControlChangesNothing()
    {
        writeFile(fileName(), scene.toUtf8());
        m_tool = std::make_unique<LiveTool>();
        QVERIFY(m_tool->start({fileName()}));
        m_tool->click(m_tool->item(QStringLiteral("sceneTree"), QStringLiteral("gallery")).center());
        select(QStringLiteral("sfFloat"));
        const QString slider = QStringLiteral("DvSliderFrame/QSlider");
        m_tool->turnWheel(m_tool->widget(slider).center(), -3);
        m_tool->key(QStringLiteral("F6"));
        QTRY_VERIFY(m_tool->isShown(QStringLiteral("paneFrame")));
        QCOMPARE(m_tool->property(QStringLiteral("DvSliderFrame/QLineEdit"), QStringLiteral("text")),
            QStringLiteral("42.500000"));
        QCOMPARE(m_tool->quit(), 0);
    }
};

QTEST_GUILESS_MAIN(TestNumberSession)
#include "tst_NumberSession.moc"

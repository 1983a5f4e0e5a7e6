#include "app/manners/MannersCase.h"

#include <QClipboard>
#include <QSpinBox>

// Numbers as people write them, in the lines of the plug-in's editors.
class TestNumberTyping : public MannersCase {
    Q_OBJECT

private Q_SLOTS:
    void init() { startWithGallery(); }
    void cleanup()
    {
        QLocale::setDefault(QLocale::c());
        endWithGallery();
    }

    void aNumberReachesTheField_data()
    {
        QTest::addColumn<QString>("fieldName");
        QTest::addColumn<int>("line");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("expected");
        const auto add = [](const char* name, const char* fieldName, int line, const char* keys, const char* expected) {
            QTest::newRow(name) << fieldName << line << keys << expected;
        };
        add("comma in a slider's line", "sfFloat", 0, "3,5", "3.5");
        add("point in a slider's line", "sfFloat", 0, "2.5", "2.5");
        add("formula in a slider's line", "sfFloat", 0, "2*3+1", "7");
        add("present value", "sfFloat", 0, "x*2", "85");
        add("as in a spreadsheet", "sfFloat", 0, "=1+1", "2");
        add("brackets first", "sfDouble", 0, "(1+2)/8", "0.375");
        add("more digits than a float editor's line takes", "sfFloat", 0, "0.123456789", "0.12345679");
        add("all digits of the present value", "sfDouble", 0, "x+0", "123.456789012345");
        add("infinity", "sfFloat", 0, "inf", "inf");
        add("whole number", "sfInt32", 0, "6*7", "42");
        add("unsigned number", "sfUShort", 0, "2*3", "6");
        add("vector", "sfVec3f", 1, "1,25", "1.5 1.25 1000");
        add("spin box", "sfVec2i32", 0, "3*100", "300 -1080");
        add("colour, whose lines refuse nothing", "sfColor", 2, "0,5", "0.95 0.45 0.5");
        add("angle in degrees", "sfRotation", 3, "180deg", "0 0.70710677 0.70710677 3.1415927");
        add("plane", "sfPlane", 3, "5/2+1", "0 0.6 0.8 3.5");
    }
    void aNumberReachesTheField()
    {
        QFETCH(const QString, fieldName);
        QFETCH(const int, line);
        QFETCH(const QString, keys);
        QFETCH(const QString, expected);
        const QString before = value(fieldName);
        for (const char* const locale : {"C", "de_DE", "fr_FR", "ar_EG"}) {
            QLocale::setDefault(QLocale(QLatin1String(locale)));
            orvane::useProgramLocale();
            select(fieldName);
            const int stepsBefore = steps(); // spin boxes push a command as they show a value
            enter(lines().at(line));
            type(keys);
            QCOMPARE(value(fieldName), before);
            press(Qt::Key_Return);
            QCOMPARE(value(fieldName), expected);
            QCOMPARE(message(), QString());
            QCOMPARE(cover(), nullptr);
            QCOMPARE(steps(), stepsBefore + 1);
            m_session->services().undo();
            QCOMPARE(value(fieldName), before);
            m_session->services().select(nullptr, nullptr);
            settle();
        }
    }

    void aGridsLineTakesFormulas()
    {
        select("sfMatrix");
        QTest::mouseClick(dock()->widget()->findChild<QWidget*>(QStringLiteral("m_editButton")), Qt::LeftButton);
        enter(lines().at(3));
        type(QStringLiteral("10/4"));
        press(Qt::Key_Return);
        QCOMPARE(value("sfMatrix"), QStringLiteral("0.8 0.6 0 2.5 -0.6 0.8 0 0 0 0 2 0 10 20.5 -30 1"));
        QCOMPARE(steps(), 1);
        press(Qt::Key_Escape);
        QCOMPARE(QApplication::activePopupWidget(), nullptr);
    }

    void aCellTakesFormulas_data()
    {
        QTest::addColumn<QString>("fieldName");
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("expected");
        QTest::newRow("doubles") << "mfDouble" << 1 << 0 << "1,5*2"
                                 << "[0, 3, 2.718281828459045, 3.141592653589793, 1e+300]";
        QTest::newRow("floats with a slider") << "mfFloat" << 2 << 0 << "0,25"
                                              << "[0.5, 1, 0.25, 12, 250000]";
        QTest::newRow("floats, without a formula") << "mfFloat" << 2 << 0 << "7"
                                                   << "[0.5, 1, 7, 12, 250000]";
        QTest::newRow("shorts with a slider") << "mfShort" << 1 << 0 << "x*3"
                                              << "[1, -6, 300, -32768, 32767]";
        QTest::newRow("vectors") << "mfVec2f" << 1 << 1 << "x+1,5"
                                 << "[0 0, 1 1.5, 1 1, 0.5 -20]";
        QTest::newRow("colours") << "mfColor" << 1 << 2 << "x/2"
                                 << "[1 0 0, 1 0.25 0, 1 1 0, 0 0.6 0.2, 0 0.3 1, 0.5 0 0.8]";
    }
    void aCellTakesFormulas()
    {
        QFETCH(const QString, fieldName);
        QFETCH(const int, row);
        QFETCH(const int, column);
        QFETCH(const QString, keys);
        QFETCH(const QString, expected);
        const QString before = value(fieldName);
        select(fieldName);
        openCell(row, column);
        type(keys);
        press(Qt::Key_Return);
        QCOMPARE(value(fieldName), expected);
        QCOMPARE(cover(), nullptr);
        QCOMPARE(steps(), 1);
        m_session->services().undo();
        QCOMPARE(value(fieldName), before);
    }

    void tabInACellGoesOnToTheNext()
    {
        select("mfVec2f");
        openCell(1, 0);
        type(QStringLiteral("2,5"));
        press(Qt::Key_Tab);
        QCOMPARE(value("mfVec2f"), QStringLiteral("[0 0, 2.5 0, 1 1, 0.5 -20]"));
        QCOMPARE(cells()->currentIndex(), cells()->model()->index(1, 1));
        type(QStringLiteral("1/8"));
        press(Qt::Key_Return);
        QCOMPARE(value("mfVec2f"), QStringLiteral("[0 0, 2.5 0.125, 1 1, 0.5 -20]"));
    }

    void escapeLeavesTheValueAndTheLine()
    {
        select("sfFloat");
        QLineEdit* const line = lines().front();
        const QString shown = line->text();
        enter(line);
        type(QStringLiteral("3,5"));
        QVERIFY(cover() != nullptr);
        QCOMPARE(cover()->text(), QStringLiteral("3,5"));
        QCOMPARE(cover()->mapToGlobal(QPoint()), line->mapToGlobal(QPoint()));
        QCOMPARE(cover()->size(), line->size());
        press(Qt::Key_Escape);
        QCOMPARE(cover(), nullptr);
        QVERIFY(line->hasFocus());
        QCOMPARE(line->text(), shown);
        QCOMPARE(value("sfFloat"), QStringLiteral("42.5"));
        QCOMPARE(steps(), 0);
    }

    void leavingWritesWhatMakesSense()
    {
        select("sfVec3f");
        enter(lines().at(0));
        type(QStringLiteral("1+1"));
        press(Qt::Key_Tab);
        QCOMPARE(value("sfVec3f"), QStringLiteral("2 -2.25 1000"));
        QVERIFY(lines().at(1)->hasFocus());
        type(QStringLiteral("9,5"));
        enter(lines().at(2));
        settle();
        QCOMPARE(value("sfVec3f"), QStringLiteral("2 9.5 1000"));
        QVERIFY(lines().at(2)->hasFocus());
        QCOMPARE(steps(), 2);
    }

    void aTextWithoutSenseStays()
    {
        select("sfFloat");
        enter(lines().front());
        type(QStringLiteral("2*"));
        press(Qt::Key_Return);
        QVERIFY(cover() != nullptr);
        QCOMPARE(cover()->selectedText(), QStringLiteral("2*"));
        QVERIFY(message().contains(QStringLiteral("2*")));
        QCOMPARE(value("sfFloat"), QStringLiteral("42.5"));
        press(Qt::Key_End);
        type(QStringLiteral("4"));
        press(Qt::Key_Return);
        QCOMPARE(value("sfFloat"), QStringLiteral("8"));
        QCOMPARE(message(), QString());
    }

    void leavingATextWithoutSenseQuotesIt()
    {
        select("sfVec3f");
        enter(lines().at(0));
        type(QStringLiteral("5apples"));
        enter(lines().at(1));
        settle();
        QCOMPARE(value("sfVec3f"), QStringLiteral("1.5 -2.25 1000"));
        QCOMPARE(lines().at(0)->text(), QStringLiteral("1.5"));
        QVERIFY(message().contains(QStringLiteral("5apples")));
        QCOMPARE(steps(), 0);
    }

    void whatTheEditorWouldLimitIsToldAtOnce_data()
    {
        QTest::addColumn<QString>("fieldName");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("range");
        QTest::newRow("unsigned, typed") << "sfUShort"
                                         << "70000"
                                         << "from 0 to 65535";
        QTest::newRow("unsigned, formula") << "sfUShort"
                                           << "7*10000"
                                           << "from 0 to 65535";
        QTest::newRow("signed, formula") << "sfShort"
                                         << "0-40000"
                                         << "from -32768 to 32767";
        QTest::newRow("fraction") << "sfInt32"
                                  << "2,5"
                                  << "a whole number";
        QTest::newRow("letters in a line without a validator") << "sfColor"
                                                               << "red"
                                                               << "a number";
        QTest::newRow("nothing") << "sfColor"
                                 << ""
                                 << "a number";
    }
    void whatTheEditorWouldLimitIsToldAtOnce()
    {
        QFETCH(const QString, fieldName);
        QFETCH(const QString, keys);
        QFETCH(const QString, range);
        const QString before = value(fieldName);
        select(fieldName);
        enter(lines().front());
        press(Qt::Key_Delete);
        type(keys);
        press(Qt::Key_Return);
        QVERIFY2(message().contains(range), qPrintable(message()));
        QCOMPARE(value(fieldName), before);
        QCOMPARE(steps(), 0);
    }

    void aPastedFormulaOpensTheLine()
    {
        select("sfFloat");
        enter(lines().front());
        QApplication::clipboard()->setText(QStringLiteral(" 1,5*3 "));
        press(Qt::Key_V, Qt::ControlModifier);
        QVERIFY(cover() != nullptr);
        press(Qt::Key_Return);
        QCOMPARE(value("sfFloat"), QStringLiteral("4.5"));
        QApplication::clipboard()->clear();
    }

    void aHugePasteChangesNothing()
    {
        select("sfFloat");
        QLineEdit* const line = lines().front();
        const QString shown = line->text();
        enter(line);
        QApplication::clipboard()->setText(QString(1'000'000, u'('));
        press(Qt::Key_V, Qt::ControlModifier);
        QVERIFY(message().contains(QStringLiteral("4096")));
        QCOMPARE(cover(), nullptr);
        QCOMPARE(line->text(), shown);
        QCOMPARE(value("sfFloat"), QStringLiteral("42.5"));
        QApplication::clipboard()->clear();
    }

    void otherComponentsKeepAllTheirDigits()
    {
        field("sfVec3f")->set("0.33333334 0.1234567 2");
        select("sfVec3f");
        enter(lines().at(2));
        type(QStringLiteral("3"));
        press(Qt::Key_Return);
        QCOMPARE(value("sfVec3f"), QStringLiteral("0.33333334 0.1234567 3"));
        enter(lines().at(2));
        type(QStringLiteral("3,5"));
        press(Qt::Key_Tab);
        QCOMPARE(value("sfVec3f"), QStringLiteral("0.33333334 0.1234567 3.5"));
    }

    void theNumbersOfARotationWaitForReturn()
    {
        const QString before = value("sfRotation");
        select("sfRotation");
        enter(lines().at(0));
        type(QStringLiteral("1,0"));
        press(Qt::Key_Tab);
        QVERIFY(lines().at(1)->hasFocus());
        QCOMPARE(lines().at(0)->text(), QStringLiteral("1"));
        QCOMPARE(value("sfRotation"), before);
        type(QStringLiteral("0*1"));
        press(Qt::Key_Tab);
        type(QStringLiteral("0"));
        m_window->findChild<QWidget*>(QStringLiteral("sceneTree"))->setFocus();
        settle();
        QCOMPARE(value("sfRotation"), before);
        QVERIFY(message().contains(QStringLiteral("Return")));
        enter(lines().at(3));
        type(QStringLiteral("90deg"));
        press(Qt::Key_Return);
        QCOMPARE(value("sfRotation"), QStringLiteral("1 0 0 1.5707964"));
        QCOMPARE(steps(), 1);
    }

    void aSpinBoxWritesAFinishedNumber()
    {
        select("sfVec2i32");
        const int stepsBefore = steps();
        enter(lines().front());
        type(QStringLiteral("123"));
        QCOMPARE(value("sfVec2i32"), QStringLiteral("1920 -1080"));
        press(Qt::Key_Return);
        QCOMPARE(value("sfVec2i32"), QStringLiteral("123 -1080"));
        QCOMPARE(steps(), stepsBefore + 1);
    }

    void textsAreLeftAlone()
    {
        select("sfName");
        enter(lines().front());
        type(QStringLiteral("a,b*(c)"));
        QCOMPARE(cover(), nullptr);
        press(Qt::Key_Return);
        QCOMPARE(value("sfName"), QStringLiteral("\"a,b*(c)\""));
    }

    void theFieldMayVanishMeanwhile()
    {
        select("sfFloat");
        enter(lines().front());
        type(QStringLiteral("3,5"));
        m_session->services().select(nullptr, nullptr);
        settle();
        m_window->document().scene()->removeChild(0);
        settle();
        QCOMPARE(cover(), nullptr);
    }
};

QTEST_MAIN(TestNumberTyping)
#include "tst_NumberTyping.moc"

#include "plugin/ConsoleRun.h"

#include "meridane/base/NxPreferences.h"
#include "meridane/base/errors/NxError.h"

#include <QTextEdit>

#include <iostream>
#include <string>

namespace {

constexpr const char* capturePreference = "ORVANE_STDOUT_CAPTURE";

} // namespace

class TestConsoleStreams : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { NxPreferences::unset(capturePreference); }
    void cleanup() { QVERIFY(ToolHarness::noWidgetIsLeft()); }

    void streamsAreTakenAndGivenBack()
    {
        std::streambuf* const errors = std::cerr.rdbuf();
        std::streambuf* const output = std::cout.rdbuf();
        std::streambuf* const log = std::clog.rdbuf();
        {
            ConsoleRun run;
            QVERIFY(std::cerr.rdbuf() != errors);
            QVERIFY(std::cout.rdbuf() != output);
            QVERIFY(std::cerr.rdbuf() != std::cout.rdbuf());
            QCOMPARE(std::clog.rdbuf(), log);
            run.console.deactivate();
            QCOMPARE(std::cerr.rdbuf(), errors);
            QCOMPARE(std::cout.rdbuf(), output);
        }
        QCOMPARE(std::cerr.rdbuf(), errors);
        QCOMPARE(std::cout.rdbuf(), output);
    }

    void captureCanBeTurnedOff()
    {
        std::streambuf* const errors = std::cerr.rdbuf();
        std::streambuf* const output = std::cout.rdbuf();
        NxPreferences::set(capturePreference, VbString("false"));
        ConsoleRun run;
        QCOMPARE(std::cerr.rdbuf(), errors);
        QCOMPARE(std::cout.rdbuf(), output);
        NxError::post(VbString("errors come all the same"));
        QCOMPARE(run.lines(), QStringList(QStringLiteral("errors come all the same")));
        run.console.deactivate();
        QCOMPARE(std::cerr.rdbuf(), errors);
        QCOMPARE(std::cout.rdbuf(), output);
    }

    void captureIsDecidedAtEachActivation()
    {
        std::streambuf* const output = std::cout.rdbuf();
        ConsoleRun run;
        run.console.deactivate();
        NxPreferences::set(capturePreference, VbString("0"));
        run.console.activate();
        QCOMPARE(std::cout.rdbuf(), output);
        run.console.deactivate();
        NxPreferences::unset(capturePreference);
        run.console.activate();
        QVERIFY(std::cout.rdbuf() != output);
    }

    void streamsAreShownInTheirColours()
    {
        const ConsoleRun run;
        std::cerr << "wrong";
        std::cout << "fine";
        QCOMPARE(run.lines(), QStringList({QStringLiteral("wrong"), QStringLiteral("fine")}));
        QCOMPARE(run.colorOfLine(0), QColor(Qt::darkRed));
        QCOMPARE(run.colorOfLine(1), QColor(Qt::darkGreen));
    }

    void lineWithEndlMakesAnEmptyParagraph()
    {
        const ConsoleRun run;
        std::cout << "one" << std::endl << "two\nthree";
        QCOMPARE(run.lines(),
            QStringList({QStringLiteral("one"), QString(), QStringLiteral("two"), QStringLiteral("three")}));
    }

    void textEndsAtItsFirstNul()
    {
        const ConsoleRun run;
        std::cout.write("shown\0hidden", 12);
        QCOMPARE(run.lines(), QStringList(QStringLiteral("shown")));
    }

    void brokenUtf8IsShownWithReplacements()
    {
        const ConsoleRun run;
        std::cout << "a\xFF\xC3 caf\xC3\xA9";
        QCOMPARE(run.lines(), QStringList(QStringLiteral("a\ufffd\ufffd caf\u00e9")));
    }

    // The view itself reads what looks like its markup.
    void markupIsHandedOnToTheView()
    {
        const ConsoleRun run;
        std::cout << "a < b && c";
        std::cout << "<b>bold</b>";
        QCOMPARE(run.lines(), QStringList({QStringLiteral("a < b && c"), QStringLiteral("bold")}));
    }

    void streamFiltersDropWhatComes_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QStringList>("lines");
        QTest::newRow("errors") << QStringLiteral("m_errorsButton") << QStringList(QStringLiteral("out"));
        QTest::newRow("informations") << QStringLiteral("m_infosButton") << QStringList(QStringLiteral("err"));
        QTest::newRow("warnings") << QStringLiteral("m_warningsButton")
                                  << QStringList({QStringLiteral("err"), QStringLiteral("out")});
    }

    void streamFiltersDropWhatComes()
    {
        QFETCH(QString, button);
        QFETCH(QStringList, lines);
        const ConsoleRun run;
        run.click(run.console.m_scrollAreaContents->findChild<QPushButton*>(button));
        QCOMPARE(std::cerr.rdbuf()->sputn("err", 3), std::streamsize(3));
        QCOMPARE(std::cout.rdbuf()->sputn("out", 3), std::streamsize(3));
        QVERIFY(std::cerr.good() && std::cout.good());
        QCOMPARE(run.lines(), lines);
    }

    void longLineAndManyLinesAreTaken()
    {
        const ConsoleRun run;
        const std::string line(1'000'000, 'x');
        std::cout << line;
        QCOMPARE(run.lines().constFirst().size(), qsizetype(line.size()));
        QCOMPARE(run.output().wordWrapMode(), QTextOption::WrapAnywhere); // else laying it out takes minutes
        run.click(run.console.m_clearButton);
        QCOMPARE(run.output().wordWrapMode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
        for (int count = 0; count < 2000; ++count)
            std::cout << "a line";
        QCOMPARE(run.lines().size(), 2000);
    }
};

QTEST_MAIN(TestConsoleStreams)
#include "tst_ConsoleStreams.moc"

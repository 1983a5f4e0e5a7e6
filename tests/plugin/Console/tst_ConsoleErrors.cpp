#include "plugin/ConsoleRun.h"
#include "plugin/ErrorThreads.h"

#include "meridane/base/errors/NxDebugError.h"
#include "meridane/base/errors/NxErrorStack.h"
#include "meridane/base/errors/NxGLError.h"
#include "meridane/base/errors/NxMemoryError.h"
#include "meridane/base/errors/NxReadError.h"

#include <QPushButton>
#include <QScrollBar>
#include <QTextDocument>
#include <QTextEdit>
#include <QThread>
#include <QTimer>

#include <atomic>
#include <functional>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

class TestConsoleErrors : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(ToolHarness::noWidgetIsLeft()); }

    void errorsAreShownInTheirColours_data()
    {
        using Post = std::function<void()>;
        QTest::addColumn<Post>("post");
        QTest::addColumn<QColor>("color");
        const QColor error(Qt::darkRed);
        QTest::newRow("debug error") << Post([] { NxDebugError::post(0, VbString("text")); }) << error;
        QTest::newRow("debug warning") << Post([] { NxDebugError::post(1, VbString("text")); })
                                       << QColor(Qt::darkYellow);
        QTest::newRow("debug information")
            << Post([] { NxDebugError::post(2, VbString("text")); }) << QColor(Qt::darkGreen);
        QTest::newRow("debug of another severity") << Post([] { NxDebugError::post(3, VbString("text")); }) << error;
        QTest::newRow("debug of a negative severity")
            << Post([] { NxDebugError::post(-1, VbString("text")); }) << error;
        QTest::newRow("error") << Post([] { NxError::post(VbString("text")); }) << error;
        QTest::newRow("error stack") << Post([] { NxErrorStack::post({VbString("text")}); }) << error;
        QTest::newRow("GL error") << Post([] { NxGLError::post(1280, VbString("text")); }) << error;
        QTest::newRow("memory error") << Post([] { NxMemoryError::post("text", 1, 5); }) << error;
        QTest::newRow("read error") << Post([] { NxReadError::post(VbString("text"), 3, 4, VbString("no")); }) << error;
    }

    void errorsAreShownInTheirColours()
    {
        QFETCH(std::function<void()>, post);
        QFETCH(QColor, color);
        const ConsoleRun run;
        post();
        const QStringList lines = run.lines();
        QCOMPARE(lines.size(), 1);
        QVERIFY(lines.constFirst().contains(QLatin1String("text")));
        QCOMPARE(run.colorOfLine(0), color);
    }

    void errorFilters_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("dropped");
        QTest::newRow("errors") << QStringLiteral("m_errorsButton") << QStringLiteral("error");
        QTest::newRow("warnings") << QStringLiteral("m_warningsButton") << QStringLiteral("warning");
        QTest::newRow("informations") << QStringLiteral("m_infosButton") << QStringLiteral("information");
    }

    void errorFilters()
    {
        QFETCH(QString, button);
        QFETCH(QString, dropped);
        const ConsoleRun run;
        auto* const toggle = run.console.m_scrollAreaContents->findChild<QPushButton*>(button);
        run.click(toggle);
        QVERIFY(!toggle->isChecked());
        NxDebugError::post(NxDebugError::Error, VbString("error"));
        NxDebugError::post(NxDebugError::Warning, VbString("warning"));
        NxDebugError::post(NxDebugError::Information, VbString("information"));
        QStringList rest{QStringLiteral("error"), QStringLiteral("warning"), QStringLiteral("information")};
        rest.removeOne(dropped);
        QCOMPARE(run.lines(), rest);
        run.click(toggle);
        QCOMPARE(run.lines(), rest); // what was dropped is gone
    }

    void textStaysWhateverIsFiltered()
    {
        const ConsoleRun run;
        NxDebugError::post(NxDebugError::Warning, VbString("before"));
        QCOMPARE(run.lines(), QStringList(QStringLiteral("before")));
        run.click(run.console.m_warningsButton);
        QCOMPARE(run.lines(), QStringList(QStringLiteral("before")));
    }

    void doubleToggleShowsAgain()
    {
        const ConsoleRun run;
        std::cout << "before";
        run.click(run.console.m_infosButton);
        run.click(run.console.m_infosButton);
        std::cout << "after";
        QCOMPARE(run.lines(), QStringList({QStringLiteral("before"), QStringLiteral("after")}));
    }

    void errorArrivesFromTheEventLoopOnly()
    {
        const ConsoleRun run;
        NxError::post(VbString("later"));
        QVERIFY(run.output().toPlainText().isEmpty());
        QCOMPARE(run.lines(), QStringList(QStringLiteral("later")));
    }

    void errorComesAsAnEventOfTheFirstFreeType()
    {
        class TypeRecorder : public QObject {
        public:
            QList<int> types;
            bool eventFilter(QObject* /*watched*/, QEvent* event) override
            {
                types << event->type();
                return false;
            }
        };
        ConsoleRun run;
        TypeRecorder recorder;
        run.console.installEventFilter(&recorder);
        NxError::post(VbString("text"));
        QCOMPARE(run.lines(), QStringList(QStringLiteral("text")));
        QCOMPARE(recorder.types, QList<int>{1000});
    }

    void errorsOfThreadsKeepTheirOrder()
    {
        const ConsoleRun run;
        ErrorThreads threads(8, 12'500);
        threads.join();
        const QTextDocument& shown = *run.output().document();
        QTRY_COMPARE(shown.blockCount(), threads.total());
        QCOMPARE(threads.firstOutOfOrder(run.lines()), QString());
    }

    void manyErrorsLeaveTheEventLoopRunning()
    {
        const ConsoleRun run;
        // A view that is slow enough for few errors to be many.
        connect(&run.output(), &QTextEdit::textChanged, &run.output(), [] { QThread::msleep(20); });
        constexpr int errorCount = 100;
        QStringList expected;
        for (int error = 0; error < errorCount; ++error) {
            expected << QString::number(error);
            NxDebugError::post(error % 3, VbString(std::to_string(error)));
        }
        int shownAtFirst = 0;
        QTimer::singleShot(0, &run.output(), [&] { shownAtFirst = run.output().document()->blockCount(); });
        QCoreApplication::processEvents();
        QVERIFY(shownAtFirst > 0);
        QVERIFY(shownAtFirst < errorCount);
        // What has arrived is shown, also when its filter goes up before.
        run.click(run.console.m_infosButton);
        NxDebugError::post(NxDebugError::Information, VbString("filtered"));
        NxError::post(VbString("last"));
        expected << QStringLiteral("last");
        QTRY_COMPARE(run.output().toPlainText().split(QLatin1Char('\n')), expected);
        const QScrollBar& bar = *run.output().verticalScrollBar();
        QVERIFY(bar.maximum() > 0);
        QCOMPARE(bar.value(), bar.maximum());
    }

    void errorsArriveWhileItIsLoadedOnly()
    {
        ConsoleRun run;
        run.console.deactivate();
        NxError::post(VbString("meanwhile"));
        QCOMPARE(run.lines(), QStringList(QStringLiteral("meanwhile")));
        run.console.activate();
        QCOMPARE(run.lines(), QStringList(QStringLiteral("meanwhile")));
    }

    void errorsUnderWayAtTheEndAreDropped()
    {
        ToolHarness tool;
        OrvConsole console;
        console.load();
        NxError::post(VbString("under way"));
        console.unload();
        QCoreApplication::sendPostedEvents();
        console.load();
        QVERIFY(console.m_consoleOutput->toPlainText().isEmpty());
        console.unload();
    }

    void threadsMayReportWhileItIsUnloaded()
    {
        constexpr int threadCount = 4;
        constexpr int errorCount = 500;
        std::atomic<int> taken = 0; // by the handler that is there before and after
        NxError::setHandlerCallback(
            [](const NxError*, void* counter) { ++*static_cast<std::atomic<int>*>(counter); }, &taken);
        std::atomic<int> running = threadCount;
        std::vector<std::thread> threads;
        for (int thread = 0; thread < threadCount; ++thread) {
            threads.emplace_back([&running] {
                for (int error = 0; error < errorCount; ++error)
                    NxError::post(VbString("text"));
                --running;
            });
        }
        int shown = 0;
        while (running > 0) {
            const ConsoleRun run;
            const QString text = run.lines().join(QString());
            shown += int(text.count(QLatin1String("text")));
        }
        for (std::thread& thread : threads)
            thread.join();
        QVERIFY(shown + taken <= threadCount * errorCount); // what was under way when a view went is lost
        QCOMPARE(NxError::getHandlerData(), static_cast<void*>(&taken));
        NxError::setHandlerCallback(nullptr, nullptr);
    }
};

QTEST_MAIN(TestConsoleErrors)
#include "tst_ConsoleErrors.moc"

#include "app/log/LogCase.h"

#include "orvane/app/base/SearchFolders.h"
#include "orvane/app/settings/SettingsStore.h"
#include "orvane/extender/OrvPluginsManager.h"
#include "orvane/extender/OrvProfile.h"
#include "orvane/extender/OrvServices.h"

#include "meridane/base/errors/NxDebugError.h"

#include <QClipboard>
#include <QFileDialog>
#include <QScrollBar>
#include <QTextEdit>

#include <iostream>
#include <memory>
#include <optional>
#include <utility>

/// The dock of the log in the window.
class TestLogDock : public LogCase {
    Q_OBJECT

private Q_SLOTS:
    void init() { startBesideRobot(); }
    void cleanup() { endTool(); }

    void aKeyShowsAndHidesIt()
    {
        QVERIFY(dock()->isHidden());
        QVERIFY(panel() == nullptr);
        pressKey();
        QVERIFY(dock()->isVisible());
        QCOMPARE(m_window->dockWidgetArea(dock()), Qt::BottomDockWidgetArea);
        pressKey();
        QVERIFY(!dock()->isVisible());
    }

    void itIsATabBesideTheConsoleAndHasTheSameLines()
    {
        m_session->loadPlugins(OrvPluginsManager::findPlugins(orvane::pluginFolders()));
        const QList<OrvProfile::Entry> all{{u"*"_s, true, {u"*"_s}}};
        const QList<OrvProfile::Entry> quiet{{u"*"_s, true, {u"*"_s}}, {u"Console"_s, false, {}}};
        for (const auto& [name, entries] : {std::pair(u"All"_s, all), std::pair(u"Quiet"_s, quiet)})
            QCOMPARE(m_session->plugins().addProfile(std::make_unique<OrvProfile>(name, entries)), std::nullopt);
        QVERIFY(m_session->activateProfile(u"All"_s));
        auto* const console = m_window->findChild<QTextEdit*>(u"m_consoleOutput"_s);
        QVERIFY(console != nullptr);
        show();
        QCOMPARE(m_window->tabifiedDockWidgets(dock()).size(), 1);
        console->clear();
        std::cout << "written" << std::endl;
        NxDebugError::post(NxDebugError::Warning, "reported");
        // The console shows what it always did: each block as a paragraph, and the end of a line as an empty one.
        QTRY_COMPARE(console->toPlainText(), u"written\n\nreported"_s);
        QTRY_COMPARE(model()->rowCount(), 2);
        QCOMPARE(textOf(0), u"written"_s);
        QCOMPARE(textOf(1), u"reported"_s);
        QVERIFY(m_session->activateProfile(u"Quiet"_s));
        dock()->book().clear();
        std::cout << "without a console" << std::endl;
        QTRY_COMPARE(model()->rowCount(), 1);
        QCOMPARE(textOf(0), u"without a console"_s);
    }

    void messagesOfTheWindowAreLogged()
    {
        show();
        QVERIFY(!open(filePath("missing.mrd")).isEmpty());
        QTRY_VERIFY(model()->rowCount() > 0);
        QVERIFY(textOf(0).contains(u"missing.mrd"_s));
    }

    void linesBeforeItIsShownAreThere()
    {
        NxDebugError::post(NxDebugError::Warning, "early");
        pressKey();
        QTRY_VERIFY(model()->rowCount() > 0);
        QCOMPARE(textOf(model()->rowCount() - 1), u"early"_s);
    }

    void severitiesAreCountedAndHidden()
    {
        show();
        add(u"bad"_s, NxSeverity::Error);
        add(u"odd"_s, NxSeverity::Warning);
        add(u"odder"_s, NxSeverity::Warning);
        QTRY_COMPARE(model()->rowCount(), 3);
        QCOMPARE(button("logSeverity1")->text(), u"2"_s);
        QCOMPARE(button("logSeverity2")->text(), u"1"_s);
        click("logSeverity1");
        QCOMPARE(model()->rowCount(), 1);
        QCOMPARE(button("logSeverity1")->text(), u"2"_s);
        click("logSeverity1");
        QCOMPARE(model()->rowCount(), 3);
    }

    void filterAndSeveritiesLoseNothing()
    {
        show();
        addLines(20);
        line("logFilter")->setFocus();
        QTest::keyClicks(line("logFilter"), u"line 1"_s);
        QCOMPARE(model()->rowCount(), 11);
        line("logFilter")->clear();
        QTest::keyClicks(line("logFilter"), u"nothing"_s);
        QCOMPARE(model()->rowCount(), 0);
        QVERIFY(label("logState").startsWith(u"The filter hides all lines."_s));
        line("logFilter")->clear();
        QCOMPARE(model()->rowCount(), 20);
    }

    void findMarksHitsAndKeepsTheRowsAround()
    {
        show();
        addLines(200);
        view()->setFocus();
        QTest::keyClick(view(), Qt::Key_F, Qt::ControlModifier);
        QVERIFY(line("logFind")->hasFocus());
        QTest::keyClicks(line("logFind"), u"LINE 15"_s);
        QCOMPARE(model()->rowCount(), 200);
        QCOMPARE(label("logHits"), u"1 of 11"_s);
        QCOMPARE(view()->currentIndex().row(), 15);
        QTest::keyClick(line("logFind"), Qt::Key_F3);
        QCOMPARE(view()->currentIndex().row(), 150);
        QCOMPARE(label("logHits"), u"2 of 11"_s);
        QVERIFY(view()->viewport()->rect().contains(view()->visualRect(view()->currentIndex()).center()));
        QTest::keyClick(line("logFind"), Qt::Key_F3, Qt::ShiftModifier);
        QTest::keyClick(line("logFind"), Qt::Key_F3, Qt::ShiftModifier);
        QCOMPARE(view()->currentIndex().row(), 159);
        QTest::keyClick(line("logFind"), Qt::Key_Escape);
        QVERIFY(!line("logFind")->isVisible());
        QVERIFY(view()->hasFocus());
        QCOMPARE(model()->rowCount(), 200);
    }

    void equalLinesAreUnfoldedByKeysAndClicks()
    {
        show();
        for (int i = 0; i < 5; ++i)
            add(u"again"_s);
        QTRY_COMPARE(dock()->book().lineCount(), std::size_t(5));
        QCOMPARE(model()->rowCount(), 1);
        clickRow(view(), model()->index(0, LogModel::TextColumn));
        QTest::keyClick(view(), Qt::Key_Right);
        QCOMPARE(model()->rowCount(), 5);
        QTest::keyClick(view(), Qt::Key_Left);
        QCOMPARE(model()->rowCount(), 1);
        clickRow(view(), model()->index(0, LogModel::CountColumn));
        QCOMPARE(model()->rowCount(), 5);
        click("foldLog");
        QCOMPARE(model()->rowCount(), 5);
        click("foldLog");
        QCOMPARE(model()->rowCount(), 1);
    }

    void theEndIsFollowedUnlessScrolledUp()
    {
        show();
        addLines(500);
        QScrollBar* const bar = view()->verticalScrollBar();
        QTRY_COMPARE(bar->value(), bar->maximum());
        QVERIFY(bar->maximum() > 0);
        view()->setFocus();
        clickRow(view(), model()->index(495, LogModel::TextColumn));
        QTest::keyClick(view(), Qt::Key_Home, Qt::ControlModifier);
        QCOMPARE(view()->currentIndex().row(), 0);
        QCOMPARE(bar->value(), 0);
        addLines(100);
        QCOMPARE(bar->value(), 0);
        QTest::keyClick(view(), Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(bar->value(), bar->maximum());
        addLines(100);
        QTRY_COMPARE(bar->value(), bar->maximum());
    }

    void rowsThatAreReadStayWhileOlderOnesAreDropped()
    {
        show();
        dock()->book().setLimits({.lines = 500, .bytes = 1U << 24U});
        addLines(500);
        QScrollBar* const bar = view()->verticalScrollBar();
        bar->setValue(200);
        const QString first = textOf(view()->rowAt(0));
        for (int i = 0; i < 50; ++i)
            add(u"new %1"_s.arg(i));
        QTRY_COMPARE(dock()->book().droppedCount(), std::size_t(50));
        QCOMPARE(textOf(view()->rowAt(0)), first);
        QVERIFY(label("logState").contains(u"50 older ones were dropped"_s));
        QVERIFY(label("logState").contains(u"the last 500 lines"_s));
    }

    void rowsAreCopiedAsText()
    {
        show();
        add(u"first"_s, NxSeverity::Error);
        add(u"second"_s);
        QTRY_COMPARE(model()->rowCount(), 2);
        clickRow(view(), model()->index(0, LogModel::TextColumn));
        QTest::keyClick(view(), Qt::Key_C, Qt::ControlModifier);
        const QString text = QGuiApplication::clipboard()->text();
        QVERIFY(text.endsWith(u"\terror\ttest\tfirst\n"_s));
        QTest::keyClick(view(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(view(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text().count(u'\n'), 2);
    }

    void theRowsAreSavedToAFile()
    {
        show();
        addLines(3);
        const auto save = [this](const QString& fileName) {
            click("saveLog");
            auto* const dialog = m_window->findChild<QFileDialog*>(u"logFileDialog"_s);
            QVERIFY(dialog != nullptr);
            Q_EMIT dialog->fileSelected(fileName);
            dialog->close();
        };
        save(filePath("log.txt"));
        QFile file(filePath("log.txt"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QList<QByteArray> lines = file.readAll().split('\n');
        QCOMPARE(lines.size(), 4);
        QVERIFY(lines.at(0).endsWith("\tline 0"));
        save(filePath("no/such/folder/log.txt"));
        QCOMPARE(messages().size(), 1);
        QVERIFY(messages().front().contains(u"The log wasn't written"_s));
        QVERIFY(messages().front().contains(u"no/such/folder"_s));
    }

    void theLimitIsASetting()
    {
        show();
        SettingsStore& store = SettingsStore::of(m_session->settings());
        store.set(u"log/lines"_s, 2000.0);
        for (int i = 0; i < 2500; ++i)
            add(u"line %1"_s.arg(i));
        QTRY_COMPARE(dock()->book().droppedCount(), std::size_t(500));
        QVERIFY(label("logState").contains(u"the last 2,000 lines"_s));
        store.set(u"log/lines"_s, 1000.0);
        QCOMPARE(model()->rowCount(), 1000);
        makeWindow();
        QCOMPARE(dock()->book().limits().lines, std::size_t(1000));
    }

    void clearForgetsAllLines()
    {
        show();
        addLines(3);
        click("clearLog");
        QCOMPARE(model()->rowCount(), 0);
        QVERIFY(!button("clearLog")->isEnabled());
        QVERIFY(!button("clearLog")->toolTip().isEmpty());
    }

    void whatIsHiddenIsKept()
    {
        show();
        click("logSeverity0");
        click("foldLog");
        makeWindow();
        pressKey();
        QVERIFY(!button("logSeverity0")->isChecked());
        QVERIFY(button("logSeverity1")->isChecked());
        QVERIFY(!model()->hasFolding());
    }

    /// They are taken in by slices, which the test of the book counts.
    void ofManyLinesTheLastOnesAreShown()
    {
        show();
        constexpr int count = 200'000;
        for (int i = 0; i < count; ++i)
            add(u"line %1"_s.arg(i));
        QTRY_VERIFY(dock()->book().lineCount() + dock()->book().droppedCount() >= count);
        QCOMPARE(dock()->book().lineCount(), LogBook::Limits().lines);
        QCOMPARE(model()->rowCount(), static_cast<int>(LogBook::Limits().lines));
        QCOMPARE(textOf(model()->rowCount() - 1), u"line %1"_s.arg(count - 1));
    }
};

QTEST_MAIN(TestLogDock)
#include "tst_LogDock.moc"

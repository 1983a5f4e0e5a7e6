#include "app/language/MarkedTexts.h"
#include "app/language/ShownTexts.h"
#include "app/window/RobotWindowCase.h"

#include "orvane/app/language/Language.h"
#include "orvane/extender/OrvStepList.h"

#include <QDockWidget>
#include <QMenuBar>
#include <QRegularExpression>

/// All texts of the window: each can be translated, and follows a change of the language at run time.
class TestShownTexts : public RobotWindowCase {
    Q_OBJECT

private:
    /// Shows what a user can show without another file: all docks, menus and dialogs.
    void showEverything()
    {
        open(m_robot);
        clickRow(tree(), tree()->model()->index(0, 0));
        for (QDockWidget* const dock : m_window->findChildren<QDockWidget*>())
            dock->show();
        AppScenes::runSensors();
        QCoreApplication::processEvents();
        fillMenus();
    }

    /// As they are filled when they are opened.
    void fillMenus()
    {
        for (QMenu* const menu : m_window->findChildren<QMenu*>())
            Q_EMIT menu->aboutToShow();
    }

    void openDialogs()
    {
        for (const char* const name : {"help.keys", "help.plugins", "help.about", "node.add", "view.exportPicture",
                 "view.addBookmark", "view.section", "view.measure", "view.statistics"}) {
            auto* const action = m_window->findChild<QAction*>(QLatin1String(name));
            QVERIFY2(action != nullptr, name);
            action->trigger();
        }
        QCoreApplication::processEvents();
    }

    QList<ShownText> texts()
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        fillMenus();
        return ShownTexts::of(*m_window);
    }

    QStringList dockPlaces()
    {
        QStringList places;
        for (QDockWidget* const dock : m_window->findChildren<QDockWidget*>())
            places.append(QStringLiteral("%1 %2 %3 %4")
                              .arg(dock->objectName())
                              .arg(m_window->dockWidgetArea(dock))
                              .arg(dock->isVisible())
                              .arg(dock->isFloating()));
        return places;
    }

    static bool isValue(const QString& text)
    {
        // Numbers, marks, keys, names and classes of the scene, files.
        static const QRegularExpression values(
            QStringLiteral("^([^a-zA-Z]*|[a-zA-Z]|robot|Group|Mesh|sun|PointLight|robot\\.mrd|.*\\.mrd|English|Deutsch|"
                           "%p%|/.*|(Ctrl|Alt|Shift|"
                           "Del|Ins|F\\d+).*)$"));
        return values.match(text).hasMatch();
    }

    static QString described(const ShownText& text) { return text.place + QStringLiteral(": ") + text.text; }

    static QStringList unmarked(const QList<ShownText>& texts)
    {
        QStringList lacking;
        for (const ShownText& text : texts) {
            if (!text.text.contains(u'«') && !isValue(text.text))
                lacking.append(described(text));
        }
        lacking.removeDuplicates();
        return lacking;
    }

    /// Whether the text is of a message, or of what depends on the number of messages. These are not the same in each
    /// window, because the surroundings have messages, too.
    static bool isReported(const ShownText& text)
    {
        static const QRegularExpression places(
            QStringLiteral("/MessageRow/|:(logState|log\\.clear|log\\.save|logSeverity\\d|saveLog|clearLog) "));
        return places.match(text.place).hasMatch();
    }

    static QStringList differences(const QList<ShownText>& shown, const QList<ShownText>& expected)
    {
        QStringList different;
        for (const ShownText& text : shown) {
            if (!expected.contains(text) && !isReported(text))
                different.append(described(text));
        }
        different.append(QStringLiteral("instead of"));
        for (const ShownText& text : expected) {
            if (!shown.contains(text) && !isReported(text))
                different.append(described(text));
        }
        return different.size() == 1 ? QStringList() : different;
    }

    /// Lists all texts that are wrong: a single message would be cut off.
    static void check(const QStringList& wrong)
    {
        for (const QString& text : wrong)
            qWarning().noquote() << text;
        QVERIFY(wrong.isEmpty());
    }

    MarkedTexts m_marked;

private Q_SLOTS:
    void initTestCase()
    {
        QCOMPARE(m_marked.readSources(), QString());
        QVERIFY(m_marked.count() > 1000);
    }
    void init() { startBesideRobot(); }
    void cleanup()
    {
        QCoreApplication::removeTranslator(&m_marked);
        endTool();
    }

    void eachTextCanBeTranslated_data()
    {
        QTest::addColumn<bool>("hasScene");
        QTest::newRow("no scene") << false;
        QTest::newRow("scene and dialogs") << true;
    }
    void eachTextCanBeTranslated()
    {
        QFETCH(const bool, hasScene);
        QCoreApplication::installTranslator(&m_marked);
        makeWindow();
        if (hasScene) {
            showEverything();
            openDialogs();
        }
        const QStringList lacking = unmarked(texts());
        check(lacking);
    }

    /// A switch gives the texts that a window has which is made in that language.
    void eachTextFollowsASwitch_data() { eachTextCanBeTranslated_data(); }
    void eachTextFollowsASwitch()
    {
        QFETCH(const bool, hasScene);
        const auto prepare = [&] {
            makeWindow();
            if (hasScene)
                showEverything();
        };
        QCoreApplication::installTranslator(&m_marked);
        prepare();
        const QList<ShownText> marked = texts();
        QCoreApplication::removeTranslator(&m_marked);
        prepare();
        const QList<ShownText> english = texts();
        QVERIFY(!differences(english, marked).isEmpty());
        QCoreApplication::installTranslator(&m_marked);
        check(differences(texts(), marked));
        QCoreApplication::removeTranslator(&m_marked);
        check(differences(texts(), english));
    }

    void aSwitchLeavesEverythingElse()
    {
        showEverything();
        renameRobot("machine");
        tree()->setFocus();
        QTRY_COMPARE(m_session->services().steps().count(), 1);
        const QStringList places = dockPlaces();
        const QModelIndex selected = tree()->currentIndex();
        const int steps = m_session->services().steps().count();
        for (const char* const language : {"de", "en"}) {
            orvane::Language::use(QLatin1String(language));
            QCoreApplication::processEvents();
            QCOMPARE(dockPlaces(), places);
            QCOMPARE(tree()->currentIndex(), selected);
            QCOMPARE(robot()->getName(), VbString("machine"));
            QCOMPARE(m_session->services().steps().count(), steps);
            QVERIFY(m_session->services().canUndo());
            QVERIFY(m_window->isWindowModified());
            QCOMPARE(QApplication::focusWidget(), tree());
        }
    }
};

QTEST_MAIN(TestShownTexts)
#include "tst_ShownTexts.moc"

#include "app/window/RobotWindowCase.h"

#include "orvane/app/files/FileFlow.h"
#include "orvane/app/input/InputMessage.h"
#include "orvane/app/settings/SettingList.h"
#include "orvane/app/settings/SettingsFile.h"
#include "orvane/app/settings/SettingsStore.h"
#include "orvane/app/settings/window/FoundLabel.h"
#include "orvane/app/settings/window/ImportDialog.h"
#include "orvane/app/settings/window/SettingRow.h"
#include "orvane/app/settings/window/SettingsWindow.h"
#include "orvane/app/view/SceneView.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScopeGuard>
#include <QScrollArea>
#include <QToolButton>
#include <QTreeWidget>

#include <algorithm>

/// The Settings window, by real keys and clicks.
class TestSettingsWindow : public RobotWindowCase {
    Q_OBJECT

private:
    SettingsWindow* settings() { return m_window->findChild<SettingsWindow*>(); }
    SettingsStore& store() { return SettingsStore::of(m_session->settings()); }
    QAction* action(const char* name) { return m_window->findChild<QAction*>(QLatin1String(name)); }
    QLineEdit* search() { return settings()->findChild<QLineEdit*>(QStringLiteral("settingsFilter")); }
    QListWidget* pages() { return settings()->findChild<QListWidget*>(QStringLiteral("settingPages")); }
    QPushButton* button(const char* name) { return settings()->findChild<QPushButton*>(QLatin1String(name)); }
    MessageBar* bar() { return settings()->findChild<MessageBar*>(); }
    SettingRow* row(const char* key) { return settings()->findChild<SettingRow*>(QLatin1String(key)); }
    template <typename Part>
    Part* part(const char* key)
    {
        return row(key)->findChild<Part*>();
    }
    QToolButton* arrow(const char* key) { return part<QToolButton>(key); }
    QString note(const char* key)
    {
        const auto* const label = row(key)->findChild<QLabel*>(QStringLiteral("note"));
        return label->isHidden() ? QString() : label->text();
    }
    bool isBold(const char* key) { return part<FoundLabel>(key)->font().bold(); }
    QStringList shownKeys()
    {
        QStringList keys;
        for (const SettingRow* const one : settings()->findChildren<SettingRow*>()) {
            if (!one->isHidden())
                keys.append(one->objectName());
        }
        return keys;
    }
    void openSettings()
    {
        QTest::keyClick(m_window.get(), Qt::Key_Comma, Qt::ControlModifier);
        QVERIFY(settings() != nullptr);
        settings()->activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), settings());
    }
    void closeSettings()
    {
        if (settings() != nullptr)
            settings()->close();
        m_window->activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), m_window.get());
    }
    /// Shows the settings that a search finds.
    void find(const char* words)
    {
        search()->setFocus();
        search()->selectAll();
        QTest::keyClicks(search(), QLatin1String(words));
        QCoreApplication::processEvents(); // the layout
    }
    static void click(QWidget* widget)
    {
        QCoreApplication::processEvents(); // the layout
        QTest::mouseClick(widget, Qt::LeftButton);
    }
    static void clickBox(QCheckBox* box)
    {
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(box->height() / 2, box->height() / 2));
    }
    void chooseFile(const char* dialogName, const QString& fileName)
    {
        auto* const dialog = settings()->findChild<QFileDialog*>(QLatin1String(dialogName));
        QVERIFY(dialog != nullptr);
        auto* const name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        QVERIFY(name != nullptr);
        name->setText(fileName);
        QTest::keyClick(name, Qt::Key_Return);
        QTRY_VERIFY(settings()->findChild<QFileDialog*>(QLatin1String(dialogName)) == nullptr);
    }

private Q_SLOTS:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void init()
    {
        startBesideRobot();
        open(m_robot);
    }
    void cleanup()
    {
        closeSettings();
        endTool();
    }

    void everySettingIsOnItsPage()
    {
        openSettings();
        QCOMPARE(pages()->count(), static_cast<int>(allSettingPages.size()));
        std::vector<QString> keys;
        pages()->setFocus();
        QTest::keyClick(pages(), Qt::Key_Home);
        for (int page = -1; page != pages()->currentRow(); QTest::keyClick(pages(), Qt::Key_Down)) {
            page = pages()->currentRow();
            for (const QString& key : shownKeys()) {
                QCOMPARE(orvane::findSetting(key)->page, allSettingPages[static_cast<std::size_t>(page)]);
                keys.push_back(key);
            }
        }
        QCOMPARE(keys.size(), orvane::settingList().size());
    }

    void aSwitchTakesEffectAtOnce()
    {
        openSettings();
        find("view/grid");
        SceneView* const view = m_window->findChild<SceneView*>();
        QVERIFY(view->style().grid);
        QVERIFY(!isBold("view/grid"));
        QVERIFY(arrow("view/grid")->isHidden());
        clickBox(part<QCheckBox>("view/grid"));
        QVERIFY(!view->style().grid);
        QVERIFY(!action("view.grid")->isChecked());
        QVERIFY(isBold("view/grid"));
        click(arrow("view/grid"));
        QVERIFY(view->style().grid);
        QVERIFY(!isBold("view/grid"));
        // And the other way round.
        action("view.grid")->trigger();
        QVERIFY(!part<QCheckBox>("view/grid")->isChecked());
    }

    void choicesAndNumbersAreSetByKeys()
    {
        openSettings();
        find("view/shading");
        QTest::keyClick(search(), Qt::Key_Return);
        auto* const box = part<QComboBox>("view/shading");
        QCOMPARE(QApplication::focusWidget(), box);
        QTest::keyClick(box, Qt::Key_Down);
        QCOMPARE(m_window->findChild<SceneView*>()->style().shading, NxDrawingStyle::UNLIT);
        QVERIFY(action("view.unlit")->isChecked());
        find("history/limit");
        QTest::keyClick(search(), Qt::Key_Return);
        auto* const line = part<QLineEdit>("history/limit");
        QCOMPARE(QApplication::focusWidget(), line);
        QTest::keyClick(line, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(line, QStringLiteral("64"));
        QTest::keyClick(line, Qt::Key_Return);
        QCOMPARE(store().number(QStringLiteral("history/limit")), 64.0);
        // One that is out of range is refused with the reason.
        QTest::keyClick(line, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(line, QStringLiteral("0"));
        QTest::keyClick(line, Qt::Key_Return);
        QCOMPARE(store().number(QStringLiteral("history/limit")), 64.0);
        QVERIFY(InputMessage::shownIn(line) != nullptr);
        QTest::keyClick(line, Qt::Key_Escape);
    }

    void theSearchGoesOverAllPages()
    {
        openSettings();
        pages()->setCurrentRow(1);
        find("groups");
        const QStringList keys = shownKeys();
        QVERIFY(keys.contains(QStringLiteral("structure/keepPlace")));
        QVERIFY(keys.contains(QStringLiteral("import/keepGroups")));
        QVERIFY(!keys.contains(QStringLiteral("view/grid")));
        QVERIFY(!(pages()->item(1)->flags() & Qt::ItemIsEnabled));
        find("nothing like that");
        QVERIFY(shownKeys().isEmpty());
        QVERIFY(settings()->findChild<QLabel*>(QStringLiteral("noSettings"))->isVisible());
        QTest::keyClick(search(), Qt::Key_Escape);
        QVERIFY(!shownKeys().isEmpty());
    }

    void theLettersThatAreFoundAreMarked()
    {
        openSettings();
        find("view/grid");
        auto* const title = row("view/grid")->findChildren<FoundLabel*>().constLast();
        const QImage marked = title->grab().toImage();
        search()->clear();
        pages()->setCurrentRow(1);
        QTRY_VERIFY(!row("view/grid")->isHidden());
        QVERIFY(title->grab().toImage() != marked);
    }

    void thePageIsRemembered()
    {
        openSettings();
        pages()->setFocus();
        QTest::keyClick(pages(), Qt::Key_End);
        QTest::keyClick(pages(), Qt::Key_Up);
        const int page = pages()->currentRow();
        closeSettings();
        makeWindow();
        openSettings();
        QCOMPARE(pages()->currentRow(), page);
    }

    void everySettingIsReachedByTheKeyboard()
    {
        openSettings();
        for (int page = 0; page < pages()->count(); ++page) {
            pages()->setCurrentRow(page);
            QStringList reached;
            pages()->setFocus();
            for (int tab = 0; tab < 200; ++tab) {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
                for (const QWidget* above = QApplication::focusWidget(); above != nullptr;
                     above = above->parentWidget()) {
                    if (const auto* const one = qobject_cast<const SettingRow*>(above))
                        reached.append(one->objectName());
                }
                if (QApplication::focusWidget() == pages())
                    break;
            }
            for (const QString& key : shownKeys())
                QVERIFY2(reached.contains(key), qPrintable(key));
        }
    }

    void allAreResetAfterAQuestion()
    {
        openSettings();
        QVERIFY(!button("resetAllSettings")->isEnabled());
        store().set(QStringLiteral("view/grid"), false);
        store().set(QStringLiteral("import/keepGroups"), true);
        m_session->settings().setValue(QStringLiteral("recent"), 1);
        QVERIFY(button("resetAllSettings")->isEnabled());
        click(button("resetAllSettings"));
        QVERIFY(!store().isOn(QStringLiteral("view/grid")));
        QCOMPARE(bar()->texts().size(), 1);
        const QList<QPushButton*> answers = bar()->findChildren<QPushButton*>();
        QVERIFY(!answers.isEmpty());
        click(answers.front());
        QVERIFY(store().isOn(QStringLiteral("view/grid")));
        QVERIFY(!store().isOn(QStringLiteral("import/keepGroups")));
        QCOMPARE(m_session->settings().value(QStringLiteral("recent")).toInt(), 1);
    }

    void whatOverrulesIsSaid()
    {
        qputenv("ORVANE_HISTORY", "17");
        const auto unset = qScopeGuard([] { qunsetenv("ORVANE_HISTORY"); });
        openSettings();
        find("history/limit");
        QVERIFY2(note("history/limit").contains(QStringLiteral("ORVANE_HISTORY")), qPrintable(note("history/limit")));
        QVERIFY(note("history/limit").contains(QStringLiteral("17 MiB")));
        QCOMPARE(note("history/undo"), QString());
        store().overrule(QStringLiteral("files/reloadsByItself"), true, QStringLiteral("--watch"));
        QVERIFY(note("files/reloadsByItself").contains(QStringLiteral("--watch")));
    }

    void aValueThatCannotBeUsedIsSaidOnce()
    {
        m_window.reset();
        m_session.reset();
        writeFile(filePath("orvane.ini"), "[settings]\nversion=2\n[view]\ngrid=perhaps\n");
        makeWindow();
        const QStringList shown = messages();
        QCOMPARE(std::count_if(shown.begin(), shown.end(),
                     [](const QString& text) { return text.contains(QStringLiteral("view/grid")); }),
            1);
        QVERIFY(m_window->findChild<SceneView*>()->style().grid);
        openSettings();
        find("view/grid");
        QVERIFY(note("view/grid").contains(QStringLiteral("perhaps")));
        QVERIFY(!arrow("view/grid")->isHidden());
        click(arrow("view/grid"));
        QCOMPARE(note("view/grid"), QString());
    }

    void aLaterVersionIsSaidAndKept()
    {
        m_window.reset();
        m_session.reset();
        const QByteArray later = "[settings]\nversion=99\n[view]\ngrid=false\n";
        writeFile(filePath("orvane.ini"), later);
        makeWindow();
        QCOMPARE(messages().size(), 1);
        QVERIFY(messages().front().contains(QStringLiteral("later version")));
        QVERIFY(!m_window->findChild<SceneView*>()->style().grid);
        openSettings();
        QCOMPARE(bar()->texts(), messages());
        find("view/grid");
        clickBox(part<QCheckBox>("view/grid"));
        QVERIFY(m_window->findChild<SceneView*>()->style().grid);
        closeSettings();
        m_window.reset();
        m_session.reset();
        QCOMPARE(readFile(filePath("orvane.ini")), later);
        makeWindow();
    }

    void settingsAreExportedAndImported()
    {
        openSettings();
        store().set(QStringLiteral("view/grid"), false);
        store().set(QStringLiteral("view/shading"), QStringLiteral("normals"));
        click(button("exportSettings"));
        chooseFile("exportSettingsFile", filePath("mine.ini"));
        QTRY_VERIFY(QFile::exists(filePath("mine.ini")));
        store().resetAll();
        click(button("importSettings"));
        chooseFile("importSettingsFile", filePath("mine.ini"));
        auto* const dialog = settings()->findChild<ImportDialog*>();
        QVERIFY(dialog != nullptr);
        auto* const list = dialog->findChild<QTreeWidget*>();
        QCOMPARE(list->topLevelItemCount(), 2);
        QCOMPARE(list->topLevelItem(0)->text(1), QStringLiteral("Shaded"));
        QCOMPARE(list->topLevelItem(0)->text(2), QStringLiteral("Normals"));
        // What is unticked stays.
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Space);
        QCOMPARE(list->topLevelItem(0)->checkState(0), Qt::Unchecked);
        click(dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok));
        QVERIFY(!store().isOn(QStringLiteral("view/grid")));
        QCOMPARE(store().text(QStringLiteral("view/shading")), QStringLiteral("shaded"));
    }

    void aBadFileIsRefused()
    {
        writeFile(filePath("bad.ini"), "[settings]\nversion=2\n[view]\nshading=pink\n");
        openSettings();
        click(button("importSettings"));
        chooseFile("importSettingsFile", filePath("bad.ini"));
        QTRY_COMPARE(bar()->texts().size(), 1);
        QVERIFY(bar()->texts().front().contains(QStringLiteral("line 4")));
        QVERIFY(settings()->findChild<ImportDialog*>() == nullptr);
    }

    void aFolderIsTypedOrRefused()
    {
        openSettings();
        find("plugins/folder");
        auto* const line = part<QLineEdit>("plugins/folder");
        line->setFocus();
        QTest::keyClicks(line, QStringLiteral("not/from/the/root"));
        QTest::keyClick(line, Qt::Key_Return);
        QCOMPARE(store().text(QStringLiteral("plugins/folder")), QString());
        QVERIFY(InputMessage::shownIn(line) != nullptr);
        line->selectAll();
        QTest::keyClicks(line, m_folder->path());
        QTest::keyClick(line, Qt::Key_Return);
        QCOMPARE(store().text(QStringLiteral("plugins/folder")), m_folder->path());
    }
};

QTEST_MAIN(TestSettingsWindow)
#include "tst_SettingsWindow.moc"

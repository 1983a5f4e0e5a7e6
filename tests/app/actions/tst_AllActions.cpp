#include "app/actions/PickerCase.h"

#include "orvane/app/actions/ActionKeys.h"
#include "orvane/app/actions/ActionList.h"
#include "orvane/app/base/ActionState.h"
#include "orvane/app/language/Language.h"
#include "orvane/app/view/SceneView.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QScopeGuard>
#include <QSet>
#include <QSignalSpy>

using orvane::Language;

/// All actions of the window: each has what it needs to be found, and can be reached by keys alone.
class TestAllActions : public PickerCase {
    Q_OBJECT

private:
    static void checkMnemonics(const QList<QAction*>& actions, const QString& place)
    {
        QStringList taken;
        for (const QAction* const action : actions) {
            const QKeySequence mnemonic = QKeySequence::mnemonic(action->text());
            if (!mnemonic.isEmpty() && action->isVisible() && !action->isSeparator()) {
                const QString key = mnemonic.toString();
                QVERIFY2(!taken.contains(key), qPrintable(place + QStringLiteral(": ") + action->text()));
                taken.append(key);
            }
            if (action->menu() != nullptr)
                checkMnemonics(action->menu()->actions(), action->text());
        }
    }

private Q_SLOTS:
    void init()
    {
        startBesideRobot();
        open(m_robot);
    }
    void cleanup()
    {
        close();
        endTool();
    }

    void eachHasANameATextAndAStatusTip()
    {
        QStringList lacking;
        for (const ListedAction& listed : orvane::listedActions(*m_window)) {
            if (listed.text.isEmpty() || listed.action->statusTip().isEmpty())
                lacking.append(listed.name);
        }
        QVERIFY2(lacking.isEmpty(), qPrintable(lacking.join(u' ')));
    }

    void eachEntryOfTheMenusIsListed()
    {
        // Entries that name files, cameras and the like are lists of their own, which the picker of places has.
        const QStringList lists{QStringLiteral("recentMenu"), QStringLiteral("cameraMenu")};
        QList<const QMenu*> menus;
        for (const QAction* const action : m_window->menuBar()->actions())
            menus.append(action->menu());
        for (qsizetype i = 0; i < menus.size(); ++i) {
            for (const QAction* const action : menus.at(i)->actions()) {
                if (action->menu() != nullptr)
                    menus.append(action->menu());
                else if (!action->isSeparator() && !lists.contains(menus.at(i)->objectName()))
                    QVERIFY2(orvane::isListed(*action), qPrintable(action->text()));
            }
        }
    }

    /// Whatever is disabled says why.
    void eachIsEnabledOrHasAReason_data()
    {
        QTest::addColumn<bool>("hasScene");
        QTest::addColumn<bool>("hasSelection");
        QTest::newRow("no scene") << false << false;
        QTest::newRow("scene") << true << false;
        QTest::newRow("node") << true << true;
    }
    void eachIsEnabledOrHasAReason()
    {
        QFETCH(bool, hasScene);
        QFETCH(bool, hasSelection);
        if (!hasScene)
            m_window->document().close();
        if (hasSelection)
            clickRow(tree(), tree()->model()->index(0, 0));
        QStringList lacking;
        for (const ListedAction& listed : orvane::listedActions(*m_window)) {
            if (!listed.action->isEnabled() && listed.reason.isEmpty())
                lacking.append(listed.name);
        }
        QVERIFY2(lacking.isEmpty(), qPrintable(lacking.join(u' ')));
    }

    /// With the keys of the palette alone: its key, the letters of the action, the arrow keys.
    void eachIsReachedByKeysAlone()
    {
        clickRow(tree(), tree()->model()->index(0, 0));
        activate();
        QTest::keyClick(m_window.get(), Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(popup() != nullptr);
        QStringList missing;
        for (const ListedAction& listed : orvane::listedActions(*m_window)) {
            line()->clear();
            QTest::keyClicks(line(), listed.text);
            const auto isThere = [&] {
                const PickerItem* const item = rows().item(list()->currentIndex());
                return item != nullptr && item->text.startsWith(listed.text) && item->detail == listed.place
                    && item->reason.isEmpty() == listed.action->isEnabled();
            };
            for (int i = 0; i < rows().rowCount() && !isThere(); ++i)
                press(Qt::Key_Down);
            if (!isThere())
                missing.append(listed.name);
        }
        QVERIFY2(missing.isEmpty(), qPrintable(missing.join(u' ')));
    }

    /// The menus too, by their letters and the arrow keys.
    void eachMenuOpensByItsLetter()
    {
        clickRow(tree(), tree()->model()->index(0, 0));
        for (const QAction* const action : m_window->menuBar()->actions()) {
            const QKeySequence key = QKeySequence::mnemonic(action->text());
            QVERIFY2(!key.isEmpty(), qPrintable(action->text()));
            activate();
            QTest::keyClick(m_window.get(), key[0].key(), Qt::AltModifier);
            QTRY_COMPARE(QApplication::activePopupWidget(), action->menu());
            QAction* const first = action->menu()->activeAction();
            QTest::keyClick(action->menu(), Qt::Key_Down);
            QVERIFY2(action->menu()->activeAction() != nullptr, qPrintable(action->text()));
            QVERIFY2(action->menu()->activeAction() != first, qPrintable(action->text()));
            QTest::keyClick(action->menu(), Qt::Key_Escape);
            QTRY_COMPARE(QApplication::activePopupWidget(), nullptr);
        }
    }

    void mnemonicsAreUniqueInEachMenu_data()
    {
        QTest::addColumn<QString>("language");
        for (const QString& code : Language::codes())
            QTest::addRow("%s", qPrintable(code)) << code;
    }
    void mnemonicsAreUniqueInEachMenu()
    {
        QFETCH(const QString, language);
        Language::use(language);
        const auto restore = qScopeGuard([] { Language::use(QStringLiteral("en")); });
        makeWindow();
        open(m_robot);
        clickRow(tree(), tree()->model()->index(0, 0));
        checkMnemonics(m_window->menuBar()->actions(), QStringLiteral("menu bar"));
    }

    /// No two actions have one key where both could be meant.
    void noKeyIsAmbiguous()
    {
        const ActionKeys& keys = *m_window->findChild<ActionKeys*>();
        QStringList ambiguous;
        for (const ListedAction& listed : orvane::listedActions(*m_window)) {
            for (const QKeySequence& key : listed.action->shortcuts()) {
                for (const QString& other : keys.conflicts(listed.name, key))
                    ambiguous.append(listed.name + u' ' + key.toString() + u' ' + other);
            }
        }
        QVERIFY2(ambiguous.isEmpty(), qPrintable(ambiguous.join(u'\n')));
    }

    void aPartOfTheWindowHasItsKeysFirst()
    {
        ActionKeys& keys = *m_window->findChild<ActionKeys*>();
        keys.setKeys(QStringLiteral("view.frameAll"), {QKeySequence(Qt::Key_F5)});
        QSignalSpy ofTheView(m_window->findChild<QAction*>(QStringLiteral("view.frameAll")), &QAction::triggered);
        QSignalSpy ofTheWindow(m_window->findChild<QAction*>(QStringLiteral("file.reload")), &QAction::triggered);
        tree()->setFocus();
        QTest::keyClick(tree(), Qt::Key_F5);
        QCOMPARE(ofTheWindow.count(), 1);
        auto* const view = m_window->findChild<SceneView*>();
        view->setFocus();
        QTest::keyClick(view, Qt::Key_F5);
        QCOMPARE(ofTheView.count(), 1);
        QCOMPARE(ofTheWindow.count(), 1);
        tree()->setFocus();
        QTest::keyClick(tree(), Qt::Key_F5);
        QCOMPARE(ofTheWindow.count(), 2);
    }

    void namesAreTheSameInEachRun()
    {
        const auto names = [this] {
            QStringList all;
            for (const ListedAction& listed : orvane::listedActions(*m_window))
                all.append(listed.name);
            return all;
        };
        const QStringList before = names();
        QCOMPARE(QSet<QString>(before.begin(), before.end()).size(), before.size());
        makeWindow();
        open(m_robot);
        QCOMPARE(names(), before);
    }
};

QTEST_MAIN(TestAllActions)
#include "tst_AllActions.moc"

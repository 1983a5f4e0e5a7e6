#include "Patience.h"

#include "orvane/app/base/ApplicableMenu.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTableWidget>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

/// Context menus that have just what can be used.
class TestApplicableMenu : public QObject {
    Q_OBJECT

private:
    void askForMenu(const QPoint& place = QPoint(5, 5))
    {
        QWidget* const viewport = m_view->viewport();
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, viewport->mapToGlobal(place));
        QApplication::sendEvent(viewport, &event);
    }
    static QMenu* menu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }
    static QStringList visibleTexts()
    {
        QStringList texts;
        for (const QAction* const action : menu()->actions()) {
            if (action->isVisible() && !menu()->actionGeometry(const_cast<QAction*>(action)).isEmpty())
                texts.append(action->isSeparator() ? u"-"_s : action->text());
        }
        return texts;
    }

    std::unique_ptr<QTableWidget> m_view;
    QList<QAction*> m_actions;

private Q_SLOTS:
    void init()
    {
        m_view = std::make_unique<QTableWidget>(2, 2);
        m_actions.clear();
        for (const QString& text : {u"first"_s, u""_s, u"second"_s, u""_s, u"third"_s}) {
            auto* const action = new QAction(text, m_view.get());
            action->setSeparator(text.isEmpty());
            m_actions.append(action);
        }
        m_view->addActions(m_actions);
        orvane::giveApplicableMenu(m_view.get());
        m_view->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_view.get(), testPatience));
    }
    void cleanup() { m_view.reset(); }

    void whatIsDisabledIsntThere()
    {
        m_actions[2]->setEnabled(false);
        askForMenu();
        QVERIFY(menu() != nullptr);
        QCOMPARE(visibleTexts(), QStringList({u"first"_s, u"-"_s, u"third"_s}));
        int used = 0;
        connect(m_actions[4], &QAction::triggered, this, [&used] { ++used; });
        QTest::mouseClick(menu(), Qt::LeftButton, Qt::NoModifier, menu()->actionGeometry(m_actions[4]).center());
        QCOMPARE(used, 1);
        QTRY_VERIFY(m_view->findChildren<QMenu*>().isEmpty());
        // The next menu is about what can be used then.
        m_actions[2]->setEnabled(true);
        m_actions[4]->setEnabled(false);
        askForMenu();
        QCOMPARE(visibleTexts(), QStringList({u"first"_s, u"-"_s, u"second"_s}));
        menu()->close();
    }

    void withNothingThereIsNoMenu()
    {
        for (QAction* const action : std::as_const(m_actions))
            action->setEnabled(false);
        askForMenu();
        QVERIFY(menu() == nullptr);
    }
};

QTEST_MAIN(TestApplicableMenu)
#include "tst_ApplicableMenu.moc"

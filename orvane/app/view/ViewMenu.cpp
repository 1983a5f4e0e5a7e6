#include "orvane/app/view/ViewMenu.h"

#include "orvane/app/base/ActionState.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/view/CameraMenu.h"
#include "orvane/app/view/ViewActions.h"

#include <QAction>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

namespace {

constexpr const char* mayBeEmpty = "mayBeEmpty";

} // namespace

ViewMenu::ViewMenu(QMainWindow* window, ViewActions* actions, CameraMenu* cameras)
    : QObject(window)
    , m_window(window)
    , m_actions(actions)
    , m_cameras(cameras)
    , m_menu(window->menuBar()->addMenu(QString()))
    , m_docks(new QMenu(m_menu))
    , m_toolBars(new QMenu(m_menu))
{
    m_menu->setObjectName(QStringLiteral("viewMenu"));
    m_docks->setObjectName(QStringLiteral("docksMenu"));
    m_toolBars->setObjectName(QStringLiteral("toolBarsMenu"));
    orvane::followLanguage(this, [this] {
        m_menu->setTitle(tr("&View"));
        m_docks->setTitle(tr("Doc&ks"));
        m_toolBars->setTitle(tr("&Tool Bars"));
    });
    connect(m_menu, &QMenu::aboutToShow, this, &ViewMenu::update);
}

QAction* ViewMenu::submenu(const char* name, const QList<QAction*>& actions)
{
    auto* const menu = new QMenu(m_menu);
    menu->setObjectName(QLatin1String(name));
    menu->addActions(actions);
    return menu->menuAction();
}

void ViewMenu::update()
{
    m_menu->clear();
    if (m_actions != nullptr) {
        m_actions->addTo(m_menu);
        m_menu->addMenu(m_cameras->update());
    }
    for (const QList<QAction*>& actions : m_appended) {
        m_menu->addSeparator();
        m_menu->addActions(actions);
    }
    updateDocks();
    updateToolBars();
    m_menu->addSeparator();
    m_menu->addMenu(m_docks);
    m_menu->addMenu(m_toolBars);
}

void ViewMenu::updateDocks()
{
    m_docks->clear();
    for (QDockWidget* dock : m_window->findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly))
        addDockSwitch(dock);
    m_docks->menuAction()->setVisible(!m_docks->isEmpty());
}

void ViewMenu::updateToolBars()
{
    m_toolBars->clear();
    for (QToolBar* toolBar : m_window->findChildren<QToolBar*>(QString(), Qt::FindDirectChildrenOnly))
        addSwitch(*m_toolBars, toolBar->toggleViewAction(), *toolBar);
    m_toolBars->menuAction()->setVisible(!m_toolBars->isEmpty());
}

void ViewMenu::setMayBeEmpty(QDockWidget& dock)
{
    dock.setProperty(mayBeEmpty, true);
}

// An empty dock would be a bare title bar.
void ViewMenu::addDockSwitch(QDockWidget* dock)
{
    addSwitch(*m_docks, dock->toggleViewAction(), *dock);
    if (!dock->property(mayBeEmpty).toBool())
        return;
    const auto updateSwitch = [dock] {
        const bool isEmpty = dock->widget() == nullptr;
        orvane::setReason(
            *dock->toggleViewAction(), isEmpty ? tr("It has nothing to show for what is selected.") : QString());
    };
    updateSwitch();
    if (!m_watched.contains(dock)) {
        m_watched.insert(dock);
        connect(dock, &QDockWidget::visibilityChanged, this, updateSwitch);
        connect(dock, &QObject::destroyed, this, [this, dock] { m_watched.remove(dock); });
    }
}

// Docks of extensions too, whose actions have no name of their own.
void ViewMenu::addSwitch(QMenu& menu, QAction* action, const QWidget& part)
{
    if (action->objectName().isEmpty() && !part.objectName().isEmpty())
        action->setObjectName(QStringLiteral("show.") + part.objectName());
    if (action->statusTip().isEmpty())
        orvane::followLanguage(
            action, [action] { action->setStatusTip(tr("Shows or hides this part of the window")); });
    menu.addAction(action);
}

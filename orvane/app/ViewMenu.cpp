#include "orvane/app/ViewMenu.h"

#include <QAction>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

ViewMenu::ViewMenu(QMainWindow* window)
    : QObject(window)
    , m_window(window)
    , m_menu(window->menuBar()->addMenu(tr("&View")))
{
    m_menu->setObjectName(QStringLiteral("viewMenu"));
    connect(m_menu, &QMenu::aboutToShow, this, &ViewMenu::update);
}

void ViewMenu::update()
{
    m_menu->clear();
    for (QDockWidget* dock : m_window->findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly))
        m_menu->addAction(dock->toggleViewAction());
    m_menu->addSeparator();
    for (QToolBar* toolBar : m_window->findChildren<QToolBar*>(QString(), Qt::FindDirectChildrenOnly))
        m_menu->addAction(toolBar->toggleViewAction());
}

#include "TrialShell.h"

#include "orvane/extender/OrvExtension.h"
#include "orvane/extender/VbText.h"

#include <QDockWidget>
#include <QToolBar>

TrialShell::TrialShell()
{
    m_window.resize(1000, 700);
    m_window.show();
}

TrialShell::~TrialShell() = default;

void TrialShell::addDockWidget(QDockWidget* dock, int area)
{
    m_window.addDockWidget(static_cast<Qt::DockWidgetArea>(area), dock);
}

void TrialShell::removeDockWidget(QDockWidget* dock)
{
    m_window.removeDockWidget(dock);
    dock->setParent(nullptr);
}

void TrialShell::announceExtension(OrvExtension* extension, int /*value*/)
{
    m_announced.append(extension);
}

void TrialShell::withdrawExtension(OrvExtension* extension)
{
    m_announced.removeOne(extension);
}

void TrialShell::addToolBar(QToolBar* toolBar, int area)
{
    m_window.addToolBar(static_cast<Qt::ToolBarArea>(area), toolBar);
}

void TrialShell::removeToolBar(QToolBar* toolBar)
{
    m_window.removeToolBar(toolBar);
    toolBar->setParent(nullptr);
}

QStringList TrialShell::leftovers() const
{
    QStringList names;
    for (const auto* const dock : m_window.findChildren<QDockWidget*>())
        names.append(QStringLiteral("the dock \"%1\"").arg(dock->windowTitle()));
    for (const auto* const bar : m_window.findChildren<QToolBar*>())
        names.append(QStringLiteral("the tool bar \"%1\"").arg(bar->windowTitle()));
    for (const auto* const extension : m_announced)
        names.append(QStringLiteral("the announcement of \"%1\"").arg(orvane::toQString(extension->getName())));
    return names;
}

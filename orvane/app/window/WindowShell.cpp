#include "orvane/app/window/WindowShell.h"

#include "orvane/app/base/TextGuard.h"
#include "orvane/app/view/ViewMenu.h"
#include "orvane/extender/OrvPluginsManager.h"

#include <QDockWidget>
#include <QEvent>
#include <QMainWindow>
#include <QScreen>
#include <QToolBar>

#include <algorithm>

namespace {

/// High enough for a column of five buttons.
constexpr int bottomDockHeight = 250;

// Places are kept by the name.
void giveName(QWidget* widget, const QString& title, const QString& fault)
{
    if (!widget->objectName().isEmpty())
        return;
    widget->setObjectName(title.isEmpty() ? QStringLiteral("unnamed") : title);
    OrvPluginsManager* const plugins = OrvPluginsManager::getInstance();
    if (title.isEmpty() && plugins != nullptr)
        plugins->reportMended(fault);
}

/// A widget that was never shown nor hidden shows up with its window.
bool isHiddenOnPurpose(const QWidget* widget)
{
    return widget->isHidden() && widget->testAttribute(Qt::WA_WState_ExplicitShowHide);
}

} // namespace

WindowShell::WindowShell(QMainWindow* window)
    : m_window(window)
{
}

WindowShell::~WindowShell() = default;

void WindowShell::addDockWidget(QDockWidget* dock, int area)
{
    if (dock == nullptr || m_docks.contains(dock))
        return;
    TextGuard::guard(dock);
    ViewMenu::setMayBeEmpty(*dock);
    giveName(dock, dock->windowTitle(), tr("a dock of it has neither a title nor a name, so its place may get lost"));
    const bool hidden = isHiddenOnPurpose(dock);
    m_docks.append(dock);
    connect(dock, &QObject::destroyed, this, &WindowShell::forget);
    if (m_places.contains(dock->objectName()) || !m_window->restoreDockWidget(dock))
        placeDock(dock, static_cast<Qt::DockWidgetArea>(area));
    // The extension decides whether it is visible, not the saved state.
    dock->setVisible(!hidden);
    Q_EMIT contentChanged();
}

void WindowShell::placeDock(QDockWidget* dock, Qt::DockWidgetArea area)
{
    const auto known = m_places.constFind(dock->objectName());
    if (known == m_places.constEnd()) {
        m_window->addDockWidget(area, dock);
        m_unsized.append(dock);
        dock->installEventFilter(this);
        return;
    }
    m_window->addDockWidget(known->area != Qt::NoDockWidgetArea ? known->area : area, dock);
    if (known->floating) {
        dock->setFloating(true);
        dock->setGeometry(known->geometry);
    }
}

bool WindowShell::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() != QEvent::Show)
        return false;
    auto* dock = qobject_cast<QDockWidget*>(object);
    dock->removeEventFilter(this);
    // After this event the layout adds the dock, and would widen the docks beside it if the new one is wide.
    if (m_unsized.removeOne(dock))
        QMetaObject::invokeMethod(
            dock, [this, dock, width = widthFor(dock)] { giveSize(dock, width); }, Qt::QueuedConnection);
    return false;
}

int WindowShell::widthAtSide(const QWidget& window)
{
    constexpr int letters = 48;
    const int wanted = letters * window.fontMetrics().averageCharWidth();
    return std::max(sideDockWidth, std::min(wanted, window.screen()->availableSize().width() * 2 / 5));
}

// A dock that joins others gets their width, which the user may have chosen.
int WindowShell::widthFor(QDockWidget* dock) const
{
    const Qt::DockWidgetArea area = m_window->dockWidgetArea(dock);
    for (QDockWidget* const other : m_window->findChildren<QDockWidget*>(Qt::FindDirectChildrenOnly)) {
        if (other != dock && other->isVisible() && !other->isFloating() && m_window->dockWidgetArea(other) == area)
            return other->width();
    }
    return std::max(widthAtSide(*m_window), dock->sizeHint().width());
}

void WindowShell::giveSize(QDockWidget* dock, int width)
{
    if (dock->isFloating() || !m_docks.contains(dock))
        return;
    const Qt::DockWidgetArea area = m_window->dockWidgetArea(dock);
    if (area == Qt::LeftDockWidgetArea || area == Qt::RightDockWidgetArea)
        m_window->resizeDocks({dock}, {width}, Qt::Horizontal);
    else
        m_window->resizeDocks({dock}, {bottomDockHeight}, Qt::Vertical);
}

void WindowShell::removeDockWidget(QDockWidget* dock)
{
    if (dock == nullptr || !m_docks.removeOne(dock))
        return;
    disconnect(dock, &QObject::destroyed, this, nullptr);
    m_unsized.removeOne(dock);
    dock->removeEventFilter(this);
    m_places.insert(dock->objectName(), {m_window->dockWidgetArea(dock), dock->isFloating(), dock->geometry()});
    m_window->removeDockWidget(dock);
    dock->setParent(nullptr);
    Q_EMIT contentChanged();
}

void WindowShell::announceExtension(OrvExtension* extension, int)
{
    if (extension != nullptr && !m_announced.contains(extension))
        m_announced.append(extension);
}

void WindowShell::withdrawExtension(OrvExtension* extension)
{
    m_announced.removeOne(extension);
}

void WindowShell::addToolBar(QToolBar* toolBar, int area)
{
    if (toolBar == nullptr || m_toolBars.contains(toolBar))
        return;
    giveName(toolBar, toolBar->windowTitle(),
        tr("a tool bar of it has neither a title nor a name, so its place may get lost"));
    const bool hidden = isHiddenOnPurpose(toolBar);
    m_toolBars.append(toolBar);
    connect(toolBar, &QObject::destroyed, this, &WindowShell::forget);
    m_window->addToolBar(static_cast<Qt::ToolBarArea>(area), toolBar);
    toolBar->setVisible(!hidden);
    Q_EMIT contentChanged();
}

void WindowShell::removeToolBar(QToolBar* toolBar)
{
    if (toolBar == nullptr || !m_toolBars.removeOne(toolBar))
        return;
    disconnect(toolBar, &QObject::destroyed, this, nullptr);
    m_window->removeToolBar(toolBar);
    toolBar->setParent(nullptr);
    Q_EMIT contentChanged();
}

void WindowShell::forget(QObject* object)
{
    // At this point of its destruction the object is only a QObject.
    m_docks.removeIf([object](const QDockWidget* dock) { return static_cast<const void*>(dock) == object; });
    m_unsized.removeIf([object](const QDockWidget* dock) { return static_cast<const void*>(dock) == object; });
    m_toolBars.removeIf([object](const QToolBar* toolBar) { return static_cast<const void*>(toolBar) == object; });
    Q_EMIT contentChanged();
}

#include "orvane/app/window/ListDock.h"

#include "orvane/app/docks/DockPlace.h"
#include "orvane/app/fields/FieldPanel.h"
#include "orvane/app/inspect/Inspectors.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/lists/ListView.h"
#include "orvane/app/look/Symbols.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/window/DockHeights.h"

#include "meridane/scene/fields/NxMField.h"

#include <QAction>
#include <QMainWindow>

#include <utility>

ListDock::ListDock(Session& session, QMainWindow* window)
    : QDockWidget(window)
    , m_session(session)
    , m_window(window)
{
    orvane::followLanguage(this, [this] { setWindowTitle(tr("List")); });
    setObjectName(QStringLiteral("listDock"));
    toggleViewAction()->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_R));
    hide();
}

void ListDock::openList(NxMField* list)
{
    show();
    m_panel->setList(list);
    m_panel->view()->setFocus(Qt::OtherFocusReason);
    if (!m_panel->view()->currentIndex().isValid())
        m_panel->view()->moveCurrent(0, 0);
}

void ListDock::showRow(const NxField* list, int row)
{
    if (!isHidden() && m_panel != nullptr && m_panel->list() == list)
        m_panel->view()->selectListRows({{row, 1}});
}

void ListDock::follow(FieldPanel& fields, const Inspectors& inspectors)
{
    const auto connectTo
        = [this](FieldPanel* panel) { connect(panel, &FieldPanel::listRequested, this, &ListDock::openList); };
    connectTo(&fields);
    connect(&inspectors, &Inspectors::panelAdded, this, connectTo);
}

void ListDock::setVisible(bool visible)
{
    if (visible) {
        fill();
        if (!isFloating() && m_window->dockWidgetArea(this) == Qt::NoDockWidgetArea) {
            orvane::placeAtBottom(m_window, this);
            m_isNew = true;
        }
    }
    QDockWidget::setVisible(visible);
    if (visible)
        QMetaObject::invokeMethod(this, &ListDock::showLeastRows, Qt::QueuedConnection);
    // Behind the tab of another dock it would seem that nothing happened.
    if (visible && m_window->isVisible())
        raise();
}

// Once the layout has its size. Later the user's choice stays.
void ListDock::showLeastRows()
{
    if (!std::exchange(m_isNew, false) || isFloating() || !isVisible())
        return;
    const int missing = m_panel->heightFor(DockHeights::leastRows) - m_panel->height();
    if (missing > 0)
        m_window->resizeDocks({this}, {height() + missing}, Qt::Vertical);
}

void ListDock::fill()
{
    if (m_panel != nullptr)
        return;
    m_panel = new ListPanel(m_session.services(), m_session.settings(), this);
    setWidget(m_panel);
    orvane::look::setSymbols(*this);
    Q_EMIT panelMade(m_panel);
}

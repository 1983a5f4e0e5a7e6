#include "orvane/app/window/HistoryDock.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/docks/DockPlace.h"
#include "orvane/app/history/HistoryModel.h"
#include "orvane/app/history/HistoryPanel.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/scene/SceneDocument.h"
#include "orvane/app/scene/Session.h"

#include <QAction>
#include <QMainWindow>

HistoryDock::HistoryDock(Session& session, StepTravel& travel, MessageBar& messages, QMainWindow* window)
    : QDockWidget(window)
    , m_session(session)
    , m_travel(travel)
    , m_messages(messages)
    , m_window(window)
{
    orvane::followLanguage(this, [this] { setWindowTitle(tr("History")); });
    setObjectName(QStringLiteral("historyDock"));
    toggleViewAction()->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_H));
    connect(&session.document(), &SceneDocument::sceneChanged, this, &HistoryDock::nameOrigin);
    hide();
}

void HistoryDock::setVisible(bool visible)
{
    if (visible) {
        fill();
        if (!isFloating() && m_window->dockWidgetArea(this) == Qt::NoDockWidgetArea)
            orvane::placeAtBottom(m_window, this);
    }
    QDockWidget::setVisible(visible);
    // Behind the tab of another dock it would seem that nothing happened.
    if (visible && m_window->isVisible())
        raise();
}

void HistoryDock::fill()
{
    if (m_panel != nullptr)
        return;
    m_panel = new HistoryPanel(m_session.services(), m_travel, m_messages, this);
    setWidget(m_panel);
    orvane::followLanguage(this, [this] { nameOrigin(); });
}

void HistoryDock::nameOrigin()
{
    if (m_panel == nullptr)
        return;
    const SceneDocument& document = m_session.document();
    const QString name = orvane::shortLine(document.displayName());
    m_panel->model()->setOrigin(!document.isOpen() ? tr("No scene is open")
            : document.fileName().isEmpty()        ? tr("New scene")
                                                   : tr("Opened %1").arg(name));
}

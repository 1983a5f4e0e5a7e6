#include "orvane/app/docks/LogDock.h"

#include "orvane/app/docks/DockPlace.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/log/LogBook.h"
#include "orvane/app/log/LogPanel.h"
#include "orvane/app/messages/MessageBar.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/settings/SettingsStore.h"

#include <QAction>
#include <QMainWindow>

#include <algorithm>
#include <cstddef>

namespace {

const QString linesKey = QStringLiteral("log/lines");
constexpr double leastShare = 0.1; // of the usual memory

NxSeverity severityOf(MessageBar::Severity severity)
{
    switch (severity) {
    case MessageBar::Severity::Information:
        return NxSeverity::Information;
    case MessageBar::Severity::Warning:
        return NxSeverity::Warning;
    case MessageBar::Severity::Error:
        break;
    }
    return NxSeverity::Error;
}

} // namespace

LogDock::LogDock(Session& session, MessageBar& messages, QMainWindow* window)
    : QDockWidget(window)
    , m_session(session)
    , m_messages(messages)
    , m_window(window)
    , m_book(new LogBook(this))
{
    setObjectName(QStringLiteral("logDock"));
    toggleViewAction()->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_O));
    connect(&messages, &MessageBar::messageAdded, this, [this](MessageBar::Severity severity, const QString& text) {
        m_book->add(severityOf(severity), tr("Window"), text);
    });
    SettingsStore& store = SettingsStore::of(session.settings());
    store.follow(linesKey, this, [this, &store] { setLimit(store.number(linesKey)); });
    orvane::followLanguage(this, [this] { setWindowTitle(tr("Log")); });
    hide();
}

void LogDock::setLimit(double lines)
{
    // As many bytes for each line as by default, but room for some long ones.
    const LogBook::Limits usual;
    const double share = lines / static_cast<double>(usual.lines);
    const double bytes = std::max(share, leastShare) * static_cast<double>(usual.bytes);
    m_book->setLimits({static_cast<std::size_t>(lines), static_cast<std::size_t>(bytes)});
}

void LogDock::setVisible(bool visible)
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

void LogDock::fill()
{
    if (m_panel != nullptr)
        return;
    m_panel = new LogPanel({*m_book, m_session.document(), m_session.settings(), m_messages}, this);
    setWidget(m_panel);
    connect(m_panel, &LogPanel::nodeChosen, this, &LogDock::nodeChosen);
    connect(&m_session.services(), &OrvServices::stepFinished, &m_panel->links(), &LogLinks::forget);
}

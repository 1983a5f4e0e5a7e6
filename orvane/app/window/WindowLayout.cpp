#include "orvane/app/window/WindowLayout.h"

#include "orvane/app/base/AppSettings.h"
#include "orvane/app/inspect/Inspectors.h"
#include "orvane/app/window/WindowShell.h"

#include <QDockWidget>
#include <QHash>
#include <QMainWindow>
#include <QScreen>
#include <QStyle>

#include <algorithm>
#include <utility>

namespace {

constexpr QSize firstSize(1280, 800);
const QString geometryKey = QStringLiteral("window/geometry");
const QString stateKey = QStringLiteral("window/state");

} // namespace

WindowLayout::WindowLayout(QMainWindow* window, const WindowShell& shell, AppSettings& settings)
    : QObject(window)
    , m_window(window)
    , m_shell(shell)
    , m_settings(settings)
{
    window->resize(firstSize);
    window->restoreGeometry(settings.value(geometryKey).toByteArray());
}

void WindowLayout::fitScreen()
{
    // The frame isn't known before the window is shown.
    const int title = m_window->style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const int frame = m_window->style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
    const QRect room = m_window->screen()->availableGeometry();
    m_window->resize(m_window->size().boundedTo(room.size() - QSize(2 * frame, title + 2 * frame)));
    // A place from the last run may be on a screen that has gone since.
    const QRect place = m_window->geometry();
    if (!m_settings.value(geometryKey).isNull() && !room.contains(place)) {
        const QPoint farthest(room.right() - place.width() - frame, room.bottom() - place.height() - frame);
        m_window->move(std::clamp(place.x(), room.left(), std::max(room.left(), farthest.x())),
            std::clamp(place.y() - title, room.top(), std::max(room.top(), farthest.y() - title)));
    }
}

void WindowLayout::restore(Inspectors& inspectors)
{
    if (std::exchange(m_isRestored, true))
        return;
    inspectors.restoreDocks();
    const QByteArray state = m_settings.value(stateKey).toByteArray();
    if (state.isEmpty())
        return;
    QHash<QDockWidget*, bool> hidden;
    for (QDockWidget* dock : m_shell.docks())
        hidden.insert(dock, dock->isHidden());
    m_window->restoreState(state);
    // Whether an extension's dock is seen is the extension's own decision.
    for (auto dock = hidden.constBegin(); dock != hidden.constEnd(); ++dock)
        dock.key()->setHidden(dock.value());
}

void WindowLayout::save()
{
    m_settings.setValue(geometryKey, m_window->saveGeometry());
    m_settings.setValue(stateKey, m_window->saveState());
    m_settings.sync();
}

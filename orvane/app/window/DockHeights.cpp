#include "orvane/app/window/DockHeights.h"

#include "orvane/app/base/AppSettings.h"
#include "orvane/app/window/WindowShell.h"
#include "orvane/extender/OrvServices.h"

#include "meridane/scene/fields/NxMField.h"

#include <QDockWidget>
#include <QEvent>
#include <QHeaderView>
#include <QMainWindow>
#include <QTableView>

#include <algorithm>
#include <utility>

namespace {

/// The table of a list in a dock, or null.
const QTableView* tableIn(const QDockWidget* dock)
{
    for (const QTableView* const table : dock->findChildren<QTableView*>()) {
        if (table->isVisible())
            return table;
    }
    return nullptr;
}

/// How many pixels the dock lacks to show the first rows of its table.
int missingHeight(const QDockWidget* dock)
{
    const QTableView* const table = tableIn(dock);
    if (table == nullptr)
        return 0;
    const int row
        = table->verticalHeader()->count() > 0 ? table->rowHeight(0) : table->verticalHeader()->defaultSectionSize();
    return std::max(0, DockHeights::leastRows * row - table->viewport()->height());
}

} // namespace

DockHeights::DockHeights(WindowShell& shell, OrvServices& services, AppSettings& settings, QMainWindow* window)
    : QObject(window)
    , m_shell(shell)
    , m_settings(settings)
    , m_window(window)
{
    window->installEventFilter(this);
    connect(&services, &OrvServices::selectedFieldChanged, this, &DockHeights::follow);
}

bool DockHeights::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Close)
        remember();
    return QObject::eventFilter(watched, event);
}

void DockHeights::follow(NxField* field)
{
    if (field == nullptr)
        return;
    const Kind kind = dynamic_cast<NxMField*>(field) != nullptr ? Kind::List : Kind::Single;
    if (kind == m_kind)
        return;
    remember();
    m_kind = kind;
    applyLater();
}

bool DockHeights::isAtSide(const QDockWidget* dock) const
{
    const Qt::DockWidgetArea area = m_window->dockWidgetArea(const_cast<QDockWidget*>(dock));
    return dock->isVisible() && !dock->isFloating()
        && (area == Qt::LeftDockWidgetArea || area == Qt::RightDockWidgetArea);
}

QString DockHeights::keyOf(const QDockWidget* dock) const
{
    const QString kind = m_kind == Kind::List ? QStringLiteral("list") : QStringLiteral("single");
    return QStringLiteral("docks/%1/%2Height").arg(dock->objectName(), kind);
}

void DockHeights::remember()
{
    // What hasn't been applied isn't what the user chose.
    if (m_kind == Kind::None || m_isLate)
        return;
    for (const QDockWidget* const dock : m_shell.docks()) {
        if (isAtSide(dock))
            m_settings.setValue(keyOf(dock), dock->height());
    }
}

// After the extension has shown the editor of the field, and the layout has taken it in.
void DockHeights::applyLater()
{
    if (!std::exchange(m_isLate, true))
        QMetaObject::invokeMethod(
            this, [this] { QMetaObject::invokeMethod(this, &DockHeights::apply, Qt::QueuedConnection); },
            Qt::QueuedConnection);
}

void DockHeights::apply()
{
    m_isLate = false;
    for (QDockWidget* const dock : m_shell.docks()) {
        if (isAtSide(dock))
            applyTo(dock);
    }
}

void DockHeights::applyTo(QDockWidget* dock)
{
    int height = m_settings.value(keyOf(dock), 0).toInt();
    if (height <= 0 && m_kind == Kind::List)
        height = dock->height() + missingHeight(dock);
    if (height <= 0 || height == dock->height())
        return;
    // Alone it would get a part of what it asks for.
    QDockWidget* const other = tallestBeside(dock);
    if (other != nullptr)
        m_window->resizeDocks({other, dock}, {other->height() + dock->height() - height, height}, Qt::Vertical);
}

// The tallest of the docks above and below.
QDockWidget* DockHeights::tallestBeside(const QDockWidget* dock) const
{
    QDockWidget* tallest = nullptr;
    for (QDockWidget* const other : m_window->findChildren<QDockWidget*>(Qt::FindDirectChildrenOnly)) {
        const bool isInColumn = other != dock && isAtSide(other) && other->x() == dock->x();
        if (isInColumn && (tallest == nullptr || other->height() > tallest->height()))
            tallest = other;
    }
    return tallest;
}

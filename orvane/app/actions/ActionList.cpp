#include "orvane/app/actions/ActionList.h"

#include "orvane/app/base/ActionState.h"

#include <QCoreApplication>
#include <QDockWidget>
#include <QHash>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

namespace {

struct ActionListText {
    Q_DECLARE_TR_FUNCTIONS(ActionList)
};

const QWidget* partOf(const QAction& action)
{
    for (const QObject* object = action.parent(); object != nullptr; object = object->parent()) {
        if (const auto* const dock = qobject_cast<const QDockWidget*>(object))
            return dock;
        const auto* const widget = qobject_cast<const QWidget*>(object);
        if (widget != nullptr && widget->objectName() == QStringLiteral("sceneView"))
            return widget;
    }
    return nullptr;
}

QString placeOf(const QAction& action)
{
    const QWidget* const part = partOf(action);
    if (part == nullptr)
        return ActionListText::tr("Window");
    return part->windowTitle().isEmpty() ? ActionListText::tr("View") : part->windowTitle();
}

QString textOf(const QAction& action)
{
    const QString text = orvane::plainText(action);
    const QObject* const part = action.parent();
    const bool isSwitch
        = qobject_cast<const QDockWidget*>(part) != nullptr || qobject_cast<const QToolBar*>(part) != nullptr;
    return isSwitch && action.objectName().startsWith(QStringLiteral("show.")) ? ActionListText::tr("Show %1").arg(text)
                                                                               : text;
}

/// Of actions with one name the one that the user means.
bool isBetter(const QAction& action, const QAction& than, const QWidget* focus)
{
    const auto rank = [focus](const QAction& one) {
        const QWidget* const part = partOf(one);
        if (part == nullptr)
            return 0;
        return (part->isVisible() ? 1 : 0) + (focus != nullptr && part->isAncestorOf(focus) ? 2 : 0);
    };
    return rank(action) > rank(than);
}

class Collector {
public:
    explicit Collector(const QMainWindow& window)
        : m_focus(window.focusWidget())
    {
        for (const QAction* const action : window.menuBar()->actions()) {
            if (action->menu() != nullptr)
                addMenu(*action->menu(), orvane::plainText(*action));
        }
        for (QAction* const action : window.findChildren<QAction*>())
            add(*action, placeOf(*action));
    }

    [[nodiscard]] QList<ListedAction> result() const { return m_result; }

private:
    void addMenu(const QMenu& menu, const QString& place)
    {
        for (QAction* const action : menu.actions()) {
            if (action->menu() != nullptr)
                addMenu(*action->menu(), QStringLiteral("%1 › %2").arg(place, orvane::plainText(*action)));
            else
                add(*action, place);
        }
    }

    void add(QAction& action, const QString& place)
    {
        if (!orvane::isListed(action))
            return;
        const QString name = action.objectName();
        const auto found = m_places.constFind(name);
        if (found == m_places.constEnd()) {
            m_places.insert(name, m_result.size());
            m_result.append({&action, name, textOf(action), place, orvane::reasonOf(action)});
        } else if (ListedAction& present = m_result[*found];
                   present.action != &action && isBetter(action, *present.action, m_focus)) {
            present.action = &action;
            present.text = textOf(action);
            present.reason = orvane::reasonOf(action);
        }
    }

    const QWidget* m_focus;
    QList<ListedAction> m_result;
    QHash<QString, qsizetype> m_places;
};

} // namespace

QList<ListedAction> orvane::listedActions(const QMainWindow& window)
{
    return Collector(window).result();
}

bool orvane::isListed(const QAction& action)
{
    // Qt names its own actions "_q_…" or "qt_…".
    const QString name = action.objectName();
    return !action.isSeparator() && action.menu() == nullptr && action.isVisible() && name.contains(u'.')
        && !action.text().isEmpty();
}

QList<QAction*> orvane::actionsNamed(const QMainWindow& window, const QString& name)
{
    return window.findChildren<QAction*>(name);
}

#include "orvane/app/actions/ActionKeys.h"

#include "orvane/app/actions/ActionList.h"
#include "orvane/app/base/AppSettings.h"

#include <QAction>
#include <QApplication>
#include <QChildEvent>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QWidget>

#include <algorithm>
#include <array>
#include <utility>

namespace {

const QString settingsKey = QStringLiteral("keys/changed");
constexpr auto ownKeysProperty = "orvaneOwnKeys";

constexpr auto isLeavingProperty = "orvaneLeavesKeys";

bool isWindowWide(const QAction& action)
{
    return action.property(isLeavingProperty).toBool() || action.shortcutContext() == Qt::WindowShortcut
        || action.shortcutContext() == Qt::ApplicationShortcut;
}

QList<QWidget*> widgetsOf(const QAction& action)
{
    QList<QWidget*> widgets;
    for (QObject* const object : action.associatedObjects()) {
        if (auto* const widget = qobject_cast<QWidget*>(object);
            widget != nullptr && qobject_cast<QMenu*>(object) == nullptr)
            widgets.append(widget);
    }
    return widgets;
}

/// Whether the keys of two actions work at one place.
bool canMeet(const QAction& left, const QAction& right)
{
    if (isWindowWide(left) || isWindowWide(right))
        return isWindowWide(left) && isWindowWide(right); // else the part with the focus has the key
    const auto reaches = [](const QAction& action, const QWidget* from, const QWidget* to) {
        return from == to || (action.shortcutContext() == Qt::WidgetWithChildrenShortcut && from->isAncestorOf(to));
    };
    for (const QWidget* const one : widgetsOf(left)) {
        for (const QWidget* const other : widgetsOf(right)) {
            if (reaches(left, one, other) || reaches(right, other, one))
                return true;
        }
    }
    return false;
}

bool isTyped(const QKeyCombination& key)
{
    const Qt::KeyboardModifiers modifiers = key.keyboardModifiers() & ~Qt::KeypadModifier;
    return (modifiers == Qt::NoModifier || modifiers == Qt::ShiftModifier) && key.key() < Qt::Key_Escape;
}

/// Keys that the controls of the window need themselves.
bool isOfControls(const QKeyCombination& key)
{
    constexpr std::array always{Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Escape, Qt::Key_Menu, Qt::Key_F6, Qt::Key_F10};
    constexpr std::array plain{Qt::Key_Return, Qt::Key_Enter, Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down,
        Qt::Key_Home, Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Backspace, Qt::Key_Space};
    const Qt::KeyboardModifiers modifiers = key.keyboardModifiers() & ~Qt::KeypadModifier;
    const bool isPlain = modifiers == Qt::NoModifier || modifiers == Qt::ShiftModifier;
    return std::ranges::find(always, key.key()) != always.end()
        || (isPlain && std::ranges::find(plain, key.key()) != plain.end());
}

bool opensMenu(const QMainWindow& window, const QKeySequence& key)
{
    const QList<QAction*> menus = window.menuBar()->actions();
    return std::any_of(
        menus.begin(), menus.end(), [&](const QAction* menu) { return QKeySequence::mnemonic(menu->text()) == key; });
}

} // namespace

ActionKeys::ActionKeys(QMainWindow* window, AppSettings& settings)
    : QObject(window)
    , m_window(window)
    , m_settings(settings)
{
    read();
    m_applySoon.setSingleShot(true);
    connect(&m_applySoon, &QTimer::timeout, this, &ActionKeys::apply);
    window->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this,
        [this](const QWidget* /*old*/, const QWidget* now) { leaveKeysTo(now); });
    apply();
}

ActionKeys::~ActionKeys() = default;

bool ActionKeys::eventFilter(QObject* object, QEvent* event)
{
    // A dock or a tool bar that was added brings actions.
    if (object == m_window && (event->type() == QEvent::ChildPolished || event->type() == QEvent::Show))
        m_applySoon.start(0);
    return false;
}

void ActionKeys::read()
{
    for (const QString& entry : m_settings.value(settingsKey).toStringList()) {
        const qsizetype blank = entry.indexOf(u' ');
        const QString name = entry.left(blank);
        Keys keys = QKeySequence::listFromString(blank < 0 ? QString() : entry.mid(blank + 1).trimmed());
        const bool isKnown = std::none_of(keys.begin(), keys.end(),
            [](const QKeySequence& key) { return key.isEmpty() || key[0].key() == Qt::Key_unknown; });
        if (blank > 0 && isKnown)
            m_changed.insert(name, keys);
        else
            m_unread.append(entry);
    }
}

void ActionKeys::store()
{
    QStringList entries = m_unread;
    for (auto changed = m_changed.constBegin(); changed != m_changed.constEnd(); ++changed)
        entries.append(changed.key() + u' ' + QKeySequence::listToString(*changed, QKeySequence::PortableText));
    entries.sort();
    m_settings.setValue(settingsKey, entries);
}

ActionKeys::Keys ActionKeys::ownKeys(const QAction& action) const
{
    const QVariant own = action.property(ownKeysProperty);
    return own.isValid() ? own.value<Keys>() : action.shortcuts();
}

void ActionKeys::apply()
{
    if (m_changed.isEmpty())
        return;
    for (auto changed = m_changed.constBegin(); changed != m_changed.constEnd(); ++changed)
        applyTo(changed.key());
}

void ActionKeys::applyTo(const QString& name)
{
    for (QAction* const action : orvane::actionsNamed(*m_window, name)) {
        if (!action->property(ownKeysProperty).isValid())
            action->setProperty(ownKeysProperty, QVariant::fromValue(action->shortcuts()));
        const Keys wanted = m_changed.value(name, ownKeys(*action));
        if (action->shortcuts() != wanted)
            action->setShortcuts(wanted);
    }
}

void ActionKeys::leaveKeysTo(const QWidget* focus)
{
    for (const QPointer<QAction>& action : std::exchange(m_leaving, {})) {
        if (action != nullptr) {
            action->setProperty(isLeavingProperty, QVariant());
            action->setShortcutContext(Qt::WindowShortcut);
        }
    }
    Keys taken;
    for (const QWidget* widget = focus; widget != nullptr && !widget->isWindow(); widget = widget->parentWidget()) {
        for (const QAction* const action : widget->actions()) {
            const bool isMeant = widget == focus || action->shortcutContext() == Qt::WidgetWithChildrenShortcut;
            if (isMeant && !isWindowWide(*action))
                taken.append(action->shortcuts());
        }
    }
    if (taken.isEmpty())
        return;
    for (QAction* const action : m_window->findChildren<QAction*>()) {
        const Keys keys = action->shortcuts();
        const bool isTaken = action->shortcutContext() == Qt::WindowShortcut
            && std::any_of(keys.begin(), keys.end(), [&taken](const QKeySequence& key) { return taken.contains(key); });
        if (isTaken) {
            action->setProperty(isLeavingProperty, true);
            action->setShortcutContext(Qt::WidgetShortcut);
            m_leaving.append(action);
        }
    }
}

ActionKeys::Keys ActionKeys::keys(const QString& name) const
{
    const QList<QAction*> actions = orvane::actionsNamed(*m_window, name);
    return actions.isEmpty() ? m_changed.value(name) : actions.front()->shortcuts();
}

ActionKeys::Keys ActionKeys::defaults(const QString& name) const
{
    const QList<QAction*> actions = orvane::actionsNamed(*m_window, name);
    return actions.isEmpty() ? Keys() : ownKeys(*actions.front());
}

QString ActionKeys::refusal(const QString& name, const QKeySequence& key) const
{
    if (key.isEmpty())
        return tr("Press a key.");
    const QString text = key.toString(QKeySequence::NativeText);
    const QKeyCombination first = key[0];
    if (isOfControls(first))
        return tr("%1 is needed to move in the window and its tables.").arg(text);
    if (opensMenu(*m_window, key))
        return tr("%1 opens a menu.").arg(text);
    const QList<QAction*> actions = orvane::actionsNamed(*m_window, name);
    const bool isWide
        = std::any_of(actions.begin(), actions.end(), [](const QAction* one) { return isWindowWide(*one); });
    if (isWide && isTyped(first))
        return tr("%1 is needed for typing. Add Ctrl or Alt.").arg(text);
    return {};
}

QStringList ActionKeys::conflicts(const QString& name, const QKeySequence& key) const
{
    const QList<QAction*> own = orvane::actionsNamed(*m_window, name);
    QStringList found;
    for (const QAction* const other : m_window->findChildren<QAction*>()) {
        const QString otherName = other->objectName();
        if (otherName == name || found.contains(otherName) || !orvane::isListed(*other))
            continue;
        const Keys keys = other->shortcuts();
        const bool isSame = std::any_of(keys.begin(), keys.end(), [&key](const QKeySequence& taken) {
            return taken.matches(key) != QKeySequence::NoMatch || key.matches(taken) != QKeySequence::NoMatch;
        });
        if (isSame
            && std::any_of(own.begin(), own.end(), [other](const QAction* one) { return canMeet(*one, *other); }))
            found.append(otherName);
    }
    return found;
}

void ActionKeys::setKeys(const QString& name, const Keys& keys)
{
    if (keys == defaults(name))
        m_changed.remove(name);
    else
        m_changed.insert(name, keys);
    applyTo(name);
    store();
    Q_EMIT changed();
}

void ActionKeys::takeKey(const QString& name, const QKeySequence& key)
{
    Keys left = keys(name);
    left.removeIf([&key](const QKeySequence& one) {
        return one.matches(key) != QKeySequence::NoMatch || key.matches(one) != QKeySequence::NoMatch;
    });
    setKeys(name, left);
}

void ActionKeys::reset(const QString& name)
{
    setKeys(name, defaults(name));
}

void ActionKeys::resetAll()
{
    // Actions that this window doesn't have keep theirs.
    QStringList names;
    for (auto one = m_changed.constBegin(); one != m_changed.constEnd(); ++one) {
        if (!orvane::actionsNamed(*m_window, one.key()).isEmpty())
            names.append(one.key());
    }
    for (const QString& name : names) {
        m_changed.remove(name);
        applyTo(name);
    }
    store();
    Q_EMIT changed();
}

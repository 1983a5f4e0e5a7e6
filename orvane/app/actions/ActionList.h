#pragma once

#include <QAction>
#include <QList>
#include <QPointer>
#include <QString>

class QMainWindow;

/// An action of the window as the palette and the page of keys list it.
struct ListedAction {
    QPointer<QAction> action;
    QString name; ///< the name of the object, which is the same in each version of the program
    QString text; ///< what it does, in a few words
    QString place; ///< the menu that holds it, such as "File", or the part of the window that it belongs to
    QString reason; ///< why it can't be used now; empty if it can
    [[nodiscard]] bool isEnabled() const { return action != nullptr && action->isEnabled(); }
};

/// All actions of a window that a user can trigger: those that have a name.
///
/// Several actions may have one name, such as those of several field tables. Of these the list has the one whose part
/// of the window has or had the focus, or else the first that is visible.
namespace orvane {

/// In the order of the menus; then the others by part of the window.
[[nodiscard]] QList<ListedAction> listedActions(const QMainWindow& window);
/// Whether an action belongs in the list.
[[nodiscard]] bool isListed(const QAction& action);
/// The actions of that name.
[[nodiscard]] QList<QAction*> actionsNamed(const QMainWindow& window, const QString& name);

} // namespace orvane

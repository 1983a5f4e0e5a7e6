#pragma once

#include <QList>
#include <QObject>
#include <QSet>

class CameraMenu;
class QAction;
class QDockWidget;
class QMainWindow;
class QMenu;
class QWidget;
class ViewActions;

/// The View menu: what the user can do with the view, and in submenus every dock and tool bar that the window has at
/// the moment, to be shown and hidden.
class ViewMenu : public QObject {
    Q_OBJECT

public:
    /// For a window without a view, actions and cameras are null.
    explicit ViewMenu(QMainWindow* window, ViewActions* actions = nullptr, CameraMenu* cameras = nullptr);

    /// Lists these actions together behind those of the view, from the next `update` on.
    void append(const QList<QAction*>& actions) { m_appended.append(actions); }
    /// A submenu with these actions and without a title yet, to be appended. The menu owns it.
    [[nodiscard]] QAction* submenu(const char* name, const QList<QAction*>& actions);
    /// Lists what there is now.
    void update();
    /// To be called for a dock whose widget comes and goes with the selection. While it has none, it can't be shown.
    static void setMayBeEmpty(QDockWidget& dock);

private:
    void updateDocks();
    void updateToolBars();
    void addDockSwitch(QDockWidget* dock);
    static void addSwitch(QMenu& menu, QAction* action, const QWidget& part);

    QMainWindow* m_window;
    ViewActions* m_actions;
    CameraMenu* m_cameras;
    QMenu* m_menu;
    QMenu* m_docks;
    QMenu* m_toolBars;
    QList<QList<QAction*>> m_appended;
    QSet<QObject*> m_watched; // docks that may be empty
};

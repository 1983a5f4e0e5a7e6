#pragma once

#include <QObject>

class QMainWindow;
class QMenu;

/// The View menu: shows and hides every dock and tool bar that the window has at the moment.
class ViewMenu : public QObject {
    Q_OBJECT

public:
    explicit ViewMenu(QMainWindow* window);

    /// Lists what there is now.
    void update();

private:
    QMainWindow* m_window;
    QMenu* m_menu;
};

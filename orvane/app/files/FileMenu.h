#pragma once

#include <QObject>

class FileFlow;
class QAction;
class QMainWindow;
class QMenu;
class RecentFiles;
class SceneDocument;

/// The File menu and its tool bar: the actions and the recent files.
class FileMenu : public QObject {
    Q_OBJECT

public:
    FileMenu(QMainWindow* window, FileFlow& flow, RecentFiles& recent, SceneDocument& document);

    /// The actions that belong on a tool bar.
    [[nodiscard]] QList<QAction*> toolBarActions() const;

Q_SIGNALS:
    /// Another window is wanted, with that file or, if it is empty, without one.
    void windowRequested(const QString& fileName);

private:
    QAction* addAction(const char* text, const char* name, const char* statusTip);
    void fillRecentMenu();
    void updateActions();

    QMainWindow* m_window;
    FileFlow& m_flow;
    RecentFiles& m_recent;
    SceneDocument& m_document;
    QMenu* m_menu;
    QMenu* m_recentMenu;
    QAction* m_new;
    QAction* m_open;
    QAction* m_save;
    QAction* m_saveAs;
    QAction* m_reload;
    QAction* m_export;
    QAction* m_compare;
    QAction* m_close;
};

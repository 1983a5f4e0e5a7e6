#pragma once

#include <QList>
#include <QObject>

class FieldPanel;
class FileFlow;
class InspectorDock;
class QAction;
class QDockWidget;
class QMainWindow;
class SceneTreePanel;
class Session;

/// The further inspectors of the window. Which there are is kept in the settings, so that the next window has them
/// before its layout is restored.
class InspectorDocks : public QObject {
    Q_OBJECT

public:
    /// More than this can't be used.
    static constexpr int mostDocks = 8;

    /// All live as long as the window.
    InspectorDocks(Session& session, SceneTreePanel* tree, QMainWindow* window);
    ~InspectorDocks() override;

    /// Opens another one.
    [[nodiscard]] QAction* newAction() const noexcept { return m_newAction; }
    [[nodiscard]] const QList<InspectorDock*>& docks() const noexcept { return m_docks; }
    /// Adds those that the last window had.
    void restore();
    void followReloads(const FileFlow& flow);

Q_SIGNALS:
    /// A dock was added. It goes by itself.
    void added(InspectorDock* dock);
    /// The user has closed the dock of that number.
    void removed(int number);

private:
    void open();
    InspectorDock* add(int number);
    void forget(const QObject* dock, int number);
    void update();
    void store();
    [[nodiscard]] int freeNumber() const;

    Session& m_session;
    SceneTreePanel* m_tree;
    QMainWindow* m_window;
    const FileFlow* m_flow = nullptr;
    QAction* m_newAction;
    QList<InspectorDock*> m_docks;
};
